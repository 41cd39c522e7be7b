// SPDX-License-Identifier: MIT
// CPrintInfo.

#include <afxdlgs.h>
#include <afxext.h>

namespace {

constexpr WORD kFirstPage = 1;
constexpr WORD kUnknownLastPage = 0xFFFF;

} // namespace

CPrintInfo::CPrintInfo()
    : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION)),
      m_strPageDesc(_T("Page %u\nPages %u-%u\n")), m_rectDraw(0, 0, 0, 0) {
    SetMinPage(kFirstPage);
    SetMaxPage(kUnknownLastPage);
}

CPrintInfo::~CPrintInfo() {
    if (m_pPD == nullptr)
        return;
    ::GlobalFree(m_pPD->m_pd.hDevMode);
    ::GlobalFree(m_pPD->m_pd.hDevNames);
    delete m_pPD;
}

void CPrintInfo::SetMinPage(UINT nMinPage) {
    m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage);
}

void CPrintInfo::SetMaxPage(UINT nMaxPage) {
    m_pPD->m_pd.nMaxPage = static_cast<WORD>(nMaxPage);
}

UINT CPrintInfo::GetMinPage() const {
    return m_pPD->m_pd.nMinPage;
}

UINT CPrintInfo::GetMaxPage() const {
    return m_pPD->m_pd.nMaxPage;
}

UINT CPrintInfo::GetFromPage() const {
    return m_pPD->m_pd.nFromPage;
}

UINT CPrintInfo::GetToPage() const {
    return m_pPD->m_pd.nToPage;
}
