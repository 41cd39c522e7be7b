#if !defined(AFX_GAUGECTRL_H__INCLUDED_)
#define AFX_GAUGECTRL_H__INCLUDED_

#define GAUGE_CLASSNAME _T("ThermostatGauge")

// Sent to the parent in a WM_COMMAND when the user clicks
#define GN_CHANGED 1
#define ON_GN_CHANGED(id, memberFxn) ON_CONTROL(GN_CHANGED, id, memberFxn)

class CGaugeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CGaugeCtrl)

public:
    CGaugeCtrl();
    static BOOL RegisterControlClass(HINSTANCE hInstance);

public:
    int GetPos() const { return m_nPos; }
    void SetPos(int nPos);
    int m_nPaints;
    static int m_nAlive;

public:
    virtual ~CGaugeCtrl();

protected:
    int m_nPos;     // percent
    CBrush m_brFill;
    CBrush m_brBack;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    void Change(int nPos);
};

#endif // !defined(AFX_GAUGECTRL_H__INCLUDED_)
