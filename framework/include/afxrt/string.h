// CSimpleStringT, CStringT and CString: reference-counted strings that are copied when written.
#pragma once

#include "afxrt/config.h"

#include <atomic>
#include <compare>
#include <cstdarg>
#include <oleauto.h>
#include <tchar.h>
#include <type_traits>
#include <utility>

// Makes the converting constructors explicit in projects that ask for it.
#if defined(_ATL_CSTRING_EXPLICIT_CONSTRUCTORS)
#define CSTRING_EXPLICIT explicit
#else
#define CSTRING_EXPLICIT
#endif

namespace afx_internal {

/// Stands in memory right before the characters of a string.
struct StringHeader {
    /// Number of strings that share the buffer; `locked` while one holds it for itself alone.
    mutable std::atomic<int> references;
    int length;
    int capacity; ///< In characters, without the terminator.

    static constexpr int locked = -1;
};

/// The buffer of all empty strings: never counted, never written, never freed.
struct NilString {
    StringHeader header;
    wchar_t terminator;
};
extern AFXRT_API const NilString nilString;

} // namespace afx_internal

/// Characters with a length in a shared buffer; one pointer in size. `BaseType` is `char` or
/// `wchar_t`. Indices and lengths count characters and start at 0. A function that needs memory
/// throws CMemoryException when there is none; one that says so throws CInvalidArgException.
template <typename BaseType>
class AFXRT_API CSimpleStringT {
public:
    using XCHAR = BaseType;
    using PXSTR = XCHAR*;
    using PCXSTR = const XCHAR*;
    using YCHAR = std::conditional_t<std::is_same_v<XCHAR, wchar_t>, char, wchar_t>;
    using PYSTR = YCHAR*;
    using PCYSTR = const YCHAR*;

    CSimpleStringT() noexcept : m_pszData(Nil()) {}
    /// A null pointer makes an empty string.
    CSimpleStringT(PCXSTR pszSrc);
    /// Copies exactly `nLength` characters, null characters included. Throws
    /// CInvalidArgException when the length is negative, or positive without a source.
    CSimpleStringT(const XCHAR* pchSrc, int nLength);
    CSimpleStringT(const CSimpleStringT& strSrc);
    /// Leaves the source empty.
    CSimpleStringT(CSimpleStringT&& strSrc) noexcept
        : m_pszData(std::exchange(strSrc.m_pszData, Nil())) {}
    ~CSimpleStringT() { Release(); }

    CSimpleStringT& operator=(const CSimpleStringT& strSrc);
    /// Leaves the source empty. A locked string keeps its own buffer and copies.
    CSimpleStringT& operator=(CSimpleStringT&& strSrc) noexcept;
    /// A null pointer empties the string.
    CSimpleStringT& operator=(PCXSTR pszSrc);

    CSimpleStringT& operator+=(const CSimpleStringT& strSrc) {
        Append(strSrc);
        return *this;
    }
    CSimpleStringT& operator+=(PCXSTR pszSrc) {
        Append(pszSrc);
        return *this;
    }
    /// A character of the other type is converted by the ANSI code page.
    CSimpleStringT& operator+=(char ch);
    CSimpleStringT& operator+=(unsigned char ch) { return *this += static_cast<char>(ch); }
    CSimpleStringT& operator+=(wchar_t ch);

    operator PCXSTR() const noexcept { return m_pszData; }
    XCHAR operator[](int iChar) const { return GetAt(iChar); }

    /// The character at `iChar`, or the terminator when `iChar` is the length. Throws
    /// CInvalidArgException beyond it.
    XCHAR GetAt(int iChar) const {
        if (iChar < 0 || iChar > GetLength())
            ThrowInvalidArgument();
        return m_pszData[iChar];
    }
    /// Throws CInvalidArgException unless `iChar` is inside the string.
    void SetAt(int iChar, XCHAR ch);

    int GetLength() const noexcept { return Header()->length; }
    int GetAllocLength() const noexcept { return Header()->capacity; }
    PCXSTR GetString() const noexcept { return m_pszData; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    void Empty() noexcept;

    /// Throws CInvalidArgException for a null pointer.
    void SetString(PCXSTR pszSrc);
    /// Copies up to `nLength` characters, ending at a terminator. Throws CInvalidArgException for
    /// a null pointer or a negative length. The source may lie in the string itself.
    void SetString(PCXSTR pszSrc, int nLength);

    void Append(const CSimpleStringT& strSrc) { Append(strSrc.m_pszData, strSrc.GetLength()); }
    void Append(PCXSTR pszSrc) { Append(pszSrc, StringLength(pszSrc)); }
    /// Throws CInvalidArgException when the length is negative, or positive without a source. The
    /// source may lie in the string itself.
    void Append(PCXSTR pszSrc, int nLength);
    void AppendChar(XCHAR ch) { Append(&ch, 1); }

    /// The buffer, for writing: at least `nMinBufferLength` characters and a terminator, the text
    /// kept. ReleaseBuffer ends the writing. Throws CInvalidArgException for a negative length.
    PXSTR GetBuffer(int nMinBufferLength);
    PXSTR GetBuffer() { return GetBuffer(GetLength()); }
    /// As GetBuffer, and makes the string exactly `nLength` characters long.
    PXSTR GetBufferSetLength(int nLength);
    /// Takes over the length after writing through GetBuffer; -1 looks for the terminator.
    void ReleaseBuffer(int nNewLength = -1);
    /// Throws CInvalidArgException unless the length is between 0 and the capacity.
    void ReleaseBufferSetLength(int nNewLength);

    /// Keeps the buffer for this string alone, until UnlockBuffer or until the text outgrows it.
    PXSTR LockBuffer();
    void UnlockBuffer() noexcept;

    void Preallocate(int nLength) { GetBuffer(nLength); }
    /// Shrinks the buffer to what the text needs.
    void FreeExtra();
    /// Cuts the text; a length beyond the end changes nothing. Throws CInvalidArgException for a
    /// negative length.
    void Truncate(int nNewLength);

    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept;
    /// Copies nothing when `nChars` exceed the `nDestLen` characters of the destination.
    static void CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc,
                          int nChars) noexcept;
    static void CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept;
    /// 0 for a null pointer.
    static int StringLength(PCXSTR psz) noexcept;

protected:
    /// Replaces the text by exactly `nLength` characters, which may lie in the string itself.
    void Assign(const XCHAR* pchSrc, int nLength);
    /// The same text in the other character type, by the ANSI code page.
    static CSimpleStringT Converted(const YCHAR* pch, int nLength);
    [[noreturn]] static void ThrowInvalidArgument();

private:
    using StringHeader = afx_internal::StringHeader;

    static PXSTR Nil() noexcept {
        return reinterpret_cast<PXSTR>(
            const_cast<StringHeader*>(&afx_internal::nilString.header + 1));
    }
    static PXSTR Allocate(int nCapacity);
    StringHeader* Header() const noexcept { return reinterpret_cast<StringHeader*>(m_pszData) - 1; }
    bool IsNil() const noexcept { return m_pszData == Nil(); }
    bool IsLocked() const noexcept;
    bool CanWrite(int nLength) const noexcept;
    void Reallocate(int nCapacity);
    void SetLength(int nLength) noexcept;
    void Release() noexcept;

    PXSTR m_pszData;
};

/// A string with formatting, searching and editing. An index or count of a part that reaches
/// beyond the text is cut to the text; a null pointer stands for an empty text.
template <typename BaseType>
class AFXRT_API CStringT : public CSimpleStringT<BaseType> {
    using Base = CSimpleStringT<BaseType>;

public:
    using typename Base::PCXSTR;
    using typename Base::PCYSTR;
    using typename Base::PXSTR;
    using typename Base::PYSTR;
    using typename Base::XCHAR;
    using typename Base::YCHAR;

    CStringT() noexcept = default;
    CStringT(const CStringT&) = default;
    CStringT(CStringT&&) noexcept = default;
    CStringT(const Base& strSrc) : Base(strSrc) {}
    CStringT(Base&& strSrc) noexcept : Base(std::move(strSrc)) {}
    /// Also takes MAKEINTRESOURCE(id): the string resource `id`, empty when there is none.
    CStringT(const XCHAR* pszSrc);
    /// Converts between the ANSI code page and Unicode; also takes MAKEINTRESOURCE(id).
    CSTRING_EXPLICIT CStringT(const YCHAR* pszSrc);
    CSTRING_EXPLICIT CStringT(const unsigned char* pszSrc)
        : CStringT(reinterpret_cast<const char*>(pszSrc)) {}
    CSTRING_EXPLICIT CStringT(char ch, int nLength = 1);
    CSTRING_EXPLICIT CStringT(wchar_t ch, int nLength = 1);
    CStringT(const XCHAR* pch, int nLength) : Base(pch, nLength) {}
    CStringT(const YCHAR* pch, int nLength) : Base(Base::Converted(pch, nLength)) {}
    ~CStringT() = default;

    CStringT& operator=(const CStringT&) = default;
    CStringT& operator=(CStringT&&) noexcept = default;
    CStringT& operator=(const Base& strSrc) {
        Base::operator=(strSrc);
        return *this;
    }
    CStringT& operator=(PCXSTR pszSrc) {
        Base::operator=(pszSrc);
        return *this;
    }
    CStringT& operator=(PCYSTR pszSrc) { return *this = FromOther(pszSrc); }
    CStringT& operator=(const unsigned char* pszSrc) {
        return *this = reinterpret_cast<const char*>(pszSrc);
    }
    CStringT& operator=(char ch) { return *this = CStringT(ch); }
    CStringT& operator=(wchar_t ch) { return *this = CStringT(ch); }

    CStringT& operator+=(const Base& str) {
        Base::Append(str);
        return *this;
    }
    CStringT& operator+=(PCXSTR pszSrc) {
        Base::Append(pszSrc);
        return *this;
    }
    CStringT& operator+=(PCYSTR pszSrc) {
        Base::Append(FromOther(pszSrc));
        return *this;
    }
    CStringT& operator+=(char ch) {
        Base::operator+=(ch);
        return *this;
    }
    CStringT& operator+=(unsigned char ch) {
        Base::operator+=(ch);
        return *this;
    }
    CStringT& operator+=(wchar_t ch) {
        Base::operator+=(ch);
        return *this;
    }

    friend CStringT operator+(const CStringT& str1, const CStringT& str2) {
        return Concatenate(str1, str1.GetLength(), str2, str2.GetLength());
    }
    friend CStringT operator+(const CStringT& str1, PCXSTR psz2) {
        return Concatenate(str1, str1.GetLength(), psz2, Base::StringLength(psz2));
    }
    friend CStringT operator+(PCXSTR psz1, const CStringT& str2) {
        return Concatenate(psz1, Base::StringLength(psz1), str2, str2.GetLength());
    }
    friend CStringT operator+(const CStringT& str1, char ch2) { return str1 + CStringT(ch2); }
    friend CStringT operator+(const CStringT& str1, wchar_t ch2) { return str1 + CStringT(ch2); }
    friend CStringT operator+(char ch1, const CStringT& str2) { return CStringT(ch1) + str2; }
    friend CStringT operator+(wchar_t ch1, const CStringT& str2) { return CStringT(ch1) + str2; }

    // Both orders of the operands, != and the other relations follow from these.
    friend bool operator==(const CStringT& str1, const CStringT& str2) noexcept {
        return str1.CompareWith(str2, str2.GetLength()) == 0;
    }
    friend bool operator==(const CStringT& str1, PCXSTR psz2) noexcept {
        return str1.CompareWith(psz2, Base::StringLength(psz2)) == 0;
    }
    friend bool operator==(const CStringT& str1, PCYSTR psz2) { return str1 == FromOther(psz2); }
    friend bool operator==(const CStringT& str1, XCHAR ch2) noexcept {
        return str1.CompareWith(&ch2, 1) == 0;
    }
    friend std::strong_ordering operator<=>(const CStringT& str1, const CStringT& str2) noexcept {
        return str1.CompareWith(str2, str2.GetLength()) <=> 0;
    }
    friend std::strong_ordering operator<=>(const CStringT& str1, PCXSTR psz2) noexcept {
        return str1.CompareWith(psz2, Base::StringLength(psz2)) <=> 0;
    }

    /// By character code, up to the first null character: negative, 0 or positive.
    int Compare(PCXSTR psz) const noexcept;
    int CompareNoCase(PCXSTR psz) const noexcept;
    /// By the rules of the C locale in force.
    int Collate(PCXSTR psz) const noexcept;
    int CollateNoCase(PCXSTR psz) const noexcept;

    /// The index of the first match at or after `iStart`, or -1.
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    int Find(XCHAR ch, int iStart = 0) const noexcept;
    int ReverseFind(XCHAR ch) const noexcept;
    int FindOneOf(PCXSTR pszCharSet) const noexcept;

    CStringT Left(int nCount) const;
    CStringT Mid(int iFirst, int nCount) const;
    CStringT Mid(int iFirst) const;
    CStringT Right(int nCount) const;
    CStringT SpanIncluding(PCXSTR pszCharSet) const;
    CStringT SpanExcluding(PCXSTR pszCharSet) const;
    /// The next token at or after `iStart`, which moves behind the delimiter that ends it; an
    /// empty string and -1 when no token is left.
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;

    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& Trim(XCHAR chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CStringT& Trim(PCXSTR pszTargets) { return TrimRight(pszTargets).TrimLeft(pszTargets); }
    CStringT& TrimLeft();
    CStringT& TrimLeft(XCHAR chTarget);
    CStringT& TrimLeft(PCXSTR pszTargets);
    CStringT& TrimRight();
    CStringT& TrimRight(XCHAR chTarget);
    CStringT& TrimRight(PCXSTR pszTargets);

    CStringT& MakeUpper();
    CStringT& MakeLower();
    CStringT& MakeReverse();
    /// Return the number of replaced or removed pieces.
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    int Replace(XCHAR chOld, XCHAR chNew);
    int Remove(XCHAR chRemove);
    /// Return the new length. An index beyond the end inserts at the end.
    int Insert(int iIndex, PCXSTR psz);
    int Insert(int iIndex, XCHAR ch);
    int Delete(int iIndex, int nCount = 1);

    /// Formats as the C runtime's printf family does: in a CStringW `%s` is a wide and `%S` a
    /// narrow string, in a CStringA the reverse; a negative `*` precision counts as none. Throws
    /// CInvalidArgException for a null format or for text that cannot be converted, and
    /// CResourceException when the string resource is missing.
    void AFX_CDECL Format(PCXSTR pszFormat, ...);
    void AFX_CDECL Format(UINT nFormatID, ...);
    void FormatV(PCXSTR pszFormat, va_list args);
    void AFX_CDECL AppendFormat(PCXSTR pszFormat, ...);
    void AFX_CDECL AppendFormat(UINT nFormatID, ...);
    void AppendFormatV(PCXSTR pszFormat, va_list args);
    /// Format with the numbered inserts (`%1!d!`) of the Windows function of this name.
    void AFX_CDECL FormatMessage(PCXSTR pszFormat, ...);
    void AFX_CDECL FormatMessage(UINT nFormatID, ...);
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);

    /// Loads a string resource: from the chain of resource modules, or from one module in the
    /// preferred or in one language. FALSE, and empty, when it is missing or empty.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    /// FALSE, and empty, when the variable is not set.
    BOOL GetEnvironmentVariable(PCXSTR pszVar);

    /// A copy for Automation, freed by the caller with SysFreeString.
    BSTR AllocSysString() const;
    /// Replaces the text of `*pbstr` and returns it.
    BSTR SetSysString(BSTR* pbstr) const;

private:
    static CStringT FromOther(PCYSTR psz) {
        return CStringT(psz, CSimpleStringT<YCHAR>::StringLength(psz));
    }
    static CStringT Concatenate(PCXSTR psz1, int nLength1, PCXSTR psz2, int nLength2);
    int CompareWith(const XCHAR* pch, int nLength) const noexcept;
};

using CSimpleStringA = CSimpleStringT<char>;
using CSimpleStringW = CSimpleStringT<wchar_t>;
using CSimpleString = CSimpleStringT<TCHAR>;
using CStringA = CStringT<char>;
using CStringW = CStringT<wchar_t>;
using CString = CStringT<TCHAR>;
using CAtlStringA = CStringA;
using CAtlStringW = CStringW;
using CAtlString = CString;

static_assert(sizeof(CString) == sizeof(void*), "records hold strings by value");

/// Replaces every `%1` (and `%2`) of the string resource `nIDS`. A missing resource gives an empty
/// text, a null pointer inserts nothing.
AFXRT_API void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
AFXRT_API void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);

/// Takes part `iSubString` of a text whose parts are separated by `chSep`. FALSE, and empty, when
/// there are fewer parts; FALSE, and unchanged, when there is no text.
AFXRT_API BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                          TCHAR chSep = '\n');

namespace afx_internal {

/// Loads string `id` from the resources of `module` alone. FALSE, and empty, when the module has
/// no such string or an empty one.
AFXRT_API BOOL LoadStringFrom(HINSTANCE module, UINT id, CString& text);

} // namespace afx_internal
