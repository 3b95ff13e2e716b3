#include "sample/terrain/Decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

std::string Decimal(double value, int decimals) {
    char text[64];
    const auto [end, error] =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals);
    std::string number(text, error == std::errc() ? end : text);
    if (number.find_first_not_of("-0.") == number.npos && number.starts_with('-'))
        number.erase(0, 1);
    return number;
}

std::string FineDecimal(double value, int decimals) {
    if (value == 0)
        return Decimal(value, decimals);
    const double needed = 3 - std::floor(std::log10(std::abs(value)));
    return Decimal(value, std::max(decimals, static_cast<int>(std::min(needed, 17.0))));
}
