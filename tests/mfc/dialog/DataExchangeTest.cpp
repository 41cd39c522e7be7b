// SPDX-License-Identifier: MIT
// Data exchange between members and controls: the DDX_ and DDV_ routines, and what the user is shown.

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <climits>
#include <functional>

#include "tests/mfc/dialog/DialogIds.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/Utf8.h"

namespace {

using testkit::MessageBoxWatcher;
using Exchange = std::function<void(CDataExchange*)>;

/// A dialog whose exchange is a function of the test.
class CExchangeDialog : public CDialog {
public:
    Exchange exchange;

    void SetText(LPCTSTR text) { SetDlgItemText(IDC_TEXT, text); }
    CString Text() const {
        CString text;
        GetDlgItemText(IDC_TEXT, text);
        return text;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        if (exchange)
            exchange(pDX);
    }
};

class DataExchange : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_dialog.Create(IDD_DATA)); }
    void TearDown() override { m_dialog.DestroyWindow(); }

    HWND Item(int id) const { return ::GetDlgItem(m_dialog, id); }
    BOOL Load(Exchange exchange) { return Run(exchange, FALSE); }
    BOOL Save(Exchange exchange) { return Run(exchange, TRUE); }
    /// Copies `value` to the control with `ddx`, changes it, copies the control back and returns the result.
    template <class Value> Value ThereAndBack(void (*ddx)(CDataExchange*, int, Value&), int id, Value value) {
        EXPECT_TRUE(Load([&](CDataExchange* pDX) { ddx(pDX, id, value); }));
        Value read = value;
        Change(read);
        EXPECT_TRUE(Save([&](CDataExchange* pDX) { ddx(pDX, id, read); }));
        return read;
    }
    static void Change(int& value) { value += 5; }
    static void Change(CString& value) { value += "changed"; }
    /// Copies `value` to the control and returns the control's text.
    template <class Value> CString Shown(Value value) {
        EXPECT_TRUE(Load([&](CDataExchange* pDX) { DDX_Text(pDX, IDC_TEXT, value); }));
        return m_dialog.Text();
    }
    /// Copies `text` from the control to a Value. Returns `refused` if the exchange failed with one message.
    template <class Value> Value Read(LPCTSTR text, Value refused) {
        MessageBoxWatcher prompts;
        m_dialog.SetText(text);
        Value value = 77;
        const BOOL read = Save([&](CDataExchange* pDX) { DDX_Text(pDX, IDC_TEXT, value); });
        EXPECT_EQ(read ? 0u : 1u, prompts.Boxes().size()) << text;
        if (!prompts.Boxes().empty())
            m_prompt = prompts.Boxes()[0].text;
        if (read)
            return value;
        EXPECT_EQ(Value(77), value) << "the member changed though the input was refused";
        return refused;
    }
    template <class Value> void ExpectShownAndRead(LPCTSTR text, Value value) {
        EXPECT_STREQ(text, Shown(value));
        EXPECT_EQ(value, Read<Value>(text, 0)) << text;
    }

    CExchangeDialog m_dialog;
    std::string m_prompt;

private:
    BOOL Run(Exchange& exchange, BOOL save) {
        m_dialog.exchange = std::move(exchange);
        return m_dialog.UpdateData(save);
    }
};

TEST_F(DataExchange, IntegersOfEveryTypeAreShownReadAndRefused) {
    ExpectShownAndRead<int>(_T("-2147483648"), INT_MIN);
    ExpectShownAndRead<UINT>(_T("4294967295"), UINT_MAX);
    ExpectShownAndRead<short>(_T("-32768"), SHRT_MIN);
    ExpectShownAndRead<BYTE>(_T("255"), 255);
    EXPECT_EQ(INT_MAX, Read<int>(_T(" \t+2147483647 "), 0));
    EXPECT_EQ(10, Read<int>(_T("010"), 0)) << "decimal, whatever it begins with";
    const auto refused = [this](auto other, const char* prompt, std::initializer_list<LPCTSTR> texts) {
        for (LPCTSTR text : texts)
            EXPECT_EQ(other, Read(text, other)) << text;
        EXPECT_EQ(prompt, m_prompt);
    };
    refused(
        -1, "Enter an integer.",
        {_T(""), _T("  "), _T("x"), _T("12x"), _T("1 2"), _T("1.5"), _T("2147483648"), _T("-2147483649")});
    refused(1u, "Enter a positive integer.",
            {_T("-1"), _T("4294967296"), _T("- 1"), _T(""), _T("-18446744073709551615")});
    refused(BYTE{9}, "Enter an integer between 0 and 255.", {_T("256"), _T("-1"), _T("")});
}

TEST_F(DataExchange, RealNumbersKeepTheDigitsTheyHave) {
    ExpectShownAndRead(_T("0.1"), 0.1);
    ExpectShownAndRead(_T("0.1"), 0.1f);
    ExpectShownAndRead(_T("1e+300"), 1e300);
    EXPECT_EQ(-1.5e-7, Read<double>(_T("-1.5e-7"), 0));
    for (LPCTSTR text :
         {_T(""), _T("1,5"), _T("nan"), _T("inf"), _T("0x10"), _T("1e"), _T("1e999"), _T("."), _T("--1")})
        EXPECT_EQ(-9.0, Read<double>(text, -9.0)) << text;
    EXPECT_EQ("Enter a number.", m_prompt);
    EXPECT_EQ(-9.0f, Read<float>(_T("1e39"), -9.0f)) << "too large for the member";
}

TEST_F(DataExchange, TextIsSetOnlyWhenItDiffers) {
    CString text(testkit::kScripts);
    ASSERT_TRUE(Load([&](CDataExchange* pDX) { DDX_Text(pDX, IDC_TEXT, text); }));
    ::SendMessage(Item(IDC_TEXT), EM_SETSEL, 3, 5);
    ASSERT_TRUE(Load([&](CDataExchange* pDX) { DDX_Text(pDX, IDC_TEXT, text); }));
    EXPECT_EQ(MAKELONG(3, 5), ::SendMessage(Item(IDC_TEXT), EM_GETSEL, 0, 0))
        << "the same text was set again";
}

TEST_F(DataExchange, ChecksAndRadioGroups) {
    for (const int value : {0, 1, 2, 9}) {
        const int known = value < 3 ? value : 0;
        EXPECT_EQ(known, ThereAndBack(DDX_Check, IDC_CHECK, value));
        EXPECT_EQ(known, ::SendMessage(Item(IDC_CHECK), BM_GETCHECK, 0, 0));
    }
    // The label between the buttons is not counted.
    for (int value = -1; value < 3; ++value)
        EXPECT_EQ(value, ThereAndBack(DDX_Radio, IDC_RADIO_FIRST, value));
    EXPECT_EQ(1, ::SendMessage(Item(IDC_RADIO_THIRD), BM_GETCHECK, 0, 0));
}

TEST_F(DataExchange, ListsByIndexByTextAndByExactText) {
    for (int id : {IDC_LIST, IDC_DROPLIST, IDC_COMBO})
        for (LPCTSTR text : {_T("Green tea"), _T("Green"), _T("Red")})
            ::SendMessage(Item(id), id == IDC_LIST ? LB_ADDSTRING : CB_ADDSTRING, 0,
                          reinterpret_cast<LPARAM>(text));
    const struct {
        void (*ddx)(CDataExchange*, int, CString&);
        int id;
        LPCTSTR text, read;
    } cases[] = {
        {DDX_LBString, IDC_LIST, _T("gre"), _T("Green tea")},
        {DDX_LBStringExact, IDC_LIST, _T("green"), _T("Green")},
        {DDX_LBStringExact, IDC_LIST, _T("gre"), _T("Green")}, // no exact match: the selection stays
        {DDX_CBString, IDC_DROPLIST, _T("gre"), _T("Green tea")},
        {DDX_CBStringExact, IDC_DROPLIST, _T("Green"), _T("Green")},
        {DDX_CBString, IDC_COMBO, _T("Purple"), _T("Purple")}, // goes into the edit field
    };
    for (const auto& c : cases)
        EXPECT_STREQ(c.read, ThereAndBack<CString>(c.ddx, c.id, c.text)) << c.id << " " << c.text;
    for (const int index : {2, 0, -1}) {
        EXPECT_EQ(index, ThereAndBack(DDX_LBIndex, IDC_LIST, index));
        EXPECT_EQ(index, ThereAndBack(DDX_CBIndex, IDC_COMBO, index));
    }
}

TEST_F(DataExchange, PositionsOfScrollBarAndSlider) {
    ::SetScrollRange(Item(IDC_SCROLL), SB_CTL, 0, 50, FALSE);
    EXPECT_EQ(31, ThereAndBack(DDX_Scroll, IDC_SCROLL, 31));
    EXPECT_EQ(31, ::GetScrollPos(Item(IDC_SCROLL), SB_CTL));
    EXPECT_EQ(17, ThereAndBack(DDX_Slider, IDC_SLIDER, 17));
}

TEST_F(DataExchange, RangesAreCheckedWhenSavingOnly) {
    MessageBoxWatcher prompts;
    int value = 50;
    const auto range = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_TEXT, value);
        DDV_MinMaxInt(pDX, value, -5, 10);
    };
    EXPECT_TRUE(Load(range)) << "a member out of range is shown all the same";
    EXPECT_STREQ(_T("50"), m_dialog.Text());
    for (LPCTSTR text : {_T("50"), _T("-5"), _T("10"), _T("0"), _T("-6")}) {
        m_dialog.SetText(text);
        EXPECT_EQ(_ttoi(text) >= -5 && _ttoi(text) <= 10, Save(range) != FALSE) << text;
    }
    ASSERT_EQ(2u, prompts.Boxes().size());
    EXPECT_EQ("Enter an integer between -5 and 10.", prompts.Boxes()[1].text);

    const struct {
        Exchange check;
        const char* told;
    } cases[] = {
        {[](CDataExchange* pDX) { DDV_MinMaxDWord(pDX, 0, 1, UINT_MAX); },
         "Enter an integer between 1 and 4294967295."},
        {[](CDataExchange* pDX) { DDV_MinMaxDouble(pDX, 0.25, 0.5, 1e30); },
         "Enter a number between 0.5 and 1e+30."},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(Save([&](CDataExchange* pDX) {
            pDX->PrepareEditCtrl(IDC_TEXT);
            c.check(pDX);
        }));
        EXPECT_EQ(c.told, prompts.Boxes().back().text);
    }
}

TEST_F(DataExchange, LengthLimitHoldsForTypingAndForSaving) {
    MessageBoxWatcher prompts;
    CString value("abcdef");
    const auto limited = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_TEXT, value);
        DDV_MaxChars(pDX, value, 4);
    };
    EXPECT_TRUE(Load(limited));
    EXPECT_EQ(4, ::SendMessage(Item(IDC_TEXT), EM_GETLIMITTEXT, 0, 0));
    EXPECT_FALSE(Save(limited));
    ASSERT_EQ(1u, prompts.Boxes().size());
    EXPECT_EQ("Enter no more than 4 characters.", prompts.Boxes()[0].text);
    m_dialog.SetText(_T("abcd"));
    EXPECT_TRUE(Save(limited));
}

TEST_F(DataExchange, ControlsAreBoundOnce) {
    class CBound : public CStatic {
    public:
        int subclassed = 0;

    protected:
        void PreSubclassWindow() override { ++subclassed; }
    };
    CBound bound;
    const auto bind = [&](CDataExchange* pDX) { DDX_Control(pDX, IDC_BOUND, bound); };
    EXPECT_TRUE(Load(bind));
    EXPECT_TRUE(Save(bind));
    EXPECT_EQ(1, bound.subclassed);
    EXPECT_EQ(Item(IDC_BOUND), bound.m_hWnd);
    EXPECT_EQ(&bound, m_dialog.GetDlgItem(IDC_BOUND));
    m_dialog.DestroyWindow();
    EXPECT_EQ(nullptr, bound.m_hWnd);
}

} // namespace
