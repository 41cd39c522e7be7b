// SPDX-License-Identifier: MIT
// CFile, CStdioFile and CMemFile: random calls against a text, names, modes and sharing.

#include <afx.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tests/support/ImportHook.h"
#include "tests/support/Refusal.h"
#include "tests/support/TempFolder.h"
#include "tests/support/UnderWine.h"
#include "tests/support/Utf8.h"

namespace {

/// Each test has its own folder, which is deleted afterwards.
class File : public testing::Test {
protected:
    ~File() override {
        std::error_code error;
        std::filesystem::remove_all(m_folder.Path(), error);
        EXPECT_FALSE(error) << "a file was left open";
    }
    CString Path(LPCTSTR name) const { return CString(m_folder.Path().c_str()) + _T("\\") + name; }
    std::string Content(LPCTSTR name) const {
        CFile file(Path(name), CFile::modeRead | CFile::shareDenyNone);
        std::string content(static_cast<std::size_t>(file.GetLength()), '\0');
        EXPECT_EQ(content.size(), file.Read(content.data(), static_cast<UINT>(content.size())));
        return content;
    }

    testkit::TempFolder m_folder;
};

/// Random calls to an empty file, each followed by a comparison with a text.
void ActsLikeAText(CFile& file) {
    std::mt19937 random(24);
    const auto below = [&](std::size_t count) { return static_cast<std::size_t>(random() % count); };
    std::string model;
    std::size_t position = 0;
    for (int step = 0; step < 3000; ++step) {
        // A stream needs a seek between reading and writing.
        file.Seek(static_cast<LONGLONG>(position), CFile::begin);
        const std::size_t count = below(40);
        switch (below(model.size() < 2000 ? 6 : 1)) {
        case 0:
            model.resize(below(model.size() + 1));
            file.SetLength(model.size());
            position = static_cast<std::size_t>(file.GetPosition());
            ASSERT_LE(position, model.size());
            break;
        case 1:
        case 2: {
            const std::string bytes(count, static_cast<char>('a' + below(26)));
            file.Write(bytes.data(), static_cast<UINT>(count));
            if (count > 0)
                model.resize(std::max(model.size(), position + count));
            model.replace(std::min(position, model.size()), count, bytes);
            position += count;
            break;
        }
        case 3: {
            std::string bytes(count, '\0');
            const std::size_t left = model.size() - std::min(position, model.size());
            const UINT read = file.Read(bytes.data(), static_cast<UINT>(count));
            ASSERT_EQ(std::min(count, left), read) << "fewer only at the end";
            ASSERT_EQ(model.substr(std::min(position, model.size()), read), bytes.substr(0, read));
            position += read;
            break;
        }
        default: {
            const UINT from = static_cast<UINT>(below(3));
            const auto base = static_cast<LONGLONG>(from == CFile::begin     ? 0
                                                    : from == CFile::current ? position
                                                                             : model.size());
            position = below(model.size() + 50);
            ASSERT_EQ(position, file.Seek(static_cast<LONGLONG>(position) - base, from));
            ASSERT_EQ(CFileException::badSeek, CauseOf<CFileException>([&] {
                          file.Seek(-1 - static_cast<LONGLONG>(model.size()), CFile::end);
                      }));
            file.Seek(static_cast<LONGLONG>(position), CFile::begin); // the failed seek moves a stream
        }
        }
        // Wine's ftell() is wrong for a read after a write.
        const bool isWrong = testkit::UnderWine() && file.IsKindOf(RUNTIME_CLASS(CStdioFile)) != FALSE;
        ASSERT_EQ(position, isWrong ? position : file.GetPosition()) << step;
        ASSERT_EQ(model.size(), file.GetLength()) << step;
    }
}

TEST_F(File, EveryKindActsLikeATextUnderRandomCalls) {
    constexpr UINT mode = CFile::modeCreate | CFile::modeReadWrite;
    CFile file(Path(_T("data.bin")), mode);
    ActsLikeAText(file);
    EXPECT_STREQ(_T("data.bin|data|") + Path(_T("data.bin")),
                 file.GetFileName() + "|" + file.GetFileTitle() + "|" + file.GetFilePath());
    const std::unique_ptr<CFile> second(file.Duplicate());
    file.Close();
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    second->SetLength(4); // still open
    EXPECT_EQ(4u, second->GetLength());
    {
        CFile owner(Path(_T("own.bin")), CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive);
        delete CFile(owner.m_hFile).Duplicate();
    }
    CFile again;
    EXPECT_TRUE(again.Open(Path(_T("own.bin")), CFile::modeWrite | CFile::shareExclusive))
        << "a duplicate closes its handle, also that of a file that does not own its own";

    CStdioFile stream(Path(_T("stream.bin")), mode | CFile::typeBinary);
    ActsLikeAText(stream);
    CMemFile memory(16);
    ActsLikeAText(memory);
    BYTE* const block = memory.Detach();
    EXPECT_NE(nullptr, block);
    EXPECT_EQ(0u, memory.GetLength());
    free(block);
}

TEST_F(File, ModesDecideWhatIsMadeAndKept) {
    m_folder.Write("a", "old");
    { CFile kept(Path(_T("a")), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite); }
    EXPECT_EQ("old", Content(_T("a")));
    { CFile emptied(Path(_T("a")), CFile::modeCreate | CFile::modeWrite); }
    EXPECT_EQ("", Content(_T("a")));
    CFile readOnly(Path(_T("a")), CFile::modeRead);
    EXPECT_EQ(CFileException::accessDenied, CauseOf<CFileException>([&] { readOnly.Write("x", 1); }));
    readOnly.Write("", 0);
}

TEST_F(File, FailuresTellCauseNumberAndName) {
    CFile file;
    CFileException error;
    const CString missing = Path(_T("missing.txt"));
    EXPECT_FALSE(file.Open(missing, CFile::modeRead, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, error.m_lOsError);
    EXPECT_TRUE(error.m_strFileName == missing);
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    const auto make = [&] { CFile(Path(_T("no folder\\x")), CFile::modeCreate | CFile::modeWrite); };
    EXPECT_EQ(CFileException::badPath, CauseOf<CFileException>(make));
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CStdioFile(missing, CFile::modeRead); }));
}

TEST_F(File, ShareFlagsKeepOthersOut) {
    const struct {
        UINT share, second;
        int cause;
    } cases[] = {{CFile::shareExclusive, CFile::modeRead, CFileException::sharingViolation},
                 {CFile::shareDenyWrite, CFile::modeWrite, CFileException::sharingViolation},
                 {CFile::shareDenyWrite, CFile::modeRead, -1},
                 {CFile::shareDenyNone, CFile::modeReadWrite, -1}};
    for (const auto& c : cases) {
        CFile first(Path(_T("shared")), CFile::modeCreate | CFile::modeReadWrite | c.share);
        EXPECT_EQ(c.cause, CauseOf<CFileException>(
                               [&] { CFile(Path(_T("shared")), c.second | CFile::shareDenyNone); }));
    }
}

TEST_F(File, TextFilesHaveOneLineEndInMemory) {
    {
        CStdioFile file(Path(_T("t.txt")), CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        file.WriteString("first\n\n" + CString('x', 2000) + "\nno end");
    }
    EXPECT_EQ("first\r\n\r\n" + std::string(2000, 'x') + "\r\nno end", Content(_T("t.txt")));
    CStdioFile file(Path(_T("t.txt")), CFile::modeRead);
    CString line;
    for (const CString& expected : {CString("first"), CString(), CString('x', 2000)}) {
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_TRUE(line == expected) << line;
    }
    TCHAR piece[5];
    EXPECT_EQ(piece, file.ReadString(piece, 5));
    EXPECT_STREQ(_T("no e"), piece);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ(_T("nd"), line);
    EXPECT_FALSE(file.ReadString(line));
}

#ifdef _UNICODE
UINT WINAPI Utf8Page() {
    return CP_UTF8;
}
int WINAPI FromUtf8(UINT, DWORD flags, LPCSTR text, int length, LPWSTR target, int room) {
    return ::MultiByteToWideChar(CP_UTF8, flags, text, length, target, room);
}
int WINAPI ToUtf8(UINT, DWORD flags, LPCWSTR text, int length, LPSTR target, int room, LPCSTR, LPBOOL) {
    return ::WideCharToMultiByte(CP_UTF8, flags, text, length, target, room, nullptr, nullptr);
}

TEST_F(File, NoCharacterOfATextFileIsCut) {
    const testkit::ImportHook hooks[] = {
        {"KavlixMfc.dll", "GetACP", reinterpret_cast<void*>(&Utf8Page)},
        {"KavlixMfc.dll", "MultiByteToWideChar", reinterpret_cast<void*>(&FromUtf8)},
        {"KavlixMfc.dll", "WideCharToMultiByte", reinterpret_cast<void*>(&ToUtf8)}};
    for (const auto& hook : hooks)
        ASSERT_TRUE(hook.Installed());
    std::mt19937 random(27);
    std::wstring whole, single; // `single` has U+FFFD in the place of each surrogate pair
    for (int i = 0; i < 4000; ++i) {
        const LPCWSTR part = std::array{L"a", L"b", L"\n", L"\u00E9", L"\u65E5", L"\U0001F600"}[random() % 6];
        whole += part;
        single += part[1] == 0 ? part : L"\uFFFD";
    }
    const CString name = Path(testkit::kScripts);
    CStdioFile(name, CFile::modeCreate | CFile::modeWrite).WriteString(whole.c_str());
    for (const UINT limit : {2u, 3u, 4u, 5u, 64u, 20000u}) {
        SCOPED_TRACE(limit);
        CStdioFile file(name, CFile::modeRead);
        std::vector<wchar_t> piece(limit);
        ASSERT_TRUE(file.ReadString(piece.data(), 1) && piece[0] == 0) << "there is no room for a character";
        const std::wstring& expected = limit == 2 ? single : whole;
        std::wstring read;
        while (file.ReadString(piece.data(), limit) != nullptr) {
            read += piece.data();
            const std::size_t length = std::wcslen(piece.data());
            const bool pairNext = read.size() < whole.size() && expected[read.size()] >= 0xD800;
            ASSERT_TRUE(read.back() == L'\n' || length + 1 + pairNext >= limit ||
                        read.size() == expected.size());
            ASSERT_FALSE(IS_HIGH_SURROGATE(read.back()));
        }
        EXPECT_TRUE(read == expected);
    }
    m_folder.Write("damaged", "\xE9\n\xF0\x9F\nlast");
    CStdioFile damaged(Path(_T("damaged")), CFile::modeRead);
    CString line;
    EXPECT_TRUE(damaged.ReadString(line) && line[0] == 0xFFFD);
    EXPECT_TRUE(damaged.ReadString(line) && line[0] == 0xFFFD);
    EXPECT_TRUE(damaged.ReadString(line) && line == "last") << "a cut character ends before the line's end";
}
#endif

TEST(MemFile, FixedMemoryIsNotExceeded) {
    BYTE memory[9] = "12345678";
    CMemFile file(memory, 4);
    EXPECT_EQ(4u, file.GetLength()) << "the buffer's bytes are the content";
    char bytes[9] = {};
    EXPECT_EQ(4u, file.Read(bytes, 8));
    EXPECT_STREQ("1234", bytes);
    file.SeekToBegin();
    file.Write("abcd", 4);
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.Write("x", 1); }));
    EXPECT_STREQ("abcd5678", reinterpret_cast<char*>(memory));
}

} // namespace
