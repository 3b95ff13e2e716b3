#include "afxrt/string.h"

#include "afxrt/module.h"

#include <string_view>

namespace {

/// Strings live in blocks of sixteen: a resource holds, one after the other, a length and so many
/// characters for each of them.
constexpr UINT stringsPerBlock = 16;

LPCTSTR BlockName(UINT id) {
    return MAKEINTRESOURCE(id / stringsPerBlock + 1);
}

/// The text of string `id` in its block, empty when the block is missing or holds no such string.
/// Valid as long as the module is loaded.
std::wstring_view StringInBlock(HINSTANCE module, HRSRC block, UINT id) {
    const HGLOBAL loaded = block == nullptr ? nullptr : LoadResource(module, block);
    const auto* next = loaded == nullptr ? nullptr : static_cast<LPCWSTR>(LockResource(loaded));
    if (next == nullptr)
        return {};
    const auto* const end = next + SizeofResource(module, block) / sizeof(WCHAR);
    for (UINT i = id % stringsPerBlock; i > 0 && next < end; --i)
        next += 1 + *next;
    if (next >= end || *next > end - next - 1)
        return {};
    return {next + 1, *next};
}

template <typename Ch>
BOOL Take(std::wstring_view found, CStringT<Ch>& text) {
    text = CStringT<Ch>(found.data(), static_cast<int>(found.size()));
    return !text.IsEmpty();
}

/// The template text with `%1`, `%2`, ... replaced by the inserts.
CString WithInserts(const CString& format, std::initializer_list<LPCTSTR> inserts) {
    CString result;
    for (int i = 0; i < format.GetLength(); ++i) {
        const size_t insert = format[i] == '%' ? format[i + 1] - size_t{'1'} : inserts.size();
        if (insert < inserts.size()) {
            result += inserts.begin()[insert];
            ++i;
        } else {
            result += format[i];
        }
    }
    return result;
}

} // namespace

BOOL afx_internal::LoadStringFrom(HINSTANCE module, UINT id, CString& text) {
    return text.LoadString(module, id);
}

template <typename BaseType>
BOOL CStringT<BaseType>::LoadString(UINT nID) {
    CString found;
    afx_internal::LoadStringFromChain(nID, found);
    return Take({found.GetString(), static_cast<size_t>(found.GetLength())}, *this);
}

template <typename BaseType>
BOOL CStringT<BaseType>::LoadString(HINSTANCE hInstance, UINT nID) {
    return Take(StringInBlock(hInstance, FindResource(hInstance, BlockName(nID), RT_STRING), nID),
                *this);
}

template <typename BaseType>
BOOL CStringT<BaseType>::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID) {
    const HRSRC block = FindResourceEx(hInstance, RT_STRING, BlockName(nID), wLanguageID);
    return Take(StringInBlock(hInstance, block, nID), *this);
}

#define INSTANTIATE(Ch)                                                                            \
    template BOOL CStringT<Ch>::LoadString(UINT);                                                  \
    template BOOL CStringT<Ch>::LoadString(HINSTANCE, UINT);                                       \
    template BOOL CStringT<Ch>::LoadString(HINSTANCE, UINT, WORD)
INSTANTIATE(char);
INSTANTIATE(wchar_t);
#undef INSTANTIATE

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) {
    CString format;
    format.LoadString(nIDS);
    rString = WithInserts(format, {lpsz1});
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    CString format;
    format.LoadString(nIDS);
    rString = WithInserts(format, {lpsz1, lpsz2});
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                TCHAR chSep) {
    if (lpszFullString == nullptr)
        return FALSE;
    std::basic_string_view<TCHAR> rest(lpszFullString);
    for (; iSubString > 0; --iSubString) {
        const size_t separator = rest.find(chSep);
        if (separator == rest.npos)
            break;
        rest.remove_prefix(separator + 1);
    }
    if (iSubString != 0) {
        rString.Empty();
        return FALSE;
    }
    rest = rest.substr(0, rest.find(chSep));
    rString = CString(rest.data(), static_cast<int>(rest.size()));
    return TRUE;
}
