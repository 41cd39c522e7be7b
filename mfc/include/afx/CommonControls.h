// SPDX-License-Identifier: MIT
// The classes of the common controls.
#pragma once

#include "afx/Controls.h"
#include "afx/Export.h"
#include <commctrl.h>

AFX_BEGIN_OWN_CREATE

/// The common controls. Create() first loads the system's common-control library.

/// A status bar. Panes count from 0; number 255 is the pane of the simple mode.
class MFC_API CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl() = default;
    ~CStatusBarCtrl() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// `nType` is 0 or a drawing flag: SBT_NOBORDERS, SBT_POPOUT, SBT_OWNERDRAW.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    CString GetText(int nPane, int* pType = nullptr) const;
    /// Copies the text and a terminating zero; the buffer needs GetTextLength() + 1 characters. Returns
    /// the length.
    int GetText(LPTSTR lpszText, int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    /// Sets the panes. `pWidths` holds the right edges in client pixels; -1 is the right end of the window.
    BOOL SetParts(int nParts, int* pWidths);
    /// Copies at most `nParts` right edges. Returns the number of panes.
    int GetParts(int nParts, int* pParts) const;
    /// Widths of the borders in pixels: horizontal, vertical, between the panes.
    BOOL GetBorders(int* pBorders) const;
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin);
    BOOL SetSimple(BOOL bSimple = TRUE);
    BOOL GetRect(int nPane, LPRECT lpRect) const;

    /// Override the function to draw owner-drawn panes. The default draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A progress bar. The initial range is 0 to 100, the initial step 10.
class MFC_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl() = default;
    ~CProgressCtrl() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Limits of 16 bits. SetRange32() accepts every int.
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return afx_control::Ask(m_hWnd, PBM_GETPOS); }
    /// SetPos(), OffsetPos() and StepIt() return the former position.
    int SetPos(int nPos) { return afx_control::Ask(m_hWnd, PBM_SETPOS, Param(nPos)); }
    int OffsetPos(int nPos) { return afx_control::Ask(m_hWnd, PBM_DELTAPOS, Param(nPos)); }
    int StepIt() { return afx_control::Ask(m_hWnd, PBM_STEPIT); }
    /// Sets the step and returns the former step.
    int SetStep(int nStep) { return afx_control::Ask(m_hWnd, PBM_SETSTEP, Param(nStep)); }

private:
    static WPARAM Param(int value) { return static_cast<WPARAM>(static_cast<INT_PTR>(value)); }
};

/// A slider (trackbar). The parent gets WM_HSCROLL or WM_VSCROLL when the user moves the slider.
class MFC_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl() = default;
    ~CSliderCtrl() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetLineSize() const { return afx_control::Ask(m_hWnd, TBM_GETLINESIZE); }
    int SetLineSize(int nSize) { return afx_control::Ask(m_hWnd, TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return afx_control::Ask(m_hWnd, TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) { return afx_control::Ask(m_hWnd, TBM_SETPAGESIZE, 0, nSize); }
    int GetRangeMax() const { return afx_control::Ask(m_hWnd, TBM_GETRANGEMAX); }
    int GetRangeMin() const { return afx_control::Ask(m_hWnd, TBM_GETRANGEMIN); }
    void GetRange(int& nMin, int& nMax) const;
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    int GetPos() const { return afx_control::Ask(m_hWnd, TBM_GETPOS); }
    /// A position outside the range becomes the nearest limit. The control repaints itself.
    void SetPos(int nPos) { afx_control::Ask(m_hWnd, TBM_SETPOS, TRUE, nPos); }
    UINT GetNumTics() const { return static_cast<UINT>(afx_control::Ask(m_hWnd, TBM_GETNUMTICS)); }
    int GetTic(int nTic) const { return afx_control::Ask(m_hWnd, TBM_GETTIC, static_cast<WPARAM>(nTic)); }
    int GetTicPos(int nTic) const {
        return afx_control::Ask(m_hWnd, TBM_GETTICPOS, static_cast<WPARAM>(nTic));
    }
    BOOL SetTic(int nTic) { return afx_control::Ask(m_hWnd, TBM_SETTIC, 0, nTic); }
    void SetTicFreq(int nFreq) { afx_control::Ask(m_hWnd, TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
    void ClearTics(BOOL bRedraw = FALSE) {
        afx_control::Ask(m_hWnd, TBM_CLEARTICS, static_cast<WPARAM>(bRedraw));
    }
    void ClearSel(BOOL bRedraw = FALSE) {
        afx_control::Ask(m_hWnd, TBM_CLEARSEL, static_cast<WPARAM>(bRedraw));
    }
    void GetChannelRect(LPRECT lprc) const;
    void GetThumbRect(LPRECT lprc) const;
};

/// An up-down control, often next to an edit control (its buddy).
class MFC_API CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl() = default;
    ~CSpinButtonCtrl() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Positions of 16 bits; the functions with "32" accept every int. SetPos() returns the former position.
    int SetPos(int nPos) {
        return static_cast<short>(afx_control::Ask(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0)));
    }
    /// Low word: the position. High word: nonzero on error, for example if the buddy's text is not a number.
    int GetPos() const { return afx_control::Ask(m_hWnd, UDM_GETPOS); }
    int SetPos32(int nPos) { return afx_control::Ask(m_hWnd, UDM_SETPOS32, 0, nPos); }
    int GetPos32(LPBOOL lpbError = nullptr) const;
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    /// Low word: upper limit; high word: lower limit.
    DWORD GetRange() const { return static_cast<DWORD>(afx_control::Ask(m_hWnd, UDM_GETRANGE)); }
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
    /// Sets the base, 10 or 16. Returns the former base, or 0 if `nBase` is another number.
    int SetBase(int nBase) { return afx_control::Ask(m_hWnd, UDM_SETBASE, static_cast<WPARAM>(nBase)); }
    UINT GetBase() const { return static_cast<UINT>(afx_control::Ask(m_hWnd, UDM_GETBASE)); }
    /// SetBuddy() returns the former buddy. The result may be a temporary object; NULL means no buddy.
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    BOOL SetAccel(int nAccel, UDACCEL* pAccel);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
};

/// A tooltip window for the controls of a window. The program passes mouse messages to RelayEvent(), usually
/// in CWnd::PreTranslateMessage(), or adds its tools with TTM_ADDTOOL and the flag TTF_SUBCLASS.
class MFC_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl() = default;
    ~CToolTipCtrl() override;
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    void Activate(BOOL bActivate) { afx_control::Ask(m_hWnd, TTM_ACTIVATE, static_cast<WPARAM>(bActivate)); }
    /// Adds a tool: the whole of `pWnd` if `nIDTool` is 0, else the part `lpRectTool` of its client area.
    /// For LPSTR_TEXTCALLBACK, the tooltip requests the text with TTN_NEEDTEXT: from the parent of `pWnd` if
    /// `nIDTool` is 0, else from `pWnd`.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    /// The text is a string of the resource chain.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return afx_control::Ask(m_hWnd, TTM_GETTOOLCOUNT); }
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    void RelayEvent(LPMSG lpMsg) {
        ::SendMessage(m_hWnd, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg));
    }
    /// Times in milliseconds. TTDT_AUTOMATIC sets all three times in proportion; TTDT_INITIAL, TTDT_AUTOPOP
    /// and TTDT_RESHOW set one each.
    void SetDelayTime(UINT nDelay) { SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(nDelay)); }
    void SetDelayTime(DWORD dwDuration, int iTime);
    int GetDelayTime(DWORD dwDuration) const {
        return afx_control::Ask(m_hWnd, TTM_GETDELAYTIME, dwDuration);
    }
    int SetMaxTipWidth(int iWidth) { return afx_control::Ask(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth); }
    int GetMaxTipWidth() const { return afx_control::Ask(m_hWnd, TTM_GETMAXTIPWIDTH); }
    void Pop() { afx_control::Ask(m_hWnd, TTM_POP); }
};

AFX_END_OWN_CREATE
