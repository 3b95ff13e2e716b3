#pragma once

#include <afx.h>

#include <functional>
#include <string_view>

/// Bytes that are read from their front, and how many there are.
struct ByteStream {
    /// Reads on, up to `size` bytes: fewer at the end, then none. May throw a Fault.
    std::function<size_t(char* bytes, size_t size)> read;
    long long size;
};

/// The bytes of a file; throws a Fault when it is not there, or cannot be opened.
ByteStream BytesOfFile(const CString& file);

/// The bytes of a text that outlives the stream.
ByteStream BytesOfText(std::string_view text);
