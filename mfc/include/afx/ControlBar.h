// SPDX-License-Identifier: MIT
// CControlBar, a bar at an edge of a frame window.
#pragma once

#include "afx/Export.h"
#include "afx/Wnd.h"

class CFrameWnd;

/// The edge of the frame at which a bar stands. A bar without these styles is not moved.
#define CBRS_NOALIGN 0x00000000L
#define CBRS_ALIGN_TOP 0x00002000L
#define CBRS_ALIGN_BOTTOM 0x00008000L
#define CBRS_TOP CBRS_ALIGN_TOP
#define CBRS_BOTTOM CBRS_ALIGN_BOTTOM

/// A bar at the top or bottom of a frame window or dialog. CWnd::RepositionBars() moves the visible bars to their
/// edges, the first child outermost. While the program is idle, a visible bar brings its items up to date.
class MFC_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)

public:
    CControlBar() = default;

    /// TRUE: the object deletes itself when its window is destroyed.
    BOOL m_bAutoDelete = FALSE;

    /// Number of items in the bar.
    int GetCount() const { return m_nCount; }
    /// CBRS_ styles.
    DWORD GetBarStyle() { return m_dwStyle; }
    /// The frame moves the bar at its next layout.
    void SetBarStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    /// Whether the bar is shown, or will be shown by a delayed CFrameWnd::ShowControlBar().
    BOOL IsVisible() const;

    /// Size of the bar in pixels. `bStretch` TRUE: the bar is as long as its frame.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    /// Asks `pTarget` to update the items of the bar. Called while the program is idle.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

protected:
    friend class CFrameWnd;

    void PostNcDestroy() override;

    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);

    int m_nCount = 0;
    DWORD m_dwStyle = 0; ///< CBRS_ styles

    DECLARE_MESSAGE_MAP()

private:
    enum class Pending { Nothing, Show, Hide };
    Pending m_pending = Pending::Nothing; ///< what a delayed CFrameWnd::ShowControlBar() asked for
};
