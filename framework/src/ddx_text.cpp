// Data exchange of texts and numbers, and the validations.
#include "afxres.h"
#include "afxrt/ddx.h"
#include "window_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace {

using afx_internal::SetTextIfDifferent;

[[noreturn]] void Refuse(CDataExchange* pDX, UINT prompt) {
    AfxMessageBox(prompt);
    pDX->Fail();
}

// The text's characters without blanks around them, when all of them can be part of a number.
bool NumberCharacters(std::wstring_view text, std::string& characters) {
    constexpr std::wstring_view blanks = L" \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::wstring_view::npos)
        return false;
    text = text.substr(first, text.find_last_not_of(blanks) - first + 1);
    if (text.starts_with(L'+')) { // a sign that the conversions below do not take
        text.remove_prefix(1);
        if (text.starts_with(L'-'))
            return false;
    }
    characters.clear();
    for (const wchar_t c : text) {
        if (c >= 0x80)
            return false;
        characters.push_back(static_cast<char>(c));
    }
    return true;
}

// The whole text as a number of the type; false when it is none or does not fit.
template <class Number>
bool Parse(std::wstring_view text, Number& value) {
    std::string characters;
    if (!NumberCharacters(text, characters))
        return false;
    const char* const end = characters.data() + characters.size();
    const auto [stop, error] = std::from_chars(characters.data(), end, value);
    if (error != std::errc() || stop != end)
        return false;
    if constexpr (std::is_floating_point_v<Number>)
        return std::isfinite(value);
    return true;
}

/// A number as a text.
template <class Number>
class Shown {
public:
    explicit Shown(Number value) {
        char digits[longest];
        std::to_chars_result result;
        if constexpr (std::is_floating_point_v<Number>)
            result = std::to_chars(digits, std::end(digits), value, std::chars_format::general,
                                   std::numeric_limits<Number>::digits10);
        else
            result = std::to_chars(digits, std::end(digits), value);
        *std::copy(digits, result.ptr, m_text) = L'\0';
    }
    operator LPCTSTR() const { return m_text; }

private:
    static constexpr std::size_t longest = 32;
    wchar_t m_text[longest + 1];
};

template <class Number>
void ExchangeNumber(CDataExchange* pDX, int nIDC, Number& value, UINT prompt) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        SetTextIfDifferent(control, Shown(value));
        return;
    }
    Number read{};
    if (!Parse(afx_internal::WindowText(control).View(), read))
        Refuse(pDX, prompt);
    value = read;
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        SetTextIfDifferent(control, value);
        return;
    }
    afx_internal::ReadText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        SetTextIfDifferent(control, value);
        return;
    }
    if (::GetWindowTextLength(control) >= nMaxLen) {
        CString text;
        text.Format(L"%d", nMaxLen - 1);
        CString prompt;
        AfxFormatString1(prompt, AFX_IDP_PARSE_STRING_SIZE, text);
        AfxMessageBox(prompt, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
        pDX->Fail();
    }
    ::GetWindowText(control, value, nMaxLen);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_BYTE);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_REAL);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    ExchangeNumber(pDX, nIDC, value, AFX_IDP_PARSE_REAL);
}

namespace {

template <class Number>
void RequireRange(CDataExchange* pDX, Number value, Number low, Number high, UINT prompt) {
    if (!pDX->m_bSaveAndValidate || (value >= low && value <= high))
        return;
    CString text;
    AfxFormatString2(text, prompt, Shown(low), Shown(high));
    AfxMessageBox(text, MB_ICONEXCLAMATION, prompt);
    pDX->Fail();
}

} // namespace

void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    RequireRange<int>(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    RequireRange<int>(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal,
                               LONGLONG maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                ULONGLONG maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, unsigned value, unsigned minVal,
                               unsigned maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_REAL_RANGE);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal,
                             double maxVal) {
    RequireRange(pDX, value, minVal, maxVal, AFX_IDP_PARSE_REAL_RANGE);
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars) {
    if (pDX->m_bSaveAndValidate && value.GetLength() > nChars) {
        CString prompt;
        AfxFormatString1(prompt, AFX_IDP_PARSE_STRING_SIZE, Shown(nChars));
        AfxMessageBox(prompt, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
        pDX->Fail();
    }
}
