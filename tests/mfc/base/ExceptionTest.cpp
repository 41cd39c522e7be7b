// SPDX-License-Identifier: MIT
// Exceptions across the border of the DLL, the macros of old programs, and the texts for users.

#include <afxtempl.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

#include "tests/mfc/base/BaseTestIds.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/Refusal.h"
#include "tests/support/Utf8.h"

namespace {

/// Counts its objects.
class CCountedException : public CException {
    DECLARE_DYNAMIC(CCountedException)
public:
    explicit CCountedException(BOOL autoDelete = TRUE) : CException(autoDelete) { ++alive; }
    ~CCountedException() override { --alive; }
    static inline int alive = 0;
};
IMPLEMENT_DYNAMIC(CCountedException, CException)

class CSpecialException : public CCountedException {
    DECLARE_DYNAMIC(CSpecialException)
};
IMPLEMENT_DYNAMIC(CSpecialException, CCountedException)

std::string MessageOf(CException&& exception) {
    TCHAR text[256] = _T("untouched");
    const BOOL told = exception.GetErrorMessage(text, _countof(text));
    return told ? testkit::Utf8(text) : "(none)";
}

TEST(Exception, CrossesTheDllBorderByItsOwnTypeAndByItsBases) {
    EXPECT_TRUE(Throws<CMemoryException>([] { AfxThrowMemoryException(); }));
    EXPECT_TRUE(Throws<CSimpleException>([] { AfxThrowResourceException(); }));
    EXPECT_TRUE(Throws<CException>([] { AfxThrowFileException(CFileException::diskFull); }));
    try {
        AfxThrowArchiveException(CArchiveException::badClass, _T("name"));
    } catch (CFileException*) {
        ADD_FAILURE() << "another type";
    } catch (CArchiveException* exception) {
        EXPECT_STREQ(_T("name"), exception->m_strFileName);
        exception->Delete();
    }
}

TEST(ExceptionMacros, TheFirstFittingBlockCatchesAndDeletes) {
    std::string seen;
    TRY {
        THROW(new CSpecialException);
    }
    CATCH(CFileException, e) {
        seen += "file";
        e->ReportError();
    }
    AND_CATCH(CCountedException, e) {
        seen += e->GetRuntimeClass()->m_lpszClassName;
        EXPECT_EQ(1, CCountedException::alive);
    }
    AND_CATCH_ALL(e) {
        seen += "all";
        e->ReportError();
    }
    END_CATCH_ALL
    EXPECT_EQ("CSpecialException", seen);
    EXPECT_EQ(0, CCountedException::alive) << "the macro deletes it";
}

TEST(Exception, MessagesAreCutToTheirBuffer) {
    CFileException file(CFileException::fileNotFound, -1, _T("C:\\data.csv"));
    EXPECT_EQ("C:\\data.csv was not found.", MessageOf(std::move(file)));
    EXPECT_NE("(none)", MessageOf(CFileException(4711))) << "an unknown cause reads as the generic one";
    EXPECT_NE(std::string::npos,
              MessageOf(CArchiveException(CArchiveException::endOfFile, _T("a.bin"))).find("a.bin"));

    TCHAR small[] = _T("1234567");
    EXPECT_TRUE(file.GetErrorMessage(small, 4));
    EXPECT_STREQ(_T("C:\\"), small);
    EXPECT_STREQ(_T("567"), small + 4) << "nothing behind the limit is touched";
}

TEST(Exception, ReportErrorShowsTheTextOrSaysThereIsNone) {
    testkit::MessageBoxWatcher watcher(IDYES);
    CFileException file(CFileException::accessDenied, -1, _T("x.txt"));
    EXPECT_EQ(IDYES, file.ReportError(MB_YESNO));
    CCountedException silent;
    silent.ReportError();
    silent.ReportError(MB_OK, IDS_BASE_PLAIN);
    std::string told;
    for (const auto& box : watcher.Boxes())
        told += box.text + "|";
    EXPECT_EQ("Access to x.txt was denied.|No error message is available|"
              "A text from the resources|",
              told);
}

} // namespace
