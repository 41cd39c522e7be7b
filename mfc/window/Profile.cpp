// SPDX-License-Identifier: MIT
// CWinApp: profile data in the registry (after SetRegistryKey()) or in an INI file.

#include "afx/App.h"
#include "afx/Module.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

/// Owns an open registry key.
class Key {
public:
    explicit Key(HKEY key) : m_key(key) {}
    ~Key() {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    HKEY Get() const { return m_key; }

private:
    HKEY m_key;
};

HKEY OpenBelow(HKEY parent, LPCTSTR name) {
    HKEY key = nullptr;
    if (parent == nullptr || name == nullptr)
        return nullptr;
    ::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr, &key,
                     nullptr);
    return key;
}

/// Reads a value of type `type`. Returns false if the value does not exist or has another type.
bool ReadValue(HKEY section, LPCTSTR entry, DWORD type, std::vector<BYTE>& bytes) {
    DWORD present = 0;
    DWORD size = 0;
    if (section == nullptr ||
        ::RegQueryValueEx(section, entry, nullptr, &present, nullptr, &size) != ERROR_SUCCESS ||
        present != type)
        return false;
    bytes.resize(size);
    if (size != 0 &&
        ::RegQueryValueEx(section, entry, nullptr, &present, bytes.data(), &size) != ERROR_SUCCESS)
        return false;
    bytes.resize(size);
    return true;
}

bool WriteValue(HKEY section, LPCTSTR entry, DWORD type, const void* data, std::size_t size) {
    return section != nullptr && ::RegSetValueEx(section, entry, 0, type, static_cast<const BYTE*>(data),
                                                 static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

CString ReadIniText(LPCTSTR file, LPCTSTR section, LPCTSTR entry, LPCTSTR fallback) {
    std::vector<TCHAR> text(4096);
    for (;;) {
        const DWORD length = ::GetPrivateProfileString(section, entry, fallback, text.data(),
                                                       static_cast<DWORD>(text.size()), file);
        if (length + 1 < text.size() || text.size() > 0x100000)
            return CString(text.data());
        text.resize(text.size() * 2); // the buffer was too small
    }
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    ASSERT(lpszRegistryKey != nullptr && m_pszAppName != nullptr);
    std::free(const_cast<LPTSTR>(m_pszRegistryKey));
    m_pszRegistryKey = _tcsdup(lpszRegistryKey);
    std::free(const_cast<LPTSTR>(m_pszProfileName));
    m_pszProfileName = _tcsdup(m_pszAppName != nullptr ? m_pszAppName : _T(""));
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey) {
    TCHAR key[256] = _T("");
    AfxLoadString(nIDRegistryKey, key, _countof(key));
    SetRegistryKey(key);
}

HKEY CWinApp::GetAppRegistryKey() {
    if (m_pszRegistryKey == nullptr || m_pszProfileName == nullptr)
        return nullptr;
    const Key software(OpenBelow(HKEY_CURRENT_USER, TEXT("Software")));
    const Key company(OpenBelow(software.Get(), m_pszRegistryKey));
    return OpenBelow(company.Get(), m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection) {
    const Key application(GetAppRegistryKey());
    return OpenBelow(application.Get(), lpszSection);
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    const Key section(GetSectionKey(lpszSection));
    std::vector<BYTE> bytes;
    DWORD value = static_cast<DWORD>(nDefault);
    if (ReadValue(section.Get(), lpszEntry, REG_DWORD, bytes) && bytes.size() == sizeof(value))
        std::memcpy(&value, bytes.data(), sizeof(value));
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (m_pszRegistryKey == nullptr) {
        CString value;
        value.Format(_T("%d"), nValue);
        return ::WritePrivateProfileString(lpszSection, lpszEntry, value, m_pszProfileName);
    }
    const Key section(GetSectionKey(lpszSection));
    return WriteValue(section.Get(), lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    const LPCTSTR fallback = lpszDefault != nullptr ? lpszDefault : TEXT("");
    if (m_pszRegistryKey == nullptr)
        return ReadIniText(m_pszProfileName, lpszSection, lpszEntry, fallback);
    const Key section(GetSectionKey(lpszSection));
    std::vector<BYTE> bytes;
    if (!ReadValue(section.Get(), lpszEntry, REG_SZ, bytes))
        return CString(fallback);
    // A stored text may lack its terminating zero, and UTF-16 may have an odd number of bytes.
    bytes.resize(bytes.size() + 2 * sizeof(TCHAR));
    return CString(reinterpret_cast<LPCTSTR>(bytes.data()));
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (lpszEntry == nullptr) {
        const Key application(GetAppRegistryKey());
        return application.Get() != nullptr &&
               ::RegDeleteKey(application.Get(), lpszSection) == ERROR_SUCCESS;
    }
    const Key section(GetSectionKey(lpszSection));
    if (lpszValue == nullptr) {
        const LONG result = section.Get() != nullptr ? ::RegDeleteValue(section.Get(), lpszEntry)
                                                     : static_cast<LONG>(ERROR_INVALID_HANDLE);
        return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
    }
    return WriteValue(section.Get(), lpszEntry, REG_SZ, lpszValue, (_tcslen(lpszValue) + 1) * sizeof(TCHAR));
}

// An INI file stores bytes as pairs of hexadecimal digits.

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    std::vector<BYTE> bytes;
    if (m_pszRegistryKey != nullptr) {
        const Key section(GetSectionKey(lpszSection));
        if (!ReadValue(section.Get(), lpszEntry, REG_BINARY, bytes))
            return FALSE;
    } else {
        const CString text = ReadIniText(m_pszProfileName, lpszSection, lpszEntry, TEXT(""));
        if (text.IsEmpty() || text.GetLength() % 2 != 0)
            return FALSE;
        for (int i = 0; i < text.GetLength(); i += 2) {
            const TCHAR pair[] = {text[i], text[i + 1], 0};
            LPTSTR end = nullptr;
            bytes.push_back(static_cast<BYTE>(_tcstoul(pair, &end, 16)));
            if (end != pair + 2)
                return FALSE;
        }
    }
    *ppData = new BYTE[bytes.size()];
    if (!bytes.empty())
        std::memcpy(*ppData, bytes.data(), bytes.size());
    *pBytes = static_cast<UINT>(bytes.size());
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    if (m_pszRegistryKey != nullptr) {
        const Key section(GetSectionKey(lpszSection));
        return WriteValue(section.Get(), lpszEntry, REG_BINARY, pData, nBytes);
    }
    const TCHAR digits[] = _T("0123456789ABCDEF");
    AfxText text;
    for (UINT i = 0; i < nBytes; ++i) {
        text += digits[pData[i] >> 4];
        text += digits[pData[i] & 15];
    }
    return ::WritePrivateProfileString(lpszSection, lpszEntry, text.c_str(), m_pszProfileName);
}
