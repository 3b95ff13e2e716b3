#include "afxrt/string.h"

#include "afxrt/exception.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

namespace afx_internal {

// Counted as shared, so that every writer leaves it and takes a buffer of its own.
constinit const NilString nilString{{2, 0, 0}, 0};

static_assert(offsetof(NilString, terminator) == sizeof(StringHeader),
              "characters follow their header at once");

} // namespace afx_internal

namespace {

using afx_internal::StringHeader;

/// Capacities are one less than a multiple of this: with the terminator they fill their blocks.
constexpr int granularity = 8;
constexpr int largestCapacity = INT_MAX - granularity;

int RoundedCapacity(int length) {
    return (length / granularity + 1) * granularity - 1;
}

int Convert(const char* from, int length, wchar_t* to, int capacity) {
    return MultiByteToWideChar(CP_ACP, 0, from, length, to, capacity);
}

int Convert(const wchar_t* from, int length, char* to, int capacity) {
    return WideCharToMultiByte(CP_ACP, 0, from, length, to, capacity, nullptr, nullptr);
}

} // namespace

template <typename BaseType>
CSimpleStringT<BaseType>::CSimpleStringT(PCXSTR pszSrc) : CSimpleStringT() {
    Assign(pszSrc, StringLength(pszSrc));
}

template <typename BaseType>
CSimpleStringT<BaseType>::CSimpleStringT(const XCHAR* pchSrc, int nLength) : CSimpleStringT() {
    if (nLength < 0 || (pchSrc == nullptr && nLength > 0))
        ThrowInvalidArgument();
    Assign(pchSrc, nLength);
}

template <typename BaseType>
CSimpleStringT<BaseType>::CSimpleStringT(const CSimpleStringT& strSrc) : CSimpleStringT() {
    *this = strSrc;
}

template <typename BaseType>
CSimpleStringT<BaseType>& CSimpleStringT<BaseType>::operator=(const CSimpleStringT& strSrc) {
    if (m_pszData == strSrc.m_pszData)
        return *this;
    if (IsLocked() || strSrc.IsLocked()) {
        Assign(strSrc.m_pszData, strSrc.GetLength());
    } else {
        if (!strSrc.IsNil())
            strSrc.Header()->references.fetch_add(1, std::memory_order_relaxed);
        Release();
        m_pszData = strSrc.m_pszData;
    }
    return *this;
}

template <typename BaseType>
CSimpleStringT<BaseType>& CSimpleStringT<BaseType>::operator=(CSimpleStringT&& strSrc) noexcept {
    if (this == &strSrc)
        return *this;
    if (IsLocked()) {
        Assign(strSrc.m_pszData, strSrc.GetLength());
        strSrc.Empty();
    } else {
        Release();
        m_pszData = std::exchange(strSrc.m_pszData, Nil());
    }
    return *this;
}

template <typename BaseType>
CSimpleStringT<BaseType>& CSimpleStringT<BaseType>::operator=(PCXSTR pszSrc) {
    Assign(pszSrc, StringLength(pszSrc));
    return *this;
}

template <typename BaseType>
CSimpleStringT<BaseType>& CSimpleStringT<BaseType>::operator+=(char ch) {
    if constexpr (std::is_same_v<XCHAR, char>)
        AppendChar(ch);
    else
        Append(Converted(&ch, 1));
    return *this;
}

template <typename BaseType>
CSimpleStringT<BaseType>& CSimpleStringT<BaseType>::operator+=(wchar_t ch) {
    if constexpr (std::is_same_v<XCHAR, wchar_t>)
        AppendChar(ch);
    else
        Append(Converted(&ch, 1));
    return *this;
}

template <typename BaseType>
void CSimpleStringT<BaseType>::SetAt(int iChar, XCHAR ch) {
    if (iChar < 0 || iChar >= GetLength())
        ThrowInvalidArgument();
    GetBuffer()[iChar] = ch;
}

template <typename BaseType>
void CSimpleStringT<BaseType>::Empty() noexcept {
    if (IsLocked()) {
        SetLength(0);
    } else {
        Release();
        m_pszData = Nil();
    }
}

template <typename BaseType>
void CSimpleStringT<BaseType>::SetString(PCXSTR pszSrc) {
    SetString(pszSrc, StringLength(pszSrc));
}

template <typename BaseType>
void CSimpleStringT<BaseType>::SetString(PCXSTR pszSrc, int nLength) {
    if (pszSrc == nullptr || nLength < 0)
        ThrowInvalidArgument();
    Assign(pszSrc, static_cast<int>(std::find(pszSrc, pszSrc + nLength, XCHAR{}) - pszSrc));
}

template <typename BaseType>
void CSimpleStringT<BaseType>::Append(PCXSTR pszSrc, int nLength) {
    if (nLength < 0 || (pszSrc == nullptr && nLength > 0))
        ThrowInvalidArgument();
    if (nLength == 0)
        return;

    const int length = GetLength();
    if (nLength > largestCapacity - length)
        AfxThrowMemoryException();
    const int newLength = length + nLength;
    if (CanWrite(newLength)) {
        CopyCharsOverlapped(m_pszData + length, pszSrc, nLength);
    } else {
        // Growing by half makes a long series of appends cheap. The old buffer goes last: the
        // source may lie in it.
        const PXSTR grown =
            Allocate(std::max(newLength, std::min(length, largestCapacity / 2) / 2 * 3));
        CopyChars(grown, m_pszData, length);
        CopyChars(grown + length, pszSrc, nLength);
        Release();
        m_pszData = grown;
    }
    SetLength(newLength);
}

template <typename BaseType>
typename CSimpleStringT<BaseType>::PXSTR CSimpleStringT<BaseType>::GetBuffer(int nMinBufferLength) {
    if (nMinBufferLength < 0)
        ThrowInvalidArgument();
    const int capacity = std::max(nMinBufferLength, GetLength());
    if (!CanWrite(capacity))
        Reallocate(capacity);
    return m_pszData;
}

template <typename BaseType>
typename CSimpleStringT<BaseType>::PXSTR CSimpleStringT<BaseType>::GetBufferSetLength(int nLength) {
    GetBuffer(nLength);
    SetLength(nLength);
    return m_pszData;
}

template <typename BaseType>
void CSimpleStringT<BaseType>::ReleaseBuffer(int nNewLength) {
    if (nNewLength == -1)
        nNewLength = static_cast<int>(std::find(m_pszData, m_pszData + GetAllocLength(), XCHAR{}) -
                                      m_pszData);
    ReleaseBufferSetLength(nNewLength);
}

template <typename BaseType>
void CSimpleStringT<BaseType>::ReleaseBufferSetLength(int nNewLength) {
    if (nNewLength < 0 || nNewLength > GetAllocLength())
        ThrowInvalidArgument();
    if (CanWrite(nNewLength))
        SetLength(nNewLength);
    else
        Truncate(nNewLength);
}

template <typename BaseType>
typename CSimpleStringT<BaseType>::PXSTR CSimpleStringT<BaseType>::LockBuffer() {
    GetBuffer();
    Header()->references.store(StringHeader::locked, std::memory_order_relaxed);
    return m_pszData;
}

template <typename BaseType>
void CSimpleStringT<BaseType>::UnlockBuffer() noexcept {
    if (IsLocked())
        Header()->references.store(1, std::memory_order_relaxed);
}

template <typename BaseType>
void CSimpleStringT<BaseType>::FreeExtra() {
    if (IsEmpty())
        Empty();
    else if (RoundedCapacity(GetLength()) < GetAllocLength() && !IsLocked())
        Reallocate(GetLength());
}

template <typename BaseType>
void CSimpleStringT<BaseType>::Truncate(int nNewLength) {
    if (nNewLength < 0)
        ThrowInvalidArgument();
    if (nNewLength < GetLength()) {
        GetBuffer();
        SetLength(nNewLength);
    }
}

template <typename BaseType>
void CSimpleStringT<BaseType>::CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept {
    std::char_traits<XCHAR>::copy(pchDest, pchSrc, nChars);
}

template <typename BaseType>
void CSimpleStringT<BaseType>::CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc,
                                         int nChars) noexcept {
    if (nChars > 0 && static_cast<size_t>(nChars) <= nDestLen)
        CopyChars(pchDest, pchSrc, nChars);
}

template <typename BaseType>
void CSimpleStringT<BaseType>::CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc,
                                                   int nChars) noexcept {
    std::char_traits<XCHAR>::move(pchDest, pchSrc, nChars);
}

template <typename BaseType>
int CSimpleStringT<BaseType>::StringLength(PCXSTR psz) noexcept {
    return psz == nullptr ? 0 : static_cast<int>(std::char_traits<XCHAR>::length(psz));
}

template <typename BaseType>
void CSimpleStringT<BaseType>::Assign(const XCHAR* pchSrc, int nLength) {
    if (nLength == 0) {
        Empty();
        return;
    }
    if (CanWrite(nLength)) {
        CopyCharsOverlapped(m_pszData, pchSrc, nLength);
    } else {
        // The old buffer goes last: the source may lie in it.
        const PXSTR fresh = Allocate(nLength);
        CopyChars(fresh, pchSrc, nLength);
        Release();
        m_pszData = fresh;
    }
    SetLength(nLength);
}

template <typename BaseType>
CSimpleStringT<BaseType> CSimpleStringT<BaseType>::Converted(const YCHAR* pch, int nLength) {
    if (nLength < 0 || (pch == nullptr && nLength > 0))
        ThrowInvalidArgument();
    CSimpleStringT converted;
    if (nLength > 0) {
        const int length = Convert(pch, nLength, static_cast<PXSTR>(nullptr), 0);
        Convert(pch, nLength, converted.GetBufferSetLength(length), length);
    }
    return converted;
}

template <typename BaseType>
void CSimpleStringT<BaseType>::ThrowInvalidArgument() {
    AfxThrowInvalidArgException();
}

template <typename BaseType>
typename CSimpleStringT<BaseType>::PXSTR CSimpleStringT<BaseType>::Allocate(int nCapacity) {
    if (nCapacity > largestCapacity)
        AfxThrowMemoryException();
    const int capacity = RoundedCapacity(nCapacity);
    void* const block =
        std::malloc(sizeof(StringHeader) + (static_cast<size_t>(capacity) + 1) * sizeof(XCHAR));
    if (block == nullptr)
        AfxThrowMemoryException();
    return reinterpret_cast<PXSTR>(new (block) StringHeader{1, 0, capacity} + 1);
}

template <typename BaseType>
bool CSimpleStringT<BaseType>::IsLocked() const noexcept {
    return Header()->references.load(std::memory_order_relaxed) == StringHeader::locked;
}

/// Whether the buffer is this string's alone and holds so many characters.
template <typename BaseType>
bool CSimpleStringT<BaseType>::CanWrite(int nLength) const noexcept {
    return Header()->references.load(std::memory_order_acquire) <= 1 && nLength <= GetAllocLength();
}

/// Moves the text into a new buffer of its own.
template <typename BaseType>
void CSimpleStringT<BaseType>::Reallocate(int nCapacity) {
    const int length = GetLength();
    const PXSTR fresh = Allocate(nCapacity);
    CopyChars(fresh, m_pszData, length);
    Release();
    m_pszData = fresh;
    SetLength(length);
}

template <typename BaseType>
void CSimpleStringT<BaseType>::SetLength(int nLength) noexcept {
    Header()->length = nLength;
    m_pszData[nLength] = XCHAR{};
}

template <typename BaseType>
void CSimpleStringT<BaseType>::Release() noexcept {
    if (IsNil())
        return;
    if (IsLocked() || Header()->references.fetch_sub(1, std::memory_order_acq_rel) == 1)
        std::free(Header());
}

template class CSimpleStringT<char>;
template class CSimpleStringT<wchar_t>;
