// SPDX-License-Identifier: MIT
// FileReplacement: temporary names, and the renaming.
#include "gdi/FileReplacement.h"

#include <algorithm>

#include "gdi/Text.h"

namespace kavlix {
namespace {

/// Creates a new file in the folder of `path`, under a name that no file has yet, and stores its path in
/// `name`. INVALID_HANDLE_VALUE on failure.
HANDLE MakeFileBeside(const std::wstring& path, std::wstring& name) {
    constexpr unsigned kMostTries = 1000;
    const std::size_t folderEnd = path.find_last_of(L"\\/:");
    const std::wstring folder(path, 0, folderEnd == std::wstring::npos ? 0 : folderEnd + 1);
    for (unsigned i = 0; i < kMostTries; ++i) {
        WCHAR leaf[64];
        ::wsprintfW(leaf, L"~kvx%lu_%u.tmp", ::GetCurrentProcessId(), i);
        name = folder;
        name += leaf;
        const HANDLE file = ::CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_FILE_EXISTS)
            return file;
    }
    return INVALID_HANDLE_VALUE;
}

} // namespace

FileReplacement::FileReplacement(const CString& path)
    : m_path(ToWide(path, path.GetLength())), m_file(MakeFileBeside(m_path, m_name)) {
}

FileReplacement::~FileReplacement() {
    if (Close())
        ::DeleteFileW(m_name.c_str());
}

bool FileReplacement::Write(const void* pBytes, std::size_t count) {
    constexpr std::size_t kLargestPiece = 1 << 24;
    const auto* bytes = static_cast<const char*>(pBytes);
    while (m_isWhole && count > 0) {
        const auto piece = static_cast<DWORD>(std::min(count, kLargestPiece));
        DWORD written = 0;
        m_isWhole = m_file != INVALID_HANDLE_VALUE && ::WriteFile(m_file, bytes, piece, &written, nullptr) &&
                    written == piece;
        bytes += piece;
        count -= piece;
    }
    return m_isWhole;
}

/// False when the file is closed already.
bool FileReplacement::Close() {
    if (m_file == INVALID_HANDLE_VALUE)
        return false;
    m_isWhole = ::CloseHandle(m_file) && m_isWhole;
    m_file = INVALID_HANDLE_VALUE;
    return true;
}

bool FileReplacement::PutInPlace() {
    if (!Close())
        return false;
    if (m_isWhole && ::MoveFileExW(m_name.c_str(), m_path.c_str(), MOVEFILE_REPLACE_EXISTING))
        return true;
    ::DeleteFileW(m_name.c_str());
    return false;
}

} // namespace kavlix
