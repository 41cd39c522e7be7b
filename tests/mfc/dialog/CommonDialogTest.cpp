// SPDX-License-Identifier: MIT
// The system's file, colour and font dialogs. A user presses a button in each at once. How they take that
// was only seen under Wine.

#include <afxdlgs.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/support/SeenUnderWine.h"

namespace {

/// A dialog of the system. Its user presses `button` at once.
template <class DIALOG> class Quick : public DIALOG {
public:
    template <class... ARGUMENTS> explicit Quick(WPARAM button, ARGUMENTS... arguments)
        : DIALOG(arguments...), m_button(button) {}
    BOOL OnInitDialog() override {
        DIALOG::OnInitDialog();
        this->PostMessage(WM_COMMAND, m_button);
        return TRUE;
    }

private:
    WPARAM m_button;
};

/// A file dialog. Its user presses Save at once.
class CQuickSave : public CFileDialog {
public:
    explicit CQuickSave(LPCTSTR name, LPCTSTR extension = nullptr)
        : CFileDialog(FALSE, extension, name, OFN_HIDEREADONLY, _T("Text (*.txt)|*.txt|All (*.*)|*.*||")) {}
    int asked = 0;
    int refusals = 0;

protected:
    void OnInitDone() override { GetParent()->PostMessage(WM_COMMAND, IDOK); }
    BOOL OnFileNameOK() override {
        ++asked;
        if (asked <= refusals) {
            GetParent()->PostMessage(WM_COMMAND, asked < refusals ? IDOK : IDCANCEL);
            return TRUE;
        }
        return FALSE;
    }
};

TEST(FileDialog, TellsThePartsOfTheNameChosen) {
    const testkit::SeenUnderWine inside;
    TCHAR folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    const CString name = folder + CString("some.notes.txt");
    CQuickSave dialog(name);
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_STREQ(_T("some.notes.txt|txt|some.notes"),
                 dialog.GetFileName() + "|" + dialog.GetFileExt() + "|" + dialog.GetFileTitle());
    EXPECT_EQ(0, dialog.GetPathName().CompareNoCase(name));

    CQuickSave refusing(_T("refused"), _T("txt"));
    refusing.refusals = 2;
    EXPECT_EQ(IDCANCEL, refusing.DoModal());
    EXPECT_EQ(2, refusing.asked) << "the dialog stayed open after the first refusal";
}

TEST(FileDialog, FilterAndNamesAreKept) {
    CFileDialog dialog(TRUE, _T("csv"), _T("start.csv"), 0, _T("Tables|*.csv|All|*.*"));
    const TCHAR expected[] = _T("Tables\0*.csv\0All\0*.*\0\0");
    EXPECT_EQ(0, std::memcmp(expected, dialog.m_ofn.lpstrFilter, sizeof(expected) - sizeof(TCHAR)))
        << "ends with two zeros";
    EXPECT_STREQ(_T("start.csv"), dialog.m_ofn.lpstrFile);
}

TEST(FileDialog, SeveralFilesAreListedOneByOne) {
    using namespace std::string_literals;
    struct {
        AfxText file;
        WORD offset;
        std::vector<AfxText> paths;
    } cases[] = {
        {_T("C:\\data\0one.csv\0two.csv\0"s), 8, {_T("C:\\data\\one.csv"), _T("C:\\data\\two.csv")}},
        {_T("C:\\data\\only.csv"s), 8, {_T("C:\\data\\only.csv")}},
    };
    for (auto& c : cases) {
        CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
        dialog.m_ofn.lpstrFile = c.file.data();
        dialog.m_ofn.nFileOffset = c.offset;
        std::vector<AfxText> paths;
        for (POSITION position = dialog.GetStartPosition(); position != nullptr;)
            paths.push_back(dialog.GetNextPathName(position).GetString());
        EXPECT_EQ(c.paths, paths);
    }
}

TEST(ColorDialog, StartsWithItsColourAndReturnsTheUsersAnswer) {
    const testkit::SeenUnderWine inside;
    // OnColorOK() and SetCurrentColor() have no test: Wine's dialog does not support their messages.
    Quick<CColorDialog> accepted(IDOK, RGB(10, 20, 30), CC_FULLOPEN);
    EXPECT_EQ(IDOK, accepted.DoModal());
    EXPECT_EQ(RGB(10, 20, 30), accepted.GetColor());
}

TEST(FontDialog, StartsWithTheFontGivenAndReturnsIt) {
    const testkit::SeenUnderWine inside;
    LOGFONT initial{};
    initial.lfHeight = -16;
    initial.lfWeight = FW_BOLD;
    initial.lfCharSet = DEFAULT_CHARSET;
    HDC const screen = ::GetDC(nullptr);
    ::GetTextFace(screen, LF_FACESIZE, initial.lfFaceName);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    Quick<CFontDialog> dialog(IDOK, &initial);
    ASSERT_EQ(IDOK, dialog.DoModal());
    LOGFONT chosen{};
    dialog.GetCurrentFont(&chosen);
    EXPECT_FALSE(dialog.GetFaceName().IsEmpty());
    EXPECT_EQ(dialog.IsBold(), chosen.lfWeight > FW_NORMAL);
    EXPECT_NEAR(16 * 720 / dpi, dialog.GetSize(), 10);
}

} // namespace
