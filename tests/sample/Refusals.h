#pragma once

#include <afx.h>

#include "kit/kit.h"

#include <string>
#include <string_view>

/// What a parser of files says of their bytes, in UTF-8: empty when it took them.
template <class Result>
class Refusals {
public:
    using Parse = CString (*)(const CString& file, std::string_view bytes, Result& result);

    constexpr Refusals(Parse parse, const wchar_t* file) : parse_(parse), file_(file) {}

    std::string operator()(std::string_view bytes, Result& result) const {
        return kit::utf8(static_cast<LPCWSTR>(parse_(file_, bytes, result)));
    }
    std::string operator()(std::string_view bytes) const {
        Result result;
        return (*this)(bytes, result);
    }

private:
    Parse parse_;
    const wchar_t* file_;
};
