// The application profile: an .INI file, or the registry once a key was set.
#include "afxrt/app.h"

#include "owned_text.h"

#include <cstring>
#include <cwchar>
#include <string>
#include <vector>

namespace {

class RegistryKey {
public:
    explicit RegistryKey(HKEY key) : m_key(key) {}
    ~RegistryKey() {
        if (m_key)
            ::RegCloseKey(m_key);
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    operator HKEY() const { return m_key; }

private:
    HKEY m_key;
};

HKEY OpenSubkey(HKEY parent, LPCTSTR name) {
    HKEY key = nullptr;
    if (parent)
        ::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                         nullptr, &key, nullptr);
    return key;
}

// A value of the registry whole, of the wanted type; empty when there is none.
std::vector<BYTE> ReadValue(HKEY section, LPCTSTR entry, DWORD wanted) {
    DWORD type = 0;
    DWORD bytes = 0;
    if (!section ||
        ::RegQueryValueEx(section, entry, nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS ||
        type != wanted)
        return {};
    std::vector<BYTE> value(bytes);
    if (::RegQueryValueEx(section, entry, nullptr, &type, value.data(), &bytes) != ERROR_SUCCESS)
        return {};
    value.resize(bytes);
    return value;
}

BOOL WriteValue(HKEY section, LPCTSTR entry, DWORD type, const void* data, DWORD bytes) {
    return section && ::RegSetValueEx(section, entry, 0, type, static_cast<const BYTE*>(data),
                                      bytes) == ERROR_SUCCESS;
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    afx_internal::ReplaceText(m_pszRegistryKey, lpszRegistryKey);
    // In the registry the profile goes by the application's name, not by a file's.
    afx_internal::ReplaceText(m_pszProfileName, m_pszAppName ? m_pszAppName : L"");
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey) {
    CString name;
    name.LoadString(nIDRegistryKey);
    SetRegistryKey(name.GetString());
}

HKEY CWinApp::GetAppRegistryKey() {
    if (!m_pszRegistryKey || !m_pszProfileName)
        return nullptr;
    const RegistryKey software(OpenSubkey(HKEY_CURRENT_USER, L"Software"));
    const RegistryKey company(OpenSubkey(software, m_pszRegistryKey));
    return OpenSubkey(company, m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection) {
    const RegistryKey app(GetAppRegistryKey());
    return OpenSubkey(app, lpszSection);
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (!m_pszRegistryKey)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    const RegistryKey section(GetSectionKey(lpszSection));
    DWORD type = REG_NONE;
    DWORD number = 0;
    DWORD bytes = sizeof number;
    const LSTATUS status = section ? ::RegQueryValueEx(section, lpszEntry, nullptr, &type,
                                                       reinterpret_cast<BYTE*>(&number), &bytes)
                                   : ERROR_FILE_NOT_FOUND;
    if (status == ERROR_FILE_NOT_FOUND)
        return static_cast<UINT>(nDefault);
    return status == ERROR_SUCCESS && type == REG_DWORD ? number : 0;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (!m_pszRegistryKey)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, std::to_wstring(nValue).c_str(),
                                           m_pszProfileName);
    const RegistryKey section(GetSectionKey(lpszSection));
    return WriteValue(section, lpszEntry, REG_DWORD, &nValue, sizeof nValue);
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    const LPCTSTR fallback = lpszDefault ? lpszDefault : L"";
    if (!m_pszRegistryKey) {
        std::vector<wchar_t> text(MAX_PATH);
        for (;;) {
            const DWORD length =
                ::GetPrivateProfileString(lpszSection, lpszEntry, fallback, text.data(),
                                          static_cast<DWORD>(text.size()), m_pszProfileName);
            if (length + 1 < text.size())
                return CString(text.data(), static_cast<int>(length));
            text.resize(text.size() * 2); // it may have been cut off
        }
    }
    const RegistryKey section(GetSectionKey(lpszSection));
    const std::vector<BYTE> value = ReadValue(section, lpszEntry, REG_SZ);
    if (value.empty())
        return fallback;
    const auto* text = reinterpret_cast<const wchar_t*>(value.data());
    return CString(text, static_cast<int>(wcsnlen(text, value.size() / sizeof(wchar_t))));
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (!m_pszRegistryKey)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (!lpszEntry) { // the whole section goes
        const RegistryKey app(GetAppRegistryKey());
        return app && ::RegDeleteTree(app, lpszSection) == ERROR_SUCCESS;
    }
    const RegistryKey section(GetSectionKey(lpszSection));
    if (!lpszValue)
        return section && ::RegDeleteValue(section, lpszEntry) == ERROR_SUCCESS;
    return WriteValue(section, lpszEntry, REG_SZ, lpszValue,
                      static_cast<DWORD>((std::wcslen(lpszValue) + 1) * sizeof(wchar_t)));
}

// In an .INI file binary data are hexadecimal digits, two a byte.
BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData,
                               UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    std::vector<BYTE> value;
    if (m_pszRegistryKey) {
        const RegistryKey section(GetSectionKey(lpszSection));
        value = ReadValue(section, lpszEntry, REG_BINARY);
    } else {
        const CString text = GetProfileString(lpszSection, lpszEntry);
        for (int i = 0; i + 1 < text.GetLength(); i += 2) {
            const wchar_t digits[] = {text[i], text[i + 1], L'\0'};
            value.push_back(static_cast<BYTE>(std::wcstoul(digits, nullptr, 16)));
        }
    }
    if (value.empty())
        return FALSE;
    *pBytes = static_cast<UINT>(value.size());
    *ppData = new BYTE[value.size()];
    std::memcpy(*ppData, value.data(), value.size());
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData,
                                 UINT nBytes) {
    if (m_pszRegistryKey) {
        const RegistryKey section(GetSectionKey(lpszSection));
        return WriteValue(section, lpszEntry, REG_BINARY, pData, nBytes);
    }
    std::wstring text;
    constexpr const wchar_t* digits = L"0123456789ABCDEF";
    for (UINT i = 0; i < nBytes; ++i) {
        text += digits[pData[i] >> 4];
        text += digits[pData[i] & 0x0F];
    }
    return WriteProfileString(lpszSection, lpszEntry, text.c_str());
}
