// SPDX-License-Identifier: MIT
// CPrintDialog.

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

namespace {

/// Locks a block of global memory while the object exists.
template <class Record> class Locked {
public:
    explicit Locked(HGLOBAL memory)
        : m_memory(memory),
          m_record(memory != nullptr ? static_cast<Record*>(::GlobalLock(memory)) : nullptr) {}
    ~Locked() {
        if (m_record != nullptr)
            ::GlobalUnlock(m_memory);
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    Record* Get() const { return m_record; }

private:
    HGLOBAL m_memory;
    Record* m_record;
};

} // namespace

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_pd(m_record) {
    m_pd.lStructSize = sizeof(m_pd);
    m_pd.Flags = dwFlags | PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK;
    m_pd.Flags |= bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC;
    m_pd.Flags &= ~static_cast<DWORD>(PD_RETURNIC);
    m_pd.lpfnPrintHook = HookProc;
    m_pd.lpfnSetupHook = HookProc;
}

CPrintDialog::~CPrintDialog() = default;

INT_PTR CPrintDialog::DoModal() {
    m_pd.hwndOwner = OwnerWindow();
    m_pd.lCustData = reinterpret_cast<LPARAM>(this);
    const BOOL accepted = ::PrintDlg(&m_pd);
    Detach();
    return accepted ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CPrintDialog::HookProc(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* const dialog = reinterpret_cast<CPrintDialog*>(reinterpret_cast<PRINTDLG*>(lParam)->lCustData);
    // The "Print" dialog may open "Print Setup". The object stays attached to the first window.
    if (dialog->GetSafeHwnd() != nullptr)
        return TRUE;
    return dialog->SubclassWindow(window) && dialog->OnInitDialog();
}

BOOL CPrintDialog::GetDefaults() {
    PRINTDLG defaults = m_pd;
    defaults.Flags = (m_pd.Flags | PD_RETURNDEFAULT) &
                     ~static_cast<DWORD>(PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK | PD_RETURNDC);
    defaults.hDevMode = nullptr; // PD_RETURNDEFAULT requires NULL here
    defaults.hDevNames = nullptr;
    if (!::PrintDlg(&defaults))
        return FALSE;
    ::GlobalFree(m_pd.hDevMode);
    ::GlobalFree(m_pd.hDevNames);
    m_pd.hDevMode = defaults.hDevMode;
    m_pd.hDevNames = defaults.hDevNames;
    return TRUE;
}

int CPrintDialog::GetCopies() const {
    if ((m_pd.Flags & PD_USEDEVMODECOPIES) == 0)
        return m_pd.nCopies;
    const Locked<DEVMODE> settings(m_pd.hDevMode);
    return settings.Get() != nullptr ? settings.Get()->dmCopies : 1;
}

LPDEVMODE CPrintDialog::GetDevMode() const {
    return m_pd.hDevMode != nullptr ? static_cast<LPDEVMODE>(::GlobalLock(m_pd.hDevMode)) : nullptr;
}

CString CPrintDialog::NameAt(WORD DEVNAMES::*offset) const {
    const Locked<DEVNAMES> names(m_pd.hDevNames);
    return names.Get() != nullptr ? CString(reinterpret_cast<LPCTSTR>(names.Get()) + names.Get()->*offset)
                                  : CString();
}

CString CPrintDialog::GetDriverName() const {
    return NameAt(&DEVNAMES::wDriverOffset);
}

CString CPrintDialog::GetDeviceName() const {
    return NameAt(&DEVNAMES::wDeviceOffset);
}

CString CPrintDialog::GetPortName() const {
    return NameAt(&DEVNAMES::wOutputOffset);
}

HDC CPrintDialog::GetPrinterDC() const {
    return m_pd.hDC;
}

HDC CPrintDialog::CreatePrinterDC() {
    const Locked<DEVMODE> settings(m_pd.hDevMode);
    const CString device = GetDeviceName();
    m_pd.hDC =
        device.IsEmpty() ? nullptr : ::CreateDC(GetDriverName(), device, GetPortName(), settings.Get());
    return m_pd.hDC;
}
