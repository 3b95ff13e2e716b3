#pragma once

#include <string>

/// A number as the files have it, the same in every country: "-12.50". Never in powers of ten,
/// and zero without a sign.
/// @param value    below 1e15 in size.
/// @param decimals 0 to 17.
std::string Decimal(double value, int decimals);

/// The same with more decimals, up to 17, where its first four digits need them: a small size does
/// not become zero.
std::string FineDecimal(double value, int decimals);
