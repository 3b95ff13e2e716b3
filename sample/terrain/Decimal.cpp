#include "sample/terrain/Decimal.h"

#include <charconv>

std::string Decimal(double value, int decimals) {
    char text[64];
    const auto [end, error] =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals);
    std::string number(text, error == std::errc() ? end : text);
    if (number.find_first_not_of("-0.") == number.npos && number.starts_with('-'))
        number.erase(0, 1);
    return number;
}
