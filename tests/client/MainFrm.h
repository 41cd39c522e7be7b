#if !defined(AFX_MAINFRM_H__INCLUDED_)
#define AFX_MAINFRM_H__INCLUDED_

class CMainFrame : public CFrameWnd
{
public:
    CMainFrame();
protected:
    DECLARE_DYNAMIC(CMainFrame)

public:
    static int m_nAlive;
    BOOL m_bOn;
    int m_nTarget;
    int m_nUnits;
    CString m_strName;
    int m_nPaints;
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

public:
    virtual ~CMainFrame();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    afx_msg void OnHeatingOn();
    afx_msg void OnUpdateHeatingOn(CCmdUI* pCmdUI);
    afx_msg void OnHeatingWarmer();
    afx_msg void OnUpdateHeatingWarmer(CCmdUI* pCmdUI);
    afx_msg void OnViewSettings();
    afx_msg void OnUnits(UINT nID);
    afx_msg void OnUpdateUnits(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

    CFont m_font;
};

#endif // !defined(AFX_MAINFRM_H__INCLUDED_)
