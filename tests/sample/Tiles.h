// Small GTOPO30 tiles, made for a test.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace {

/// The bytes of a tile: 16 bits each, the upper ones first.
inline std::string TileBytes(const std::vector<int>& elevations) {
    std::string bytes;
    for (const int elevation : elevations) {
        bytes += static_cast<char>(elevation >> 8);
        bytes += static_cast<char>(elevation);
    }
    return bytes;
}

/// A header of three columns and two rows, at 40 degrees north, 6 degrees west.
const std::string TileHeader = "BYTEORDER      M\nLAYOUT       BIL\nNROWS         2\n"
                               "NCOLS         3\nNBANDS        1\nNBITS         16\n"
                               "BANDROWBYTES         6\nTOTALROWBYTES        6\n"
                               "BANDGAPBYTES         0\nNODATA        -9999\n"
                               "ULXMAP        -5.75\nULYMAP        39.75\n"
                               "XDIM          0.5\nYDIM          0.5\n";

/// A text with the line that begins with `key` replaced.
inline std::string With(std::string text, const std::string& key, const std::string& line) {
    const size_t start = text.find(key);
    return text.replace(start, text.find('\n', start) - start, line);
}

} // namespace
