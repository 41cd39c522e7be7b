// SPDX-License-Identifier: MIT
// CPrintDialog and CPrintInfo: what they answer from the record of the system's dialog.

#include <afxdlgs.h>
#include <afxext.h>

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

namespace {

/// Settings of a printer as the system's dialog returns them.
HGLOBAL MakeNames() {
    const TCHAR text[] = _T("winspool\0Office printer\0LPT7:");
    const HGLOBAL memory = GlobalAlloc(GHND, sizeof(DEVNAMES) + sizeof text);
    auto* const names = static_cast<DEVNAMES*>(GlobalLock(memory));
    names->wDriverOffset = sizeof(DEVNAMES) / sizeof(TCHAR); // offsets count TCHARs
    names->wDeviceOffset = static_cast<WORD>(names->wDriverOffset + 9);
    names->wOutputOffset = static_cast<WORD>(names->wDeviceOffset + 15);
    std::memcpy(reinterpret_cast<char*>(names) + sizeof(DEVNAMES), text, sizeof text);
    GlobalUnlock(memory);
    return memory;
}

} // namespace

TEST(PrintDialogTest, AnswersFromTheRecord) {
    CPrintDialog dialog(FALSE);
    EXPECT_EQ(dialog.GetDeviceName(), "");
    EXPECT_TRUE(dialog.GetDevMode() == nullptr && dialog.CreatePrinterDC() == nullptr && dialog.PrintAll());
    EXPECT_EQ(std::pair(dialog.GetCopies(), dialog.GetFromPage()), std::pair(1, -1));

    dialog.m_pd.hDevNames = MakeNames();
    EXPECT_EQ(dialog.GetDriverName() + "|" + dialog.GetDeviceName() + "|" + dialog.GetPortName(),
              "winspool|Office printer|LPT7:");
    dialog.m_pd.hDevMode = GlobalAlloc(GHND, sizeof(DEVMODE));
    dialog.GetDevMode()->dmCopies = 3;
    GlobalUnlock(dialog.m_pd.hDevMode);
    EXPECT_EQ(dialog.GetCopies(), 3);
    dialog.m_pd.Flags = PD_PAGENUMS | PD_COLLATE;
    dialog.m_pd.nFromPage = 2;
    dialog.m_pd.nToPage = 5;
    EXPECT_EQ(std::pair(dialog.GetFromPage(), dialog.GetToPage()), std::pair(2, 5));
    GlobalFree(dialog.m_pd.hDevMode);
    GlobalFree(dialog.m_pd.hDevNames);
}

TEST(PrintInfoTest, PagesLiveInTheDialogsRecord) {
    CPrintInfo info;
    EXPECT_EQ(info.GetMinPage(), 1u);
    EXPECT_EQ(info.GetMaxPage(), 0xFFFFu);
    info.SetMaxPage(7);
    EXPECT_EQ(info.m_pPD->m_pd.nMaxPage, 7);
    info.m_pPD->m_pd.nFromPage = 3;
    EXPECT_EQ(info.GetFromPage(), 3u);
    info.m_pPD->m_pd.hDevNames = MakeNames(); // freed with the object
}
