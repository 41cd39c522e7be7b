#include <afxdlgs.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

/// A file dialog whose user presses Save as soon as it is there.
class CQuickSave : public CFileDialog {
public:
    explicit CQuickSave(LPCTSTR name, LPCTSTR extension = nullptr)
        : CFileDialog(FALSE, extension, name, OFN_HIDEREADONLY, "Text (*.txt)|*.txt|All (*.*)|*.*||") {}
    int initDone = 0;
    int asked = 0;
    int refusals = 0;
    CString pathWhileOpen;

protected:
    void OnInitDone() override {
        ++initDone;
        GetParent()->PostMessage(WM_COMMAND, IDOK);
    }
    BOOL OnFileNameOK() override {
        ++asked;
        pathWhileOpen = GetPathName();
        if (asked <= refusals) {
            GetParent()->PostMessage(WM_COMMAND, asked < refusals ? IDOK : IDCANCEL);
            return TRUE;
        }
        return FALSE;
    }
};

TEST(FileDialog, TellsThePartsOfTheNameChosen) {
    char folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    const std::string name = std::string(folder) + "some.notes.txt";
    CQuickSave dialog(name.c_str());
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(1, dialog.initDone);
    EXPECT_EQ(1, dialog.asked);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_STREQ("some.notes.txt", dialog.GetFileName());
    EXPECT_STREQ("txt", dialog.GetFileExt());
    EXPECT_STREQ("some.notes", dialog.GetFileTitle());
    EXPECT_EQ(0, dialog.GetPathName().CompareNoCase(name.c_str()));
    EXPECT_EQ(0, dialog.pathWhileOpen.CompareNoCase(name.c_str()));
    EXPECT_FALSE(dialog.GetReadOnlyPref());
    POSITION position = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetPathName(), dialog.GetNextPathName(position));
    EXPECT_EQ(nullptr, position) << "one file only";
}

TEST(FileDialog, NameCanBeRefused) {
    CQuickSave dialog("refused", "txt");
    dialog.refusals = 2;
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(2, dialog.asked) << "the dialog stayed open after the first refusal";
    EXPECT_EQ(0u, ::CommDlgExtendedError());
}

TEST(FileDialog, FilterAndNamesAreKept) {
    CFileDialog dialog(TRUE, "csv", "start.csv", 0, "Tables|*.csv|All|*.*");
    const char expected[] = "Tables\0*.csv\0All\0*.*\0\0";
    EXPECT_EQ(0, std::memcmp(expected, dialog.m_ofn.lpstrFilter, sizeof(expected) - 1))
        << "ends with two zeros";
    EXPECT_STREQ("start.csv", dialog.m_ofn.lpstrFile);
    const std::string longName(5000, 'n');
    CFileDialog cut(TRUE, nullptr, longName.c_str());
    EXPECT_EQ(MAX_PATH - 1u, std::strlen(cut.m_ofn.lpstrFile));
}

TEST(FileDialog, SeveralFilesAreListedOneByOne) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    char chosen[] = "C:\\data\0one.csv\0two.csv\0";
    dialog.m_ofn.lpstrFile = chosen;
    dialog.m_ofn.nFileOffset = 8;
    std::vector<std::string> paths;
    for (POSITION position = dialog.GetStartPosition(); position != nullptr;)
        paths.push_back(static_cast<LPCTSTR>(dialog.GetNextPathName(position)));
    EXPECT_EQ((std::vector<std::string>{"C:\\data\\one.csv", "C:\\data\\two.csv"}), paths);

    char root[] = "C:\\\0one.csv\0";
    dialog.m_ofn.lpstrFile = root;
    dialog.m_ofn.nFileOffset = 4;
    POSITION position = dialog.GetStartPosition();
    EXPECT_STREQ("C:\\one.csv", dialog.GetNextPathName(position));
    EXPECT_EQ(nullptr, position);

    char single[] = "C:\\data\\only.csv";
    dialog.m_ofn.lpstrFile = single;
    dialog.m_ofn.nFileOffset = 8;
    position = dialog.GetStartPosition();
    EXPECT_STREQ("C:\\data\\only.csv", dialog.GetNextPathName(position));
    EXPECT_EQ(nullptr, position);
}

TEST(ColorDialog, StartsWithItsColourAndReturnsTheUsersAnswer) {
    // OnColorOK() and SetCurrentColor() cannot be shown here: Wine's dialog knows neither message.
    class CQuickColour : public CColorDialog {
    public:
        explicit CQuickColour(WPARAM button) : CColorDialog(RGB(10, 20, 30), CC_FULLOPEN), m_button(button) {}
        BOOL OnInitDialog() override {
            CColorDialog::OnInitDialog();
            PostMessage(WM_COMMAND, m_button);
            return TRUE;
        }

    private:
        WPARAM m_button;
    };
    CQuickColour accepted(IDOK);
    EXPECT_EQ(IDOK, accepted.DoModal());
    EXPECT_EQ(RGB(10, 20, 30), accepted.GetColor());
    EXPECT_EQ(nullptr, accepted.m_hWnd);
    CQuickColour cancelled(IDCANCEL);
    EXPECT_EQ(IDCANCEL, cancelled.DoModal());
}

TEST(FontDialog, StartsWithTheFontGivenAndReturnsIt) {
    class CQuickFont : public CFontDialog {
    public:
        explicit CQuickFont(LPLOGFONT initial) : CFontDialog(initial) {}
        BOOL OnInitDialog() override {
            CFontDialog::OnInitDialog();
            PostMessage(WM_COMMAND, IDOK);
            return TRUE;
        }
    };
    LOGFONT initial{};
    initial.lfHeight = -16;
    initial.lfWeight = FW_BOLD;
    initial.lfCharSet = DEFAULT_CHARSET;
    HDC const screen = ::GetDC(nullptr);
    ::GetTextFace(screen, LF_FACESIZE, initial.lfFaceName);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    CQuickFont dialog(&initial);
    ASSERT_EQ(IDOK, dialog.DoModal());
    LOGFONT chosen{};
    dialog.GetCurrentFont(&chosen);
    EXPECT_FALSE(dialog.GetFaceName().IsEmpty());
    EXPECT_EQ(dialog.IsBold(), chosen.lfWeight > FW_NORMAL);
    EXPECT_NEAR(16 * 720 / dpi, dialog.GetSize(), 10);
}

} // namespace
