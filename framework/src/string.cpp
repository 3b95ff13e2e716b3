#include "afxrt/string.h"

#include "afxrt/exception.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <string_view>

namespace {

template <typename Ch>
std::basic_string_view<Ch> View(const CSimpleStringT<Ch>& text) {
    return {text.GetString(), static_cast<size_t>(text.GetLength())};
}

/// Empty for a null pointer.
template <typename Ch>
std::basic_string_view<Ch> View(const Ch* psz) {
    return {psz, static_cast<size_t>(CSimpleStringT<Ch>::StringLength(psz))};
}

/// An index of a view as CStringT gives it: -1 for none.
constexpr int Index(size_t position) {
    return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

template <typename Ch>
const Ch* OrEmpty(const Ch* psz) {
    static constexpr Ch empty{};
    return psz == nullptr ? &empty : psz;
}

int CompareIgnoringCase(const char* a, const char* b) {
    return _stricmp(a, b);
}
int CompareIgnoringCase(const wchar_t* a, const wchar_t* b) {
    return _wcsicmp(a, b);
}
int CompareByLocale(const char* a, const char* b) {
    return strcoll(a, b);
}
int CompareByLocale(const wchar_t* a, const wchar_t* b) {
    return wcscoll(a, b);
}
int CompareByLocaleIgnoringCase(const char* a, const char* b) {
    return _stricoll(a, b);
}
int CompareByLocaleIgnoringCase(const wchar_t* a, const wchar_t* b) {
    return _wcsicoll(a, b);
}

bool IsSpace(char ch) {
    return std::isspace(static_cast<unsigned char>(ch)) != 0;
}
bool IsSpace(wchar_t ch) {
    return std::iswspace(ch) != 0;
}

// The system's case tables, not the C runtime's: those of the "C" locale know no accented letters.
void ToUpper(char* text, int length) {
    CharUpperBuffA(text, length);
}
void ToUpper(wchar_t* text, int length) {
    CharUpperBuffW(text, length);
}
void ToLower(char* text, int length) {
    CharLowerBuffA(text, length);
}
void ToLower(wchar_t* text, int length) {
    CharLowerBuffW(text, length);
}

DWORD EnvironmentVariable(const char* name, char* value, DWORD size) {
    return GetEnvironmentVariableA(name, value, size);
}
DWORD EnvironmentVariable(const wchar_t* name, wchar_t* value, DWORD size) {
    return GetEnvironmentVariableW(name, value, size);
}

/// MAKEINTRESOURCE makes a pointer of a resource number; the first 64 KB hold no text.
bool IsResourceNumber(const void* psz) {
    return psz != nullptr && IS_INTRESOURCE(psz);
}

UINT ResourceNumber(const void* psz) {
    return static_cast<UINT>(reinterpret_cast<UINT_PTR>(psz));
}

template <typename Ch, typename Unwanted>
CStringT<Ch>& TrimLeftIf(CStringT<Ch>& text, Unwanted unwanted) {
    const auto view = View(text);
    const auto first = std::find_if_not(view.begin(), view.end(), unwanted);
    text.Delete(0, static_cast<int>(first - view.begin()));
    return text;
}

template <typename Ch, typename Unwanted>
CStringT<Ch>& TrimRightIf(CStringT<Ch>& text, Unwanted unwanted) {
    const auto view = View(text);
    const auto last = std::find_if_not(view.rbegin(), view.rend(), unwanted);
    text.Truncate(static_cast<int>(view.rend() - last));
    return text;
}

template <typename Ch>
auto IsCharacter(Ch wanted) {
    return [wanted](Ch ch) { return ch == wanted; };
}

template <typename Ch>
auto IsOneOf(const Ch* characters) {
    return [set = View(characters)](Ch ch) { return set.find(ch) != set.npos; };
}

/// Inserts by building anew: the inserted text may lie in the string itself.
template <typename Ch>
int InsertText(CStringT<Ch>& text, int index, std::basic_string_view<Ch> inserted) {
    if (inserted.empty())
        return text.GetLength();
    index = std::clamp(index, 0, text.GetLength());
    CStringT<Ch> result;
    if (inserted.size() <= static_cast<size_t>(INT_MAX - text.GetLength()))
        result.Preallocate(text.GetLength() + static_cast<int>(inserted.size()));
    result.Append(text, index);
    result.Append(inserted.data(), static_cast<int>(inserted.size()));
    result.Append(text.GetString() + index, text.GetLength() - index);
    text = std::move(result);
    return text.GetLength();
}

const CStringW& Wide(const CStringW& text) {
    return text;
}
CStringW Wide(const CStringA& text) {
    return CStringW(text, text.GetLength());
}

} // namespace

template <typename BaseType>
CStringT<BaseType>::CStringT(const XCHAR* pszSrc) {
    if (IsResourceNumber(pszSrc))
        LoadString(ResourceNumber(pszSrc));
    else
        Base::operator=(pszSrc);
}

template <typename BaseType>
CStringT<BaseType>::CStringT(const YCHAR* pszSrc) {
    if (IsResourceNumber(pszSrc))
        LoadString(ResourceNumber(pszSrc));
    else
        *this = FromOther(pszSrc);
}

template <typename BaseType>
CStringT<BaseType>::CStringT(char ch, int nLength) {
    for (Base::Preallocate(std::max(nLength, 0)); nLength > 0; --nLength)
        Base::operator+=(ch);
}

template <typename BaseType>
CStringT<BaseType>::CStringT(wchar_t ch, int nLength) {
    for (Base::Preallocate(std::max(nLength, 0)); nLength > 0; --nLength)
        Base::operator+=(ch);
}

template <typename BaseType>
int CStringT<BaseType>::Compare(PCXSTR psz) const noexcept {
    return View(this->GetString()).compare(View(psz));
}

template <typename BaseType>
int CStringT<BaseType>::CompareNoCase(PCXSTR psz) const noexcept {
    return CompareIgnoringCase(*this, OrEmpty(psz));
}

template <typename BaseType>
int CStringT<BaseType>::Collate(PCXSTR psz) const noexcept {
    return CompareByLocale(*this, OrEmpty(psz));
}

template <typename BaseType>
int CStringT<BaseType>::CollateNoCase(PCXSTR psz) const noexcept {
    return CompareByLocaleIgnoringCase(*this, OrEmpty(psz));
}

template <typename BaseType>
int CStringT<BaseType>::CompareWith(const XCHAR* pch, int nLength) const noexcept {
    return View(*this).compare({pch, static_cast<size_t>(nLength)});
}

template <typename BaseType>
int CStringT<BaseType>::Find(PCXSTR pszSub, int iStart) const noexcept {
    return iStart < 0 || pszSub == nullptr ? -1 : Index(View(*this).find(pszSub, iStart));
}

template <typename BaseType>
int CStringT<BaseType>::Find(XCHAR ch, int iStart) const noexcept {
    return iStart < 0 ? -1 : Index(View(*this).find(ch, iStart));
}

template <typename BaseType>
int CStringT<BaseType>::ReverseFind(XCHAR ch) const noexcept {
    return Index(View(*this).rfind(ch));
}

template <typename BaseType>
int CStringT<BaseType>::FindOneOf(PCXSTR pszCharSet) const noexcept {
    return Index(View(*this).find_first_of(View(pszCharSet)));
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Left(int nCount) const {
    return Mid(0, nCount);
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Mid(int iFirst, int nCount) const {
    const int length = this->GetLength();
    iFirst = std::clamp(iFirst, 0, length);
    nCount = std::clamp(nCount, 0, length - iFirst);
    return nCount == length ? *this : CStringT(this->GetString() + iFirst, nCount);
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Mid(int iFirst) const {
    return Mid(iFirst, this->GetLength());
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Right(int nCount) const {
    const int length = this->GetLength();
    return Mid(length - std::clamp(nCount, 0, length));
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::SpanIncluding(PCXSTR pszCharSet) const {
    const auto end = View(*this).find_first_not_of(View(pszCharSet));
    return end == std::string_view::npos ? *this : Left(static_cast<int>(end));
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::SpanExcluding(PCXSTR pszCharSet) const {
    const auto end = View(*this).find_first_of(View(pszCharSet));
    return end == std::string_view::npos ? *this : Left(static_cast<int>(end));
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Tokenize(PCXSTR pszTokens, int& iStart) const {
    const auto delimiters = View(pszTokens);
    const auto first =
        iStart < 0 ? std::string_view::npos : View(*this).find_first_not_of(delimiters, iStart);
    if (first == std::string_view::npos) {
        iStart = -1;
        return CStringT();
    }
    const auto end = std::min(View(*this).find_first_of(delimiters, first), View(*this).size());
    // After the last token as well, the start of the next search: -1 comes with the call after it,
    // so that a loop until -1 sees the last token.
    iStart = static_cast<int>(end) + 1;
    return Mid(static_cast<int>(first), static_cast<int>(end - first));
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimLeft() {
    return TrimLeftIf(*this, [](XCHAR ch) { return IsSpace(ch); });
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimLeft(XCHAR chTarget) {
    return TrimLeftIf(*this, IsCharacter(chTarget));
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimLeft(PCXSTR pszTargets) {
    return TrimLeftIf(*this, IsOneOf(pszTargets));
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimRight() {
    return TrimRightIf(*this, [](XCHAR ch) { return IsSpace(ch); });
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimRight(XCHAR chTarget) {
    return TrimRightIf(*this, IsCharacter(chTarget));
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::TrimRight(PCXSTR pszTargets) {
    return TrimRightIf(*this, IsOneOf(pszTargets));
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::MakeUpper() {
    ToUpper(this->GetBuffer(), this->GetLength());
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::MakeLower() {
    ToLower(this->GetBuffer(), this->GetLength());
    return *this;
}

template <typename BaseType>
CStringT<BaseType>& CStringT<BaseType>::MakeReverse() {
    const PXSTR text = this->GetBuffer();
    std::reverse(text, text + this->GetLength());
    return *this;
}

template <typename BaseType>
int CStringT<BaseType>::Replace(PCXSTR pszOld, PCXSTR pszNew) {
    const auto text = View(*this);
    const auto old = View(pszOld);
    if (old.empty())
        return 0;

    CStringT result;
    int count = 0;
    size_t done = 0;
    for (size_t found; (found = text.find(old, done)) != text.npos; done = found + old.size()) {
        result.Append(text.data() + done, static_cast<int>(found - done));
        result.Append(pszNew);
        ++count;
    }
    if (count > 0) {
        result.Append(text.data() + done, static_cast<int>(text.size() - done));
        *this = std::move(result);
    }
    return count;
}

template <typename BaseType>
int CStringT<BaseType>::Replace(XCHAR chOld, XCHAR chNew) {
    const auto text = View(*this);
    const auto count = chOld == chNew ? 0 : std::count(text.begin(), text.end(), chOld);
    if (count > 0) {
        const PXSTR buffer = this->GetBuffer();
        std::replace(buffer, buffer + this->GetLength(), chOld, chNew);
    }
    return static_cast<int>(count);
}

template <typename BaseType>
int CStringT<BaseType>::Remove(XCHAR chRemove) {
    if (Find(chRemove) == -1)
        return 0;
    const int length = this->GetLength();
    const PXSTR buffer = this->GetBuffer();
    const auto end = std::remove(buffer, buffer + length, chRemove);
    this->Truncate(static_cast<int>(end - buffer));
    return length - this->GetLength();
}

template <typename BaseType>
int CStringT<BaseType>::Insert(int iIndex, PCXSTR psz) {
    return InsertText(*this, iIndex, View(psz));
}

template <typename BaseType>
int CStringT<BaseType>::Insert(int iIndex, XCHAR ch) {
    return InsertText(*this, iIndex, std::basic_string_view<XCHAR>(&ch, 1));
}

template <typename BaseType>
int CStringT<BaseType>::Delete(int iIndex, int nCount) {
    const int length = this->GetLength();
    iIndex = std::clamp(iIndex, 0, length);
    nCount = std::clamp(nCount, 0, length - iIndex);
    if (nCount > 0) {
        const PXSTR buffer = this->GetBuffer();
        std::copy(buffer + iIndex + nCount, buffer + length, buffer + iIndex);
        this->Truncate(length - nCount);
    }
    return this->GetLength();
}

template <typename BaseType>
BOOL CStringT<BaseType>::GetEnvironmentVariable(PCXSTR pszVar) {
    const DWORD size = EnvironmentVariable(pszVar, static_cast<PXSTR>(nullptr), 0);
    if (size == 0) {
        this->Empty();
        return FALSE;
    }
    EnvironmentVariable(pszVar, this->GetBuffer(static_cast<int>(size)), size);
    this->ReleaseBuffer();
    return TRUE;
}

template <typename BaseType>
BSTR CStringT<BaseType>::AllocSysString() const {
    const CStringW& text = Wide(*this);
    const BSTR copy = SysAllocStringLen(text, text.GetLength());
    if (copy == nullptr)
        AfxThrowMemoryException();
    return copy;
}

template <typename BaseType>
BSTR CStringT<BaseType>::SetSysString(BSTR* pbstr) const {
    const CStringW& text = Wide(*this);
    if (!SysReAllocStringLen(pbstr, text, text.GetLength()))
        AfxThrowMemoryException();
    return *pbstr;
}

template <typename BaseType>
CStringT<BaseType> CStringT<BaseType>::Concatenate(PCXSTR psz1, int nLength1, PCXSTR psz2,
                                                   int nLength2) {
    CStringT result;
    if (nLength2 <= INT_MAX - nLength1)
        result.Preallocate(nLength1 + nLength2);
    result.Append(psz1, nLength1);
    result.Append(psz2, nLength2);
    return result;
}

template class CStringT<char>;
template class CStringT<wchar_t>;
