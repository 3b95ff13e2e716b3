#include "sample/terrain/ByteStream.h"

#include <memory>

#include "sample/TextFile.h"

ByteStream BytesOfFile(const CString& file) {
    const auto input = std::make_shared<InputFile>(file);
    return {[input](char* bytes, size_t size) { return input->Read(bytes, size); }, input->Size()};
}

ByteStream BytesOfText(std::string_view text) {
    return {[text](char* bytes, size_t size) mutable {
                const size_t count = text.copy(bytes, size);
                text.remove_prefix(count);
                return count;
            },
            static_cast<long long>(text.size())};
}
