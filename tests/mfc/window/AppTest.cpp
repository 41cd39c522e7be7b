// SPDX-License-Identifier: MIT
// CWinApp: profile data, command line, names, message boxes, the hourglass.

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/mfc/window/WindowKit.h"
#include "tests/support/ImportHook.h"
#include "tests/support/TempFolder.h"

namespace {

void SetName(LPCTSTR& name, LPCTSTR text) {
    std::free(const_cast<LPTSTR>(name));
    name = _tcsdup(text);
}

/// Profile data in the registry (true) and in an INI file.
class ProfileTest : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        if (GetParam()) {
            app.SetRegistryKey(_T("Kavlix window tests"));
            EXPECT_STREQ(app.m_pszProfileName, _T("Scoped"));
        } else {
            // The system keeps UTF-16 in an INI file that begins with the byte-order mark, otherwise the code page.
            const char* const start = sizeof(TCHAR) > 1 ? "\xFF\xFE" : "";
            SetName(app.m_pszProfileName, CString(folder.Write("profile.ini", start).c_str()));
        }
    }
    void TearDown() override {
        if (GetParam()) {
            app.WriteProfileString(_T("Section"), nullptr, nullptr);
            ::RegDeleteKey(HKEY_CURRENT_USER, _T("Software\\Kavlix window tests\\Scoped"));
            ::RegDeleteKey(HKEY_CURRENT_USER, _T("Software\\Kavlix window tests"));
        }
    }

    windowkit::ScopedApp app;
    testkit::TempFolder folder;
};

INSTANTIATE_TEST_SUITE_P(Homes, ProfileTest, testing::Bool());

} // namespace

TEST_P(ProfileTest, ValuesComeBackAsTheyWereWritten) {
    EXPECT_EQ(app.GetProfileInt(_T("Section"), _T("Number"), 31), 31u);
    EXPECT_TRUE(app.WriteProfileInt(_T("Section"), _T("Number"), -5));
    EXPECT_EQ(static_cast<int>(app.GetProfileInt(_T("Section"), _T("Number"), 31)), -5);

    EXPECT_STREQ(app.GetProfileString(_T("Section"), _T("Text"), _T("fallback")), _T("fallback"));
    const CString longText('x', 9000);
    EXPECT_TRUE(app.WriteProfileString(_T("Section"), _T("Text"), longText));
    EXPECT_EQ(app.GetProfileString(_T("Section"), _T("Text"), _T("fallback")), longText);

    EXPECT_TRUE(app.WriteProfileString(_T("Section"), testkit::kScripts, testkit::kScripts));
    EXPECT_STREQ(app.GetProfileString(_T("Section"), testkit::kScripts), testkit::kScripts);

    BYTE bytes[] = {0, 1, 0x7F, 0x80, 0xFF};
    EXPECT_TRUE(app.WriteProfileBinary(_T("Section"), _T("Bytes"), bytes, sizeof(bytes)));
    LPBYTE read = nullptr;
    UINT count = 0;
    ASSERT_TRUE(app.GetProfileBinary(_T("Section"), _T("Bytes"), &read, &count));
    EXPECT_EQ(std::vector<BYTE>(read, read + count), std::vector<BYTE>(bytes, bytes + sizeof(bytes)));
    delete[] read;
}

TEST_P(ProfileTest, NothingInThePlaceOfAValueOrNameDeletes) {
    app.WriteProfileString(_T("Section"), _T("One"), _T("1"));
    app.WriteProfileString(_T("Section"), _T("Two"), _T("2"));
    EXPECT_TRUE(app.WriteProfileString(_T("Section"), _T("One"), nullptr));
    EXPECT_STREQ(app.GetProfileString(_T("Section"), _T("One"), _T("gone")), _T("gone"));
    EXPECT_TRUE(app.WriteProfileString(_T("Section"), nullptr, nullptr));
    EXPECT_STREQ(app.GetProfileString(_T("Section"), _T("Two"), _T("gone")), _T("gone"));
}

TEST(CommandLineTest, FlagsAndNamesAreSorted) {
    const auto parsed = [](CCommandLineInfo& info, std::vector<std::pair<LPCTSTR, BOOL>> parameters) {
        for (std::size_t i = 0; i < parameters.size(); ++i)
            info.ParseParam(parameters[i].first, parameters[i].second, i + 1 == parameters.size());
        return info.m_nShellCommand;
    };
    CCommandLineInfo open, print;
    EXPECT_EQ(parsed(open, {{_T("a file.txt"), FALSE}}), CCommandLineInfo::FileOpen);
    EXPECT_STREQ(open.m_strFileName, _T("a file.txt"));
    EXPECT_EQ(parsed(print, {{_T("pt"), TRUE},
                             {_T("f"), FALSE},
                             {_T("printer"), FALSE},
                             {_T("driver"), FALSE},
                             {_T("port"), FALSE}}),
              CCommandLineInfo::FilePrintTo);
    EXPECT_STREQ(print.m_strFileName + _T("|") + print.m_strPrinterName + _T("|") + print.m_strPortName,
                 _T("f|printer|port"));
}

namespace {

LPCWSTR g_line = nullptr;
LPWSTR WINAPI CommandLineOfTest() {
    return const_cast<LPWSTR>(g_line);
}

} // namespace

TEST(CommandLineTest, QuotedWordsAreOne) {
    const testkit::ImportHook hook("KavlixMfc.dll", "GetCommandLineW",
                                   reinterpret_cast<void*>(&CommandLineOfTest));
    ASSERT_TRUE(hook.Installed());
    const CString name = testkit::kScripts + CString(".txt");
    const CString line = "x.exe \"" + name + "\"";
    const std::wstring scripts(line.GetString(), line.GetString() + line.GetLength());
    const struct {
        LPCWSTR line;
        int command;
        CString file, printer;
    } cases[] = {
        {L"x.exe", CCommandLineInfo::FileNew, "", ""},
        {L"\"C:\\my programs\\x.exe\" /p \"a \\\"b\\\" c.txt\"", CCommandLineInfo::FilePrint, "a \"b\" c.txt",
         ""},
        {L"x.exe -pt f.txt \"the printer\" d p", CCommandLineInfo::FilePrintTo, "f.txt", "the printer"},
        {scripts.c_str(), CCommandLineInfo::FileOpen, name, ""},
    };
    for (const auto& c : cases) {
        g_line = c.line;
        CCommandLineInfo info;
        windowkit::ScopedApp().ParseCommandLine(info);
        EXPECT_EQ(info.m_nShellCommand, c.command) << c.line;
        EXPECT_EQ(info.m_strFileName, c.file);
        EXPECT_EQ(info.m_strPrinterName, c.printer);
    }
}

#ifdef _UNICODE
TEST(CommandLineTest, WinMainPassesWhatFollowsTheProgramsName) {
    struct App : windowkit::ScopedApp {
        CString arguments;
        BOOL InitInstance() override {
            arguments = m_lpCmdLine;
            return FALSE;
        }
        int ExitInstance() override { return 5; }
    };
    const testkit::ImportHook hook("mfc_windowU.exe", "GetCommandLineW",
                                   reinterpret_cast<void*>(&CommandLineOfTest));
    ASSERT_TRUE(hook.Installed());
    const std::pair<LPCWSTR, LPCWSTR> cases[] = {
        {L"\"C:\\my programs\\x.exe\"  /p \"\u65E5 \u0416\"", L"/p \"\u65E5 \u0416\""},
        {L"C:\\my\" \"programs\\x.exe\t a b", L"a b"},
        {L"x.exe", L""},
        {L"\"x.exe", L""}};
    for (const auto& [line, arguments] : cases) {
        g_line = line;
        App app;
        EXPECT_EQ(WinMain(AfxGetInstanceHandle(), nullptr, nullptr, SW_HIDE), 5);
        EXPECT_STREQ(app.arguments, arguments);
    }
    AfxWinInit(AfxGetInstanceHandle(), nullptr, ::GetCommandLine(),
               SW_HIDE); // WinMain ended the class library
}
#endif

TEST(AppTest, TheProgramIsKnownByItsNames) {
    CWinApp* const app = AfxGetApp();
    TCHAR path[MAX_PATH] = _T("");
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    const CString stem = CString(path).Left(CString(path).ReverseFind('.'));
    const CString name = stem.Mid(stem.ReverseFind('\\') + 1);
    EXPECT_EQ(app->m_pszExeName, name);
    EXPECT_EQ(app->m_pszProfileName, name + _T(".INI"));
    EXPECT_EQ(app->m_pszHelpFilePath, stem + _T(".HLP"));
}

TEST(AppTest, TheHourglassIsCounted) {
    windowkit::ScopedApp app;
    const HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT);
    const HCURSOR before = ::LoadCursor(nullptr, IDC_CROSS);
    ::SetCursor(before);
    {
        const CWaitCursor outer;
        EXPECT_EQ(::GetCursor(), wait);
        { const CWaitCursor inner; }
        EXPECT_EQ(::GetCursor(), wait);
    }
    EXPECT_EQ(::GetCursor(), before);
}
