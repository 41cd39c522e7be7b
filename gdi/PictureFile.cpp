// SPDX-License-Identifier: MIT
// Encodes pictures by GDI+ or as metafiles, and writes them to a file.
#include <kavlix/PictureFile.h>

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

// The GDI+ headers call min and max without a namespace, and windows.h does not define them as macros here.
#include <objidl.h>
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

#include "gdi/Bitmap.h"
#include "gdi/FileReplacement.h"
#include "gdi/Guards.h"
#include "gdi/OutOfMemory.h"
#include "gdi/PictureClipboard.h"

namespace kavlix {
namespace {

constexpr WORD kBitsPerPixel = 24;

/// Starts GDI+; the destructor shuts it down.
class GdiPlus {
public:
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        m_started = Gdiplus::GdiplusStartup(&m_token, &input, nullptr) == Gdiplus::Ok;
    }
    ~GdiPlus() {
        if (m_started)
            Gdiplus::GdiplusShutdown(m_token);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    bool Started() const { return m_started; }

private:
    ULONG_PTR m_token = 0;
    bool m_started = false;
};

/// A COM stream in memory.
class MemoryStream {
public:
    MemoryStream() {
        if (::CreateStreamOnHGlobal(nullptr, TRUE, &m_stream) != S_OK)
            m_stream = nullptr;
    }
    ~MemoryStream() {
        if (m_stream != nullptr)
            m_stream->Release();
    }
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;

    IStream* Get() const { return m_stream; }
    /// All bytes of the stream; empty when they cannot be read.
    std::vector<BYTE> Bytes() const {
        STATSTG status = {};
        if (m_stream->Stat(&status, STATFLAG_NONAME) != S_OK ||
            m_stream->Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr) != S_OK)
            return {};
        std::vector<BYTE> bytes(static_cast<std::size_t>(status.cbSize.QuadPart));
        ULONG read = 0;
        const HRESULT result = m_stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read);
        return SUCCEEDED(result) && read == bytes.size() ? bytes : std::vector<BYTE>();
    }

private:
    IStream* m_stream = nullptr;
};

bool FindEncoder(const WCHAR* mimeType, CLSID& id) {
    UINT count = 0;
    UINT bytes = 0;
    if (Gdiplus::GetImageEncodersSize(&count, &bytes) != Gdiplus::Ok || bytes == 0)
        return false;
    // GDI+ writes the encoders' strings behind their records, so the block is larger than the records.
    std::vector<Gdiplus::ImageCodecInfo> block(bytes / sizeof(Gdiplus::ImageCodecInfo) + 1);
    if (Gdiplus::GetImageEncoders(count, bytes, block.data()) != Gdiplus::Ok)
        return false;
    for (UINT i = 0; i < count; ++i) {
        if (std::wcscmp(block[i].MimeType, mimeType) == 0) {
            id = block[i].Clsid;
            return true;
        }
    }
    return false;
}

std::vector<BYTE> EncodePixels(const WCHAR* mimeType, CSize size, const std::function<void(CDC&)>& draw) {
    void* bits = nullptr;
    CBitmap page;
    if (!MakeDirectBitmap(page, nullptr, size, &bits, kBitsPerPixel))
        return {};
    CDC dc;
    if (!dc.CreateCompatibleDC(nullptr))
        return {};
    SelectGuard selected(dc, page);
    dc.PatBlt(0, 0, size.cx, size.cy, WHITENESS);
    draw(dc);
    ::GdiFlush();

    const GdiPlus gdiPlus;
    const MemoryStream stream;
    CLSID encoder;
    if (!gdiPlus.Started() || stream.Get() == nullptr || !FindEncoder(mimeType, encoder))
        return {};
    constexpr int kRowBits = 32;
    const int stride = static_cast<int>((size.cx * kBitsPerPixel + kRowBits - 1) / kRowBits * sizeof(DWORD));
    Gdiplus::Bitmap bitmap(size.cx, size.cy, stride, PixelFormat24bppRGB, static_cast<BYTE*>(bits));
    if (bitmap.Save(stream.Get(), &encoder, nullptr) != Gdiplus::Ok)
        return {};
    return stream.Bytes();
}

std::vector<BYTE> EncodeMetafile(CSize size, const std::function<void(CDC&)>& draw) {
    constexpr int kHundredthsPerMillimetre = 100;
    CDC screen;
    if (!screen.CreateDC(_T("DISPLAY"), nullptr, nullptr, nullptr))
        return {};
    const auto length = [&](int pixels, int millimetres, int resolution) {
        return ::MulDiv(pixels, screen.GetDeviceCaps(millimetres) * kHundredthsPerMillimetre,
                        screen.GetDeviceCaps(resolution));
    };
    const CRect frame(0, 0, length(size.cx, HORZSIZE, HORZRES), length(size.cy, VERTSIZE, VERTRES));
    MetafilePicture picture(screen.GetSafeHdc(), &frame);
    if (!picture.Draw(draw))
        return {};
    std::vector<BYTE> bytes(::GetEnhMetaFileBits(picture.Get(), 0, nullptr));
    if (::GetEnhMetaFileBits(picture.Get(), static_cast<UINT>(bytes.size()), bytes.data()) != bytes.size())
        return {};
    return bytes;
}

} // namespace

bool SavePicture(LPCTSTR path, CSize size, const std::function<void(CDC&)>& draw) {
    constexpr int kLongestSide = 32767; // pixels; GDI makes no larger bitmaps, and sizes in bytes fit 32 bits
    if (size.cx <= 0 || size.cy <= 0 || size.cx > kLongestSide || size.cy > kLongestSide)
        return false;
    return UnlessRefused([&] {
        const CString name(path);
        const int dot = name.ReverseFind('.');
        const CString extension = dot < 0 ? CString() : name.Mid(dot);
        std::vector<BYTE> bytes;
        if (extension.CompareNoCase(_T(".png")) == 0)
            bytes = EncodePixels(L"image/png", size, draw);
        else if (extension.CompareNoCase(_T(".bmp")) == 0)
            bytes = EncodePixels(L"image/bmp", size, draw);
        else if (extension.CompareNoCase(_T(".emf")) == 0)
            bytes = EncodeMetafile(size, draw);
        if (bytes.empty())
            return false;
        FileReplacement file(name);
        return file.Write(bytes.data(), bytes.size()) && file.PutInPlace();
    });
}

} // namespace kavlix
