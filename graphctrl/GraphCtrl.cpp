#include <kavlix/GraphCtrl.h>

#include "gdi/Offscreen.h"
#include "gdi/Text.h"

namespace {

constexpr char kWindowClass[] = "MFCGraphCtrl";
constexpr char kDefaultTitle[] = "Graph Title";
constexpr char kDefaultXLabel[] = "X Label";
constexpr char kDefaultYLabel[] = "Y Label";
constexpr char kDefaultY2Label[] = "Y2 Label";

constexpr COLORREF kAxisLabelColor = RGB(126, 162, 226);
constexpr COLORREF kAxisColor = RGB(185, 221, 193);
constexpr COLORREF kTickLabelColor = RGB(63, 127, 77);

// The last two are the same on purpose.
constexpr COLORREF kDatasetColors[CGraphCtrl::DatasetCount] = {
    RGB(240, 0, 177),  RGB(125, 125, 169), RGB(153, 204, 0), RGB(255, 102, 0), RGB(204, 204, 255),
    RGB(203, 59, 59),  RGB(132, 130, 130), RGB(0, 135, 162), RGB(54, 0, 162),  RGB(50, 50, 50),
    RGB(65, 133, 245), RGB(162, 0, 108),   RGB(162, 0, 108)};

// Font heights in logical units, escapement in tenths of a degree.
constexpr int kYTickLabelFontHeight = 350;
constexpr int kXTickLabelFontHeight = 300;
constexpr int kUnitFontHeight = 450;
constexpr int kLegendFontHeight = 350;
constexpr int kUpwards = 900;

} // namespace

BEGIN_MESSAGE_MAP(CGraphCtrl, CWnd)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CGraphCtrl::OnPrintClient)

    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()

    ON_WM_CONTEXTMENU()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()

    ON_COMMAND(ID_EDIT_COPY, &CGraphCtrl::OnEditCopy)
    ON_COMMAND(ID_GRAPH_CLEAR_SELECTION_MARK, &CGraphCtrl::OnHideSelectionMark)
    ON_COMMAND(ID_GRAPH_REMOVE_DATA_BEFORE_MARK, &CGraphCtrl::OnRemoveDataBeforeSelectionMark)
END_MESSAGE_MAP()

CGraphCtrl::CGraphCtrl()
    : m_GraphStyle(GraphStyleLine), m_TitleStyle(TitleStyleText), m_ShowBorder(FALSE), m_rectPlot(0, 0, 0, 0),
      m_rectLegend(0, 0, 0, 0), m_rectTitle(0, 0, 0, 0), m_rectXAxis(0, 0, 0, 0), m_rectYAxis(0, 0, 0, 0),
      m_rectY2Axis(0, 0, 0, 0), m_rectXTickLabel(0, 0, 0, 0), m_rectYTickLabel(0, 0, 0, 0),
      m_rectY2TickLabel(0, 0, 0, 0), m_rectIconMaximize(0, 0, 0, 0), m_rectCaption(0, 0, 0, 0),
      m_rectClient(0, 0, 0, 0), m_rectClientInner(0, 0, 0, 0), m_AutoXVisible(TRUE), m_XVisibleMin(0.0),
      m_XVisibleMax(100.0), m_YVisibleMin(0.0), m_YVisibleMax(100.0), m_Y2VisibleMin(0.0),
      m_Y2VisibleMax(100.0), m_ReservedValue(1.0), m_IconMaximizeTracking(FALSE),
      m_IconMaximizePressed(FALSE), m_GridY(TRUE), m_GridX(FALSE), m_GridColor(RGB(185, 221, 193)),
      m_ShowLegend(TRUE), m_ShowLegendBoard(TRUE), m_LegendMargin(100), m_LegendItemHeight(300),
      m_SelectionMarkPos(-1), m_LineCursorColor(RGB(100, 100, 100)), m_BoxCursorColor(RGB(225, 225, 225)),
      m_BkColor(RGB(255, 255, 255)), m_TitleColor(RGB(96, 96, 140)), m_XLabelColor(kAxisLabelColor),
      m_YLabelColor(kAxisLabelColor), m_Y2LabelColor(kAxisLabelColor), m_AxisColor(kAxisColor),
      m_XTickLabelColor(kTickLabelColor), m_YTickLabelColor(kTickLabelColor),
      m_Y2TickLabelColor(RGB(150, 100, 0)), m_LegendColor(RGB(215, 232, 241)),
      m_LegendTextColor(RGB(63, 81, 113)), m_CaptionColor(RGB(128, 128, 150)),
      m_CaptionTextColor(RGB(255, 255, 255)), m_XTickLabelHeight(1500), m_LegendWidth(3000),
      m_XTickLabelUpStringMaxLength(10), m_YTickLabelWidth(1500), m_Y2TickLabelWidth(1500),
      m_YTickLabelScale(0), m_Y2TickLabelScale(0), m_YUnitExponent(0), m_Y2UnitExponent(0),
      m_ShowXLabel(TRUE), m_ShowYLabel(TRUE), m_ShowY2Label(TRUE), m_ShowIconMaximize(FALSE),
      m_IconMaximized(FALSE), m_CaptionFontFace("Tahoma"), m_CaptionFontSize(80), m_Title(kDefaultTitle),
      m_XLabel(kDefaultXLabel), m_YLabel(kDefaultYLabel), m_Y2Label(kDefaultY2Label),
      m_ShowMenuRemoveDataBeforeSelectionMark(TRUE) {
    RegisterWindowClass();
    for (int i = 0; i < DatasetCount; ++i)
        m_Datasets[i].m_Color = kDatasetColors[i];
    kavlix::MakeFont(m_YTickLabelFont, kYTickLabelFontHeight, 0, FW_NORMAL);
    kavlix::MakeFont(m_XTickLabelFont, kXTickLabelFontHeight, kUpwards, FW_NORMAL);
    kavlix::MakeFont(m_UnitFont, kUnitFontHeight, 0, FW_NORMAL);
    kavlix::MakeFont(m_LegendFont, kLegendFontHeight, 0, FW_NORMAL);
}

CGraphCtrl::~CGraphCtrl() = default;

BOOL CGraphCtrl::RegisterWindowClass() {
    // The host's instance: extension modules share its module state.
    const HINSTANCE instance = AfxGetInstanceHandle();
    WNDCLASS windowClass = {};
    if (::GetClassInfo(instance, kWindowClass, &windowClass))
        return TRUE;

    windowClass = {};
    windowClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    windowClass.lpszClassName = kWindowClass;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    return TRUE;
}

void CGraphCtrl::ResetAll() {
    for (CDataset& dataset : m_Datasets)
        ClearSamples(dataset);
    ResetXTickLabel();
    ResetLegend();
    SetTitle(kDefaultTitle);
    SetXLabel(kDefaultXLabel);
    SetYLabel(kDefaultYLabel);
}
