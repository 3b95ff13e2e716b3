#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kit {

/// An RGB picture, 3 bytes per pixel, rows from the top without padding, as PNG file contents.
std::vector<std::uint8_t> encodePng(std::span<const std::uint8_t> rgb, int width, int height);

/// A zlib stream of the bytes (fixed Huffman codes, matches found by hashing).
std::vector<std::uint8_t> compress(std::span<const std::uint8_t> bytes);

} // namespace kit
