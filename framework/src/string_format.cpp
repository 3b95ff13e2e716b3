#include "afxrt/string.h"

#include "afxrt/exception.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <memory>
#include <string>
#include <string_view>

namespace {

// The C runtime's own names: the standard ones are replaced by the compiler's library, where `%s`
// means a narrow string in a wide format too.
int Print(char* to, size_t size, const char* format, va_list args) {
    return _vsnprintf(to, size, format, args);
}
int Print(wchar_t* to, size_t size, const wchar_t* format, va_list args) {
    return _vsnwprintf(to, size, format, args);
}
int PrintedLength(const char* format, va_list args) {
    return _vscprintf(format, args);
}
int PrintedLength(const wchar_t* format, va_list args) {
    return _vscwprintf(format, args);
}

DWORD PrintMessage(const char* format, char** text, va_list* args) {
    return FormatMessageA(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                          reinterpret_cast<LPSTR>(text), 0, args);
}
DWORD PrintMessage(const wchar_t* format, wchar_t** text, va_list* args) {
    return FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                          reinterpret_cast<LPWSTR>(text), 0, args);
}

/// The text as the C runtime prints it, in a string of its own: arguments may point into the
/// string that is being formatted.
template <typename Ch>
CStringT<Ch> Printed(const Ch* format, va_list args) {
    Ch brief[256];
    va_list again;
    va_copy(again, args);
    int length = Print(brief, std::size(brief), format, args);
    CStringT<Ch> text;
    if (length >= 0) {
        text = CStringT<Ch>(brief, length);
    } else if ((length = PrintedLength(format, again)) >= 0) {
        Print(text.GetBuffer(length), static_cast<size_t>(length) + 1, format, again);
        text.ReleaseBufferSetLength(length);
    }
    va_end(again);
    if (length < 0)
        AfxThrowInvalidArgException();
    return text;
}

/// Moves over `ch`, if it comes next, and says whether it did.
template <typename Ch>
bool Skip(const Ch*& next, char ch) {
    if (*next != static_cast<Ch>(ch))
        return false;
    ++next;
    return true;
}

/// Moves over the coming characters that are in the set, and appends them.
template <typename Ch>
void Take(const Ch*& next, std::string_view set, CStringT<Ch>& taken) {
    const auto isWanted = [set](Ch ch) {
        return std::any_of(set.begin(), set.end(), [ch](char c) { return ch == Ch(c); });
    };
    while (isWanted(*next))
        taken += *next++;
}

template <typename Ch>
void AppendNumber(CStringT<Ch>& text, int number) {
    for (const char digit : std::to_string(number))
        text += digit;
}

/// Whether an integer with this size prefix takes 64 bits among the arguments.
template <typename Ch>
bool IsLongInteger(const CStringT<Ch>& size) {
    const bool isPointerSized = size == "I" || size == "z" || size == "t";
    return size == "ll" || size == "I64" || size == "j" || (isPointerSized && sizeof(void*) == 8);
}

/// Prints one conversion after the other, `%[flags][width][.precision][size]type`, with
/// numbers in the place of stars.
template <typename Ch>
CStringT<Ch> PrintedPiecewise(const Ch* next, va_list args) {
    CStringT<Ch> text;
    while (*next != 0) {
        if (*next != '%') {
            text += *next++;
            continue;
        }
        CStringT<Ch> conversion(*next++);
        Take(next, "-+ #0", conversion);
        if (Skip(next, '*'))
            AppendNumber(conversion, va_arg(args, int));
        Take(next, "0123456789", conversion);
        if (Skip(next, '.')) {
            const bool isStar = Skip(next, '*');
            const int precision = isStar ? va_arg(args, int) : 0;
            if (precision >= 0)
                conversion += '.';
            if (isStar && precision >= 0)
                AppendNumber(conversion, precision);
            Take(next, "0123456789", conversion);
        }
        CStringT<Ch> size;
        Take(next, "hlLwjztI3264", size);
        conversion += size;
        const Ch type = *next;
        if (type != 0)
            conversion += *next++;

        switch (type) {
        case 'd':
        case 'i':
        case 'o':
        case 'u':
        case 'x':
        case 'X':
            if (IsLongInteger(size))
                text.AppendFormat(conversion, va_arg(args, long long));
            else
                text.AppendFormat(conversion, va_arg(args, int));
            break;
        case 'c':
        case 'C':
            text.AppendFormat(conversion, va_arg(args, int));
            break;
        case 'a':
        case 'A':
        case 'e':
        case 'E':
        case 'f':
        case 'F':
        case 'g':
        case 'G':
            text.AppendFormat(conversion, va_arg(args, double));
            break;
        case 'n':
        case 'p':
        case 's':
        case 'S':
        case 'Z':
            text.AppendFormat(conversion, va_arg(args, void*));
            break;
        default:
            text.AppendFormat(conversion);
        }
    }
    return text;
}

template <typename Ch>
CStringT<Ch> Formatted(const Ch* format, va_list args) {
    if (format == nullptr)
        AfxThrowInvalidArgException();
    // Not left to the C runtime: msvcrt prints nonsense for a negative `*` precision.
    static constexpr Ch starPrecision[] = {'.', '*', 0};
    if (std::basic_string_view<Ch>(format).find(starPrecision) != std::string_view::npos)
        return PrintedPiecewise(format, args);
    return Printed(format, args);
}

template <typename Ch>
CStringT<Ch> FormatResource(UINT id) {
    CStringT<Ch> format;
    if (!format.LoadString(id))
        AfxThrowResourceException();
    return format;
}

} // namespace

template <typename BaseType>
void CStringT<BaseType>::FormatV(PCXSTR pszFormat, va_list args) {
    *this = Formatted(pszFormat, args);
}

template <typename BaseType>
void CStringT<BaseType>::AppendFormatV(PCXSTR pszFormat, va_list args) {
    *this += Formatted(pszFormat, args);
}

template <typename BaseType>
void CStringT<BaseType>::Format(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

template <typename BaseType>
void CStringT<BaseType>::Format(UINT nFormatID, ...) {
    const CStringT format = FormatResource<BaseType>(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatV(format, args);
    va_end(args);
}

template <typename BaseType>
void CStringT<BaseType>::AppendFormat(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

template <typename BaseType>
void CStringT<BaseType>::AppendFormat(UINT nFormatID, ...) {
    const CStringT format = FormatResource<BaseType>(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    AppendFormatV(format, args);
    va_end(args);
}

template <typename BaseType>
void CStringT<BaseType>::FormatMessage(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatMessageV(pszFormat, &args);
    va_end(args);
}

template <typename BaseType>
void CStringT<BaseType>::FormatMessage(UINT nFormatID, ...) {
    const CStringT format = FormatResource<BaseType>(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatMessageV(format, &args);
    va_end(args);
}

template <typename BaseType>
void CStringT<BaseType>::FormatMessageV(PCXSTR pszFormat, va_list* pArgList) {
    if (pszFormat == nullptr)
        Base::ThrowInvalidArgument();
    PXSTR message = nullptr;
    SetLastError(ERROR_SUCCESS);
    const DWORD length = PrintMessage(pszFormat, &message, pArgList);
    if (message == nullptr && GetLastError() == ERROR_NOT_ENOUGH_MEMORY)
        AfxThrowMemoryException();
    const std::unique_ptr<void, decltype(&LocalFree)> owner(message, &LocalFree);
    *this = CStringT(message, static_cast<int>(length));
}

#define INSTANTIATE(Ch)                                                                            \
    template void CStringT<Ch>::Format(const Ch*, ...);                                            \
    template void CStringT<Ch>::Format(UINT, ...);                                                 \
    template void CStringT<Ch>::FormatV(const Ch*, va_list);                                       \
    template void CStringT<Ch>::AppendFormat(const Ch*, ...);                                      \
    template void CStringT<Ch>::AppendFormat(UINT, ...);                                           \
    template void CStringT<Ch>::AppendFormatV(const Ch*, va_list);                                 \
    template void CStringT<Ch>::FormatMessage(const Ch*, ...);                                     \
    template void CStringT<Ch>::FormatMessage(UINT, ...);                                          \
    template void CStringT<Ch>::FormatMessageV(const Ch*, va_list*)
INSTANTIATE(char);
INSTANTIATE(wchar_t);
#undef INSTANTIATE
