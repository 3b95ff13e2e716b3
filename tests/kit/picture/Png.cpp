#include "kit/picture/Png.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kit {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// Packs codes into bytes, lowest bit first.
class BitWriter {
public:
    explicit BitWriter(Bytes& out) : out_(out) {}

    void bits(std::uint32_t value, int count) {
        pending_ |= value << filled_;
        for (filled_ += count; filled_ >= 8; filled_ -= 8, pending_ >>= 8)
            out_.push_back(static_cast<std::uint8_t>(pending_));
    }

    /// Huffman codes are written with their highest bit first.
    void code(std::uint32_t value, int count) {
        std::uint32_t reversed = 0;
        for (int i = 0; i < count; ++i)
            reversed |= ((value >> i) & 1U) << (count - 1 - i);
        bits(reversed, count);
    }

    void flush() {
        if (filled_ > 0)
            bits(0, 8 - filled_);
    }

private:
    Bytes& out_;
    std::uint32_t pending_ = 0;
    int filled_ = 0;
};

constexpr int shortestMatch = 3;
constexpr int longestMatch = 258;
constexpr std::size_t window = 32768;

/// The first length or distance of each code; the code's number of extra bits follows from
/// its place.
constexpr std::array<int, 29> lengthBases = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                             15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                             67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr std::array<int, 30> distanceBases = {
    1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
    193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};

int extraLengthBits(int index) {
    return index < 8 || index == 28 ? 0 : index / 4 - 1;
}
int extraDistanceBits(int index) {
    return index < 4 ? 0 : index / 2 - 1;
}

template <std::size_t n>
int indexOf(const std::array<int, n>& bases, int value) {
    return static_cast<int>(std::ranges::upper_bound(bases, value) - bases.begin()) - 1;
}

/// A literal, an end mark (256) or a length code, in the fixed code of the format.
void writeSymbol(BitWriter& out, int symbol) {
    if (symbol < 144)
        out.code(0x30U + symbol, 8);
    else if (symbol < 256)
        out.code(0x190U + symbol - 144, 9);
    else if (symbol < 280)
        out.code(symbol - 256U, 7);
    else
        out.code(0xC0U + symbol - 280, 8);
}

void writeMatch(BitWriter& out, int length, int distance) {
    const int l = indexOf(lengthBases, length);
    writeSymbol(out, 257 + l);
    out.bits(length - lengthBases[l], extraLengthBits(l));
    const int d = indexOf(distanceBases, distance);
    out.code(d, 5);
    out.bits(distance - distanceBases[d], extraDistanceBits(d));
}

std::uint32_t adler32(std::span<const std::uint8_t> bytes) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const std::uint8_t byte : bytes) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16 | a;
}

std::uint32_t crc32(std::span<const std::uint8_t> bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

void appendBigEndian(Bytes& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<std::uint8_t>(value >> shift));
}

void appendChunk(Bytes& out, std::string_view type, const Bytes& data) {
    appendBigEndian(out, static_cast<std::uint32_t>(data.size()));
    const std::size_t begin = out.size();
    out.insert(out.end(), type.begin(), type.end());
    out.insert(out.end(), data.begin(), data.end());
    appendBigEndian(out, crc32(std::span(out).subspan(begin)));
}

} // namespace

std::vector<std::uint8_t> compress(std::span<const std::uint8_t> bytes) {
    Bytes out = {0x78, 0x01};
    BitWriter writer(out);
    writer.bits(1, 1); // the last block
    writer.bits(1, 2); // fixed codes

    // One earlier place per hash suffices: rows of a dialog repeat the row above.
    std::vector<std::ptrdiff_t> latest(1 << 15, -1);
    const auto hashAt = [&](std::size_t i) {
        const std::uint32_t key = bytes[i] | bytes[i + 1] << 8 | bytes[i + 2] << 16;
        return key * 2654435761U >> 17;
    };
    for (std::size_t i = 0; i < bytes.size();) {
        std::size_t length = 0;
        std::size_t distance = 0;
        if (i + shortestMatch <= bytes.size()) {
            std::ptrdiff_t& place = latest[hashAt(i)];
            distance = i - static_cast<std::size_t>(place);
            if (place >= 0 && distance <= window) {
                const std::size_t limit = std::min<std::size_t>(longestMatch, bytes.size() - i);
                while (length < limit && bytes[i + length] == bytes[place + length])
                    ++length;
            }
            place = static_cast<std::ptrdiff_t>(i);
        }
        if (length < shortestMatch) {
            writeSymbol(writer, bytes[i]);
            length = 1;
        } else {
            writeMatch(writer, static_cast<int>(length), static_cast<int>(distance));
        }
        i += length;
    }
    writeSymbol(writer, 256);
    writer.flush();
    appendBigEndian(out, adler32(bytes));
    return out;
}

std::vector<std::uint8_t> encodePng(std::span<const std::uint8_t> rgb, int width, int height) {
    Bytes header;
    appendBigEndian(header, static_cast<std::uint32_t>(width));
    appendBigEndian(header, static_cast<std::uint32_t>(height));
    header.insert(header.end(), {8, 2, 0, 0, 0}); // 8 bits, RGB, no interlace

    const std::size_t stride = static_cast<std::size_t>(width) * 3;
    Bytes rows;
    rows.reserve((stride + 1) * height);
    for (int y = 0; y < height; ++y) {
        rows.push_back(0); // the row is not filtered
        const auto row = rgb.subspan(y * stride, stride);
        rows.insert(rows.end(), row.begin(), row.end());
    }

    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    appendChunk(png, "IHDR", header);
    appendChunk(png, "IDAT", compress(rows));
    appendChunk(png, "IEND", {});
    return png;
}

} // namespace kit
