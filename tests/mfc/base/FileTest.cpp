#include <afx.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/mfc/Refusal.h"
#include "tests/support/TempFolder.h"

// CFile, CStdioFile and CMemFile.

namespace {

/// A folder of its own for each test, gone afterwards.
class File : public testing::Test {
protected:
    ~File() override {
        std::error_code error;
        std::filesystem::remove_all(m_folder.Path(), error);
        EXPECT_FALSE(error) << "a file was left open";
    }
    CString Path(LPCTSTR name) const { return m_folder.Path(name).c_str(); }
    std::string Content(LPCTSTR name) const {
        CFile file(Path(name), CFile::modeRead | CFile::shareDenyNone);
        std::string content(static_cast<std::size_t>(file.GetLength()), '\0');
        EXPECT_EQ(content.size(), file.Read(content.data(), static_cast<UINT>(content.size())));
        return content;
    }

    testkit::TempFolder m_folder;
};

TEST_F(File, ReadsWritesAndMovesItsPosition) {
    CFile file(Path("data.bin"), CFile::modeCreate | CFile::modeReadWrite);
    file.Write("0123456789", 10);
    EXPECT_EQ(10u, file.GetLength());
    EXPECT_EQ(10u, file.GetPosition());
    EXPECT_EQ(7u, file.Seek(-3, CFile::end));
    char buffer[10] = {};
    EXPECT_EQ(3u, file.Read(buffer, 10)) << "only at the end fewer";
    EXPECT_STREQ("789", buffer);
    EXPECT_EQ(0u, file.Read(buffer, 10));
    file.SeekToBegin();
    EXPECT_EQ(2u, file.Seek(2, CFile::current));
    EXPECT_EQ(10u, file.SeekToEnd());
    EXPECT_EQ(CFileException::badSeek, CauseOf<CFileException>([&] { file.Seek(-1, CFile::begin); }));
    file.SetLength(4);
    EXPECT_EQ(4u, file.GetLength());
    EXPECT_EQ(4u, file.GetPosition());
    EXPECT_STREQ("data.bin|data|" + Path("data.bin"),
                 file.GetFileName() + "|" + file.GetFileTitle() + "|" + file.GetFilePath());
    const std::unique_ptr<CFile> second(file.Duplicate());
    file.Close();
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    second->SeekToBegin();
    EXPECT_EQ(4u, second->Read(buffer, 10)) << "still open";
}

TEST_F(File, ModesDecideWhatIsMadeAndKept) {
    m_folder.Write("a", "old");
    { CFile kept(Path("a"), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite); }
    EXPECT_EQ("old", Content("a"));
    { CFile made(Path("b"), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite); }
    EXPECT_EQ("", Content("b"));
    { CFile emptied(Path("a"), CFile::modeCreate | CFile::modeWrite); }
    EXPECT_EQ("", Content("a"));
    CFile readOnly(Path("a"), CFile::modeRead);
    EXPECT_EQ(CFileException::accessDenied, CauseOf<CFileException>([&] { readOnly.Write("x", 1); }));
    readOnly.Write("", 0);
}

TEST_F(File, FailuresTellCauseNumberAndName) {
    CFile file;
    CFileException error;
    const CString missing = Path("missing.txt");
    EXPECT_FALSE(file.Open(missing, CFile::modeRead, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, error.m_lOsError);
    EXPECT_TRUE(error.m_strFileName == missing);
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_FALSE(file.Open(missing, CFile::modeRead)) << "nobody to tell";
    EXPECT_EQ(CFileException::badPath, CauseOf<CFileException>([&] {
                  CFile none(Path("no folder\\x"), CFile::modeCreate | CFile::modeWrite);
              }));
    EXPECT_EQ(CFileException::fileNotFound, CauseOf<CFileException>([&] { CFile::Remove(missing); }));
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CFile::Rename(missing, Path("x")); }));
    CFileStatus status;
    EXPECT_FALSE(CFile::GetStatus(missing, status));
}

TEST_F(File, ShareFlagsKeepOthersOut) {
    const auto openSecond = [&](UINT firstShare, UINT secondMode) {
        CFile first(Path("shared"), CFile::modeCreate | CFile::modeReadWrite | firstShare);
        return CauseOf<CFileException>(
            [&] { CFile second(Path("shared"), secondMode | CFile::shareDenyNone); });
    };
    EXPECT_EQ(CFileException::sharingViolation, openSecond(CFile::shareExclusive, CFile::modeRead));
    EXPECT_EQ(CFileException::sharingViolation, openSecond(CFile::shareDenyWrite, CFile::modeWrite));
    EXPECT_EQ(-1, openSecond(CFile::shareDenyWrite, CFile::modeRead));
    EXPECT_EQ(CFileException::sharingViolation, openSecond(CFile::shareDenyRead, CFile::modeRead));
    EXPECT_EQ(-1, openSecond(CFile::shareDenyNone, CFile::modeReadWrite));
    CFile first(Path("locked"), CFile::modeCreate | CFile::modeReadWrite | CFile::shareDenyNone);
    first.Write("0123", 4);
    first.LockRange(0, 2);
    CFile second(Path("locked"), CFile::modeReadWrite | CFile::shareDenyNone);
    EXPECT_EQ(CFileException::lockViolation, CauseOf<CFileException>([&] { second.LockRange(1, 2); }));
    first.UnlockRange(0, 2);
    second.LockRange(1, 2);
    second.UnlockRange(1, 2);
}

TEST_F(File, StatusIsReadAndSet) {
    m_folder.Write("s.txt", "12345");
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(Path("s.txt"), status));
    EXPECT_EQ(5u, status.m_size);
    EXPECT_TRUE(Path("s.txt") == status.m_szFullName);
    status.m_mtime = CTime(1000000000);
    status.m_atime = CTime(1100000000);
    status.m_ctime = CTime(0); // left alone
    status.m_attribute = CFile::readOnly | CFile::hidden;
    CFile::SetStatus(Path("s.txt"), status);
    CFileStatus changed;
    ASSERT_TRUE(CFile::GetStatus(Path("s.txt"), changed));
    EXPECT_EQ(1000000000, changed.m_mtime.GetTime());
    EXPECT_NE(0, changed.m_attribute & CFile::readOnly);
    changed.m_attribute = CFile::normal;
    changed.m_mtime = CTime(1200000000);
    CFile::SetStatus(Path("s.txt"), changed); // also from read-only
    CFile::Rename(Path("s.txt"), Path("t.txt"));
    CFile file(Path("t.txt"), CFile::modeReadWrite);
    ASSERT_TRUE(file.GetStatus(changed));
    EXPECT_EQ(1200000000, changed.m_mtime.GetTime());
    EXPECT_EQ(5u, changed.m_size);
}

TEST_F(File, TextFilesHaveOneLineEndInMemory) {
    {
        CStdioFile file(Path("t.txt"), CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        file.WriteString("first\n");
        file.WriteString("\n" + CString('x', 2000) + "\nno end");
    }
    EXPECT_EQ("first\r\n\r\n" + std::string(2000, 'x') + "\r\nno end", Content("t.txt"));
    CStdioFile file(Path("t.txt"), CFile::modeRead);
    CString line;
    for (const CString& expected : {CString("first"), CString(), CString('x', 2000)}) {
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_TRUE(line == expected) << line;
    }
    char piece[5];
    EXPECT_EQ(piece, file.ReadString(piece, 5));
    EXPECT_STREQ("no e", piece);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ("nd", line);
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_TRUE(line.IsEmpty());
    EXPECT_EQ(nullptr, file.ReadString(piece, 5));
    file.SeekToBegin();
    EXPECT_EQ(piece, file.ReadString(piece, 5));
    EXPECT_STREQ("firs", piece);
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    file.Close();
    CStdioFile binary(Path("t.txt"), CFile::modeRead | CFile::typeBinary);
    char head[8] = {};
    EXPECT_EQ(7u, binary.Read(head, 7));
    EXPECT_STREQ("first\r\n", head);
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CStdioFile none(Path("none"), CFile::modeRead); }));
}

TEST_F(File, TextFileCanBeReadAndWrittenInTurn) {
    CStdioFile file(Path("rw.txt"), CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.WriteString("abcdef");
    file.Seek(2, CFile::begin);
    file.Write("XY", 2);
    EXPECT_EQ(6u, file.GetLength());
    file.SeekToBegin();
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_STREQ("abXYef", line);
    file.SetLength(3);
    EXPECT_EQ(3u, file.GetLength());
}

TEST(MemFile, GrowsAndFillsGapsWithZeros) {
    CMemFile file(16);
    file.Seek(100, CFile::begin);
    EXPECT_EQ(0u, file.GetLength()) << "seeking alone does not lengthen";
    file.Write("end", 3);
    EXPECT_EQ(103u, file.GetLength());
    file.SeekToBegin();
    char bytes[103];
    EXPECT_EQ(103u, file.Read(bytes, 200 - 97));
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(0, bytes[i]);
    EXPECT_EQ('e', bytes[100]);
    EXPECT_EQ(CFileException::badSeek, CauseOf<CFileException>([&] { file.Seek(-104, CFile::end); }));
    file.SetLength(10);
    EXPECT_EQ(10u, file.GetPosition()) << "no position behind the end is left";
    EXPECT_EQ(0u, file.Read(bytes, 1));
    BYTE* const memory = file.Detach();
    EXPECT_NE(nullptr, memory);
    EXPECT_EQ(0u, file.GetLength());
    free(memory);
}

TEST(MemFile, FixedMemoryIsNotExceeded) {
    BYTE memory[9] = "12345678";
    CMemFile file(memory, 4);
    EXPECT_EQ(4u, file.GetLength()) << "what it is given is its content";
    char bytes[9] = {};
    EXPECT_EQ(4u, file.Read(bytes, 8));
    EXPECT_STREQ("1234", bytes);
    file.SeekToBegin();
    file.Write("abcd", 4);
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.Write("x", 1); }));
    EXPECT_STREQ("abcd5678", reinterpret_cast<char*>(memory));
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(5); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.Duplicate(); }));
}

} // namespace
