// SPDX-License-Identifier: MIT
// The recorder program as its user meets it: status bar, recent files, settings, set-up, recording.
#include "stdafx.h"

#include "Recorder.h"

#include "tests/client/User.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/SeenUnderWine.h"

#include <afxpriv.h>
#include <dlgs.h>

namespace {

CMainFrame& Frame() {
    return *static_cast<CMainFrame*>(AfxGetMainWnd());
}

CStatusBar& Bar() {
    return Frame().m_wndStatusBar;
}

/// What a part of the status bar shows. The first part is the message line.
CString Shown(int pane) {
    return Bar().GetStatusBarCtrl().GetText(pane);
}

/// The place of a child in the client area of the frame.
CRect PlaceOf(const CWnd& child) {
    CRect place;
    child.GetWindowRect(&place);
    Frame().ScreenToClient(&place);
    return place;
}

CString TextOf(HWND window) {
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    return text;
}

CPropertySheet* SheetOf(HWND popup) {
    return DYNAMIC_DOWNCAST(CPropertySheet, CWnd::FromHandlePermanent(popup));
}

void SetRate(CPropertySheet* sheet, LPCTSTR rate) {
    sheet->GetPage(0)->SetDlgItemText(IDC_RATE, rate);
}

bool CanApply(CPropertySheet* sheet) {
    return ::IsWindowEnabled(::GetDlgItem(*sheet, ID_APPLY_NOW)) != FALSE;
}

/// A bar that sets its panes while it is created.
class EarlyBar : public CStatusBar {
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = CStatusBar::WindowProc(message, wParam, lParam);
        const UINT pane = AFX_IDS_IDLEMESSAGE;
        return message == WM_CREATE && !SetIndicators(&pane, 1) ? -1 : result;
    }
};

/// A sheet that ends while it is created.
class BriefSheet : public CSettingsSheet {
    BOOL OnInitDialog() override { EndDialog(55); return CSettingsSheet::OnInitDialog(); }
};

class Recorder : public RunningClient {
protected:
    void SetUp() override {
        ::GetTempPath(MAX_PATH, m_folder.GetBuffer(MAX_PATH));
        m_folder.ReleaseBuffer();
        m_folder += _T("kavlix recorder with a folder whose name is long\\");
        ::CreateDirectory(m_folder, nullptr);
        RunningClient::SetUp();
    }
    void TearDown() override {
        RunningClient::TearDown();
        for (const CString& file : m_files)
            ::DeleteFile(file);
        ::RemoveDirectory(m_folder);
        theApp.WriteProfileString(_T("Recent File List"), nullptr, nullptr);
    }
    CString MakeFile(LPCTSTR name) {
        m_files.push_back(m_folder + name);
        CFile(m_files.back(), CFile::modeCreate | CFile::modeWrite);
        return m_files.back();
    }
    /// Chooses a file in the system's dialog.
    static void PickFile(const CString& path) {
        User user({[&](HWND popup) {
            ::SendMessage(popup, CDM_SETCONTROLTEXT, cmb13, reinterpret_cast<LPARAM>(path.GetString()));
            ::SendMessage(popup, CDM_SETCONTROLTEXT, edt1, reinterpret_cast<LPARAM>(path.GetString()));
            ::PostMessage(popup, WM_COMMAND, IDOK, 0);
        }});
        User::Choose(ID_FILE_OPEN);
    }
    /// The items of the file menu between Open and Exit.
    static std::vector<CString> RecentFiles() {
        CMenu& menu = User::Open(0);
        std::vector<CString> items;
        for (UINT i = 2; i + 2 < menu.GetMenuItemCount(); ++i) {
            items.emplace_back();
            menu.GetMenuString(i, items.back(), MF_BYPOSITION);
        }
        return items;
    }
    CString m_folder;
    std::vector<CString> m_files;
};

TEST_F(Recorder, StatusBarStandsBelowTheViewAndFollowsCommands) {
    CRect client;
    Frame().GetClientRect(&client);
    const CRect bar = PlaceOf(Bar());
    EXPECT_EQ(CRect(0, bar.top, client.right, client.bottom), bar);
    EXPECT_TRUE(bar.Height() > 14 && bar.Height() < 40) << bar.Height();
    EXPECT_EQ(CRect(0, 0, client.right, bar.top), PlaceOf(Frame().m_wndView));
    CRect room;
    Frame().RepositionBars(0, 0xFFFF, 0, CWnd::reposQuery, &room);
    EXPECT_EQ(PlaceOf(Frame().m_wndView), room);

    User::Choose(ID_VIEW_STATUS_BAR);
    EXPECT_EQ(client, PlaceOf(Frame().m_wndView));
    EXPECT_EQ(0u, User::Open(1).GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED);
    Frame().ShowControlBar(&Bar(), TRUE, TRUE);
    EXPECT_FALSE(Bar().IsWindowVisible()) << "not before the program is idle";
    User::Pump();
    EXPECT_TRUE(Bar().IsWindowVisible());
    EXPECT_NE(0u, User::Open(1).GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED);
    Frame().MoveWindow(20, 20, 600, 320);
    Frame().GetClientRect(&client);
    EXPECT_EQ(CRect(0, client.bottom - bar.Height(), client.right, client.bottom), PlaceOf(Bar()));

    CRect samples;
    CRect message;
    Bar().GetItemRect(0, &message);
    Bar().GetItemRect(1, &samples);
    const int grown = samples.Width();
    Bar().SetPaneInfo(1, ID_INDICATOR_SAMPLES, SBPS_NORMAL, 200);
    Bar().GetItemRect(1, &samples);
    EXPECT_TRUE(samples.Width() >= 200 && samples.Width() < 220 && grown < 200) << samples.Width();
    CRect narrower;
    Bar().GetItemRect(0, &narrower);
    EXPECT_EQ(samples.Width() - grown, message.Width() - narrower.Width()) << "the message line stretches";
}

TEST_F(Recorder, PanesShowMessagesStatesAndKeys) {
    const auto select = [](UINT command, UINT flags, LPARAM menu) {
        Frame().SendMessage(WM_MENUSELECT, MAKEWPARAM(command, flags), menu);
        return Shown(0);
    };
    EXPECT_STREQ(_T("Ready"), Shown(0));
    EXPECT_STREQ(_T("Records for a moment"), select(ID_RECORD_START, 0, 1));
    EXPECT_STREQ(_T(""), select(ID_VIEW_NOTE, 0, 1)) << "no message of its own";
    EXPECT_STREQ(_T("Changes the window size"), select(SC_SIZE, MF_SYSMENU, 1));
    EXPECT_STREQ(_T("Ready"), select(0, 0xFFFF, 0));
    Frame().SetMessageText(_T("Calibrating"));
    EXPECT_STREQ(_T("Calibrating"), TextOf(Bar()));
    Frame().SetMessageText(AFX_IDS_DESKACCESSORY);
    EXPECT_STREQ(_T("Opens the selected item"), Bar().GetPaneText(0));
    EXPECT_EQ(static_cast<LRESULT>(AFX_IDS_DESKACCESSORY),
              Frame().SendMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE));

    const int samples = Bar().CommandToIndex(ID_INDICATOR_SAMPLES);
    EXPECT_STREQ(_T("0 samples"), Bar().GetPaneText(samples));
    EXPECT_STREQ(_T(""), Shown(samples)) << "disabled";
    Frame().m_nSamples = 7;
    BYTE keys[256] = {};
    keys[VK_CAPITAL] = 1;
    ::SetKeyboardState(keys);
    User::Pump();
    EXPECT_STREQ(_T("7 samples"), Shown(samples));
    EXPECT_STREQ(_T("CAP||"), Shown(2) + _T("|") + Shown(3) + _T("|") + Shown(4));
    keys[VK_CAPITAL] = 0;
    keys[VK_SCROLL] = 1;
    ::SetKeyboardState(keys);
    User::Pump();
    EXPECT_STREQ(_T("||SCRL"), Shown(2) + _T("|") + Shown(3) + _T("|") + Shown(4));
    keys[VK_SCROLL] = 0;
    ::SetKeyboardState(keys);

    Bar().SetPaneText(0, _T("later"), FALSE);
    EXPECT_STREQ(_T("Ready"), Shown(0));
    Bar().RedrawWindow();
    EXPECT_STREQ(_T("later"), Shown(0));
    EXPECT_FALSE(Bar().SetPaneText(9, _T("")));

    auto* const second = new CMainFrame; // not the main window
    ASSERT_TRUE(second->LoadFrame(IDR_MAINFRAME));
    second->ShowWindow(SW_SHOWNA);
    second->m_nSamples = 8;
    User::Pump();
    EXPECT_STREQ(_T("8 samples"), second->m_wndStatusBar.GetPaneText(samples));
    second->DestroyWindow();

    EarlyBar early;
    ASSERT_TRUE(early.Create(&Frame(), WS_CHILD, 1));
    EXPECT_STREQ(_T("Ready"), early.GetStatusBarCtrl().GetText(0));
}

TEST_F(Recorder, MenuIsUpToDateBehindItemsThatItsHandlersRemove) {
    CMenu& menu = User::Open(2);
    EXPECT_EQ(2u, menu.GetMenuItemCount());
    EXPECT_EQ(0u, menu.GetMenuState(ID_RECORD_START, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_NE(0u, menu.GetMenuState(ID_RECORD_CLEAR, MF_BYCOMMAND) & MF_GRAYED) << "nothing is recorded";
}

TEST_F(Recorder, RecentFilesOutliveTheProgram) {
    EXPECT_EQ(std::vector<CString>{_T("Recent File")}, RecentFiles());
    EXPECT_NE(0u, User::Open(0).GetMenuState(ID_FILE_MRU_FILE1, MF_BYCOMMAND) & MF_GRAYED);
    for (const LPCTSTR name : {_T("one.csv"), _T("two.csv"), _T("here & now.csv"), _T("four.csv")})
        MakeFile(name);
    PickFile(m_files[0]);
    ONLY_SEEN_UNDER_WINE(EXPECT_STREQ(_T("one.csv"), Frame().m_strFile) << "chosen in the system's dialog");
    for (const CString& file : m_files)
        theApp.AddToRecentFileList(file);
    theApp.AddToRecentFileList(m_files[1]);
    ::SetCurrentDirectory(m_folder);
    const std::vector<CString> expected{_T("&1 two.csv"), _T("&2 four.csv"), _T("&3 here && now.csv"), _T("&4 one.csv")};
    EXPECT_EQ(expected, RecentFiles());
    ::SetCurrentDirectory(_T("\\"));
    CString item = RecentFiles()[1];
    EXPECT_TRUE(item.GetLength() <= 3 + AFX_ABBREV_FILENAME_LEN && item.Find(_T("...\\four.csv")) > 0) << item.GetString();

    RunningClient::TearDown(); // the program ends and starts again
    RunningClient::SetUp();
    ::DeleteFile(m_files[3]);
    ::SetCurrentDirectory(m_folder);
    EXPECT_EQ(expected, RecentFiles());
    User::Choose(ID_FILE_MRU_FILE3);
    EXPECT_STREQ(_T("here & now.csv"), Frame().m_strFile);
    User::Choose(ID_FILE_MRU_FILE3); // four.csv is gone
    EXPECT_STREQ(_T("here & now.csv"), Frame().m_strFile);
    const std::vector<CString> left{_T("&1 here && now.csv"), _T("&2 two.csv"), _T("&3 one.csv")};
    EXPECT_EQ(left, RecentFiles());
    for (const CString& file : m_files)
        ::DeleteFile(file);
    for (std::size_t i = 0; i < left.size(); ++i)
        User::Choose(ID_FILE_MRU_FILE1);
    EXPECT_EQ(std::vector<CString>{_T("Recent File")}, RecentFiles()) << "all are gone";
    ::SetCurrentDirectory(_T("\\"));
}

TEST_F(Recorder, OldFileDialogTellsItsSelection) {
    MakeFile(_T("old.csv"));
    ::SetCurrentDirectory(m_folder);
    Frame().m_bOldDialog = TRUE;
    User user({[](HWND popup) {
        ::SendDlgItemMessage(popup, lst1, LB_SETCURSEL, 0, 0);
        ::SendMessage(popup, WM_COMMAND, MAKEWPARAM(lst1, LBN_SELCHANGE),
                      reinterpret_cast<LPARAM>(::GetDlgItem(popup, lst1)));
        ::PostMessage(popup, WM_COMMAND, IDOK, 0);
    }});
    User::Choose(ID_FILE_OPEN);
    ONLY_SEEN_UNDER_WINE(EXPECT_STREQ(_T("item 0"), Frame().m_strSeen)); // the insides of the system's dialog
    ONLY_SEEN_UNDER_WINE(EXPECT_STREQ(_T("old.csv"), Frame().m_strFile));
    ::SetCurrentDirectory(_T("\\"));

    CPickDlg several(nullptr, TRUE);
    several.m_ofn.Flags |= OFN_ALLOWMULTISELECT;
    ::lstrcpy(several.m_ofn.lpstrFile, _T("C:\\DATA A.CSV B.CSV"));
    CString paths;
    for (POSITION at = several.GetStartPosition(); at != nullptr;)
        paths += several.GetNextPathName(at) + _T("|");
    EXPECT_STREQ(_T("C:\\DATA\\A.CSV|C:\\DATA\\B.CSV|"), paths);
}

TEST_F(Recorder, SettingsAreAppliedPageByPage) {
    User user({[](HWND popup) {
                   CPropertySheet* const sheet = SheetOf(popup);
                   ASSERT_NE(nullptr, sheet);
                   EXPECT_FALSE(Frame().IsWindowEnabled());
                   EXPECT_STREQ(_T("Settings"), TextOf(popup));
                   EXPECT_EQ(2, sheet->GetPageCount());
                   EXPECT_EQ(2, sheet->GetTabControl()->GetItemCount());
                   CTabCtrl own;
                   EXPECT_TRUE(own.SubclassWindow(*sheet->GetTabControl()));
                   EXPECT_EQ(&own, sheet->GetTabControl());
                   own.UnsubclassWindow();
                   EXPECT_EQ(10u, sheet->GetPage(0)->GetDlgItemInt(IDC_RATE));
                   EXPECT_EQ(nullptr, sheet->GetPage(1)->m_hWnd) << "created when the user comes to it";
                   SetRate(sheet, _T("20"));
                   EXPECT_TRUE(CanApply(sheet));
                   sheet->PressButton(PSBTN_APPLYNOW);
                   EXPECT_FALSE(CanApply(sheet));
                   EXPECT_TRUE(sheet->SetActivePage(1));
                   EXPECT_EQ(sheet->GetPage(1), sheet->GetActivePage());
                   auto* const view = static_cast<CViewPage*>(sheet->GetActivePage());
                   TCHAR text[16] = {};
                   TCITEM item{};
                   item.mask = TCIF_TEXT;
                   item.pszText = text;
                   item.cchTextMax = 16;
                   EXPECT_TRUE(sheet->GetTabControl()->GetItem(1, &item));
                   EXPECT_STREQ(_T("View"), item.pszText) << "not the caption of the template";
                   view->m_wndTabs.SetCurFocus(1);
                   CRect curve;
                   CRect tabs;
                   view->m_wndCurve.GetWindowRect(&curve);
                   view->m_wndTabs.GetWindowRect(&tabs);
                   view->m_wndTabs.AdjustRect(FALSE, &tabs);
                   EXPECT_EQ(tabs, curve);
                   sheet->SetActivePage(0);
                   SetRate(sheet, _T("5000"));
                   sheet->PostMessage(WM_COMMAND, IDOK);
               },
               [](HWND box) {
                   EXPECT_NE(nullptr, ::FindWindowEx(box, nullptr, nullptr, _T("Enter an integer between 1 and 1000.")));
                   ::PostMessage(box, WM_COMMAND, IDOK, 0);
               },
               [](HWND popup) {
                   CPropertySheet* const sheet = SheetOf(popup);
                   ASSERT_NE(nullptr, sheet) << "wrong input keeps the sheet open";
                   EXPECT_EQ(0, sheet->GetActiveIndex());
                   SetRate(sheet, _T("30"));
                   sheet->PostMessage(WM_COMMAND, IDOK);
               }});
    User::Choose(ID_VIEW_SETTINGS);
    EXPECT_EQ(IDOK, Frame().m_nLastResult);
    EXPECT_EQ(30, Frame().m_nRate);
    EXPECT_STREQ(_T("applied 2, curve 1, reset 0"), Frame().m_strSeen);
    EXPECT_TRUE(Frame().IsWindowEnabled());

    User second({[](HWND popup) {
        SheetOf(popup)->SetActivePage(1);
        SetRate(SheetOf(popup), _T("40"));
        SheetOf(popup)->PressButton(PSBTN_CANCEL);
    }});
    User::Choose(ID_VIEW_SETTINGS);
    EXPECT_EQ(IDCANCEL, Frame().m_nLastResult);
    EXPECT_STREQ(_T("applied 0, curve 0, reset 1"), Frame().m_strSeen);
    EXPECT_EQ(30, Frame().m_nRate);
}

TEST_F(Recorder, SetUpLeadsFromPageToPage) {
    const auto isOn = [](HWND popup, int button) { return ::IsWindowEnabled(::GetDlgItem(popup, button)) != FALSE; };
    User user({[&](HWND popup) {
                   EXPECT_FALSE(isOn(popup, ID_WIZBACK));
                   EXPECT_TRUE(isOn(popup, ID_WIZNEXT));
                   SheetOf(popup)->PressButton(PSBTN_NEXT);
                   EXPECT_EQ(0, SheetOf(popup)->GetActiveIndex()) << "a recorder needs a name";
                   SheetOf(popup)->GetPage(0)->SetDlgItemText(IDC_NAME, _T("Boiler"));
                   SheetOf(popup)->PressButton(PSBTN_NEXT);
                   EXPECT_EQ(1, SheetOf(popup)->GetActiveIndex());
               },
               [&](HWND popup) {
                   EXPECT_TRUE(isOn(popup, ID_WIZBACK) && isOn(popup, ID_WIZFINISH));
                   SheetOf(popup)->PressButton(PSBTN_BACK);
                   EXPECT_EQ(0, SheetOf(popup)->GetActiveIndex());
                   SheetOf(popup)->PressButton(PSBTN_NEXT);
                   SheetOf(popup)->SetFinishText(_T("Done"));
                   SheetOf(popup)->PressButton(PSBTN_FINISH);
               }});
    User::Choose(ID_VIEW_SETUP);
    EXPECT_EQ(ID_WIZFINISH, Frame().m_nLastResult);
    EXPECT_STREQ(_T("Boiler"), Frame().m_strName);
    User second({[](HWND popup) { ::PostMessage(popup, WM_COMMAND, IDCANCEL, 0); }});
    User::Choose(ID_VIEW_SETUP);
    EXPECT_EQ(IDCANCEL, Frame().m_nLastResult);
    User third({[](HWND popup) { SheetOf(popup)->EndDialog(77); }});
    User::Choose(ID_VIEW_SETUP);
    EXPECT_EQ(77, Frame().m_nLastResult);
    User late({[](HWND popup) { SheetOf(popup)->EndDialog(0); }});
    EXPECT_EQ(55, BriefSheet().DoModal());
    const User none({}); // the sheet has closed without its user
}

TEST_F(Recorder, PanelAndNoteStayBesideTheProgram) {
    User::Choose(ID_VIEW_NOTE);
    EXPECT_STREQ(_T("Calibrated"), TextOf(::GetDlgItem(Frame().m_dlgNote, IDC_NAME)));
    for (const bool byEscape : {false, true}) {
        User::Choose(ID_VIEW_PANEL);
        CPropertySheet& panel = Frame().m_wndPanel;
        ASSERT_TRUE(panel.IsWindowVisible());
        EXPECT_TRUE(Frame().IsWindowEnabled());
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(panel, IDOK)) || ::IsWindowVisible(::GetDlgItem(panel, IDCANCEL)));
        CRect tabs;
        CRect client;
        panel.GetTabControl()->GetWindowRect(&tabs);
        panel.ScreenToClient(&tabs);
        panel.GetClientRect(&client);
        EXPECT_EQ(client.bottom - tabs.top, tabs.bottom) << "no room for the buttons either";
        EXPECT_TRUE(panel.SetActivePage(1));
        EXPECT_EQ(1, panel.GetActiveIndex());
        EXPECT_TRUE(panel.SetActivePage(0));
        SetRate(&panel, _T("0"));
        if (byEscape) {
            panel.GetPage(0)->GetDlgItem(IDC_RATE)->PostMessage(WM_KEYDOWN, VK_ESCAPE);
            User::Pump();
        } else {
            User::Choose(ID_VIEW_PANEL);
        }
        EXPECT_EQ(nullptr, panel.m_hWnd);
    }
}

TEST_F(Recorder, ThreadsRecordEverySampleTwoAtATime) {
    User::Choose(ID_RECORD_START);
    EXPECT_EQ(4 * 20, Frame().m_nSamples);
    EXPECT_EQ(2, g_nMostAtOnce);

    EXPECT_EQ(99, TakeSample(99));
    EXPECT_THROW(
        try { TakeSample(-1); } catch (CInvalidArgException* e) {
            e->Delete();
            throw 1;
        },
        int);
    EXPECT_THROW(
        try { TakeSample(100); } catch (CMemoryException* e) {
            e->Delete();
            throw 1;
        },
        int);

    CWinThread* const thread = AfxBeginThread([](LPVOID) -> UINT { return static_cast<UINT>(TakeSample(-1)); }, nullptr,
                                              THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    ::WaitForSingleObject(*thread, 10000);
    DWORD status = 0;
    ::GetExitCodeThread(*thread, &status);
    EXPECT_EQ(static_cast<DWORD>(-1), status) << "the exception ends the thread, not the program";
    EXPECT_FALSE(theApp.m_strLastMessage.IsEmpty());
    delete thread;
}

TEST_F(Recorder, LocksTellWhatTheyHold) {
    CEvent first;
    CEvent second(TRUE);
    CSyncObject* const events[] = {&first, &second};
    CMultiLock any(const_cast<CSyncObject**>(events), 2);
    EXPECT_EQ(WAIT_OBJECT_0 + 1, any.Lock(0, FALSE));
    EXPECT_TRUE(!any.IsLocked(0) && any.IsLocked(1));
    EXPECT_FALSE(second.Lock(0)) << "the event has reset itself";
    AfxGetMainWnd()->PostMessage(WM_NULL);
    EXPECT_EQ(WAIT_OBJECT_0 + 2, any.Lock(1000, FALSE, QS_POSTMESSAGE)) << "a message came first";

    CSemaphore places(1, 3);
    LONG before = 0;
    EXPECT_TRUE(places.Unlock(2, &before));
    EXPECT_EQ(1, before);
    EXPECT_FALSE(places.Unlock()) << "all three are free";

    CMutex mutex(TRUE, _T("Kavlix recorder"));
    CMutex same(FALSE, _T("Kavlix recorder"));
    CSingleLock held(&same);
    EXPECT_TRUE(held.Lock(0)) << "the thread owns it already, under the other name";
    EXPECT_TRUE(held.Unlock() && mutex.Unlock());
    EXPECT_FALSE(mutex.Unlock());
    EXPECT_FALSE(held.Unlock() || held.IsLocked());

    EXPECT_TRUE(held.Lock(0) && held.Unlock(1));
    EXPECT_FALSE(mutex.Unlock()) << "nobody holds it";
    CSyncObject* const kinds[] = {&same, &places};
    CMultiLock both(const_cast<CSyncObject**>(kinds), 2);
    EXPECT_FALSE(both.Unlock(1)) << "nothing is locked";
    EXPECT_EQ(WAIT_OBJECT_0, both.Lock(0));
    EXPECT_TRUE(both.Unlock(1) && !both.IsLocked(1) && both.IsLocked(0)) << "a mutex does not count";
    EXPECT_TRUE(both.Unlock() && !mutex.Unlock());
}

TEST_F(Recorder, SessionsFreeEverything) {
    const auto session = [this] {
        User user({[](HWND popup) { SheetOf(popup)->SetActivePage(1); },
                   [](HWND popup) { ::PostMessage(popup, WM_COMMAND, IDOK, 0); }});
        User::Choose(ID_VIEW_SETTINGS);
        User::Choose(ID_VIEW_PANEL);
        RecentFiles();
        RunningClient::TearDown();
        AfxDeleteTempGdiMaps();
        CWnd::DeleteTempMap();
        const testkit::ObjectCounts left = testkit::CountObjects();
        RunningClient::SetUp();
        return left;
    };
    const testkit::ObjectCounts first = session();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(first, session());
}

} // namespace
