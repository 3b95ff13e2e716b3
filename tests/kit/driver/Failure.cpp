#include "kit/driver/Failure.h"

#include <cstdio>
#include <utility>

namespace kit {
namespace {

void print(const std::string& message, const Where& where) {
    std::fprintf(stderr, "%s:%u: %s\n", where.file_name(), static_cast<unsigned>(where.line()),
                 message.c_str());
}

Reporter& reporter() {
    static Reporter current{.fail = print};
    return current;
}

} // namespace

Reporter setReporter(Reporter next) {
    return std::exchange(reporter(), std::move(next));
}

void fail(const std::string& message, const Where& where) {
    reporter().fail(message, where);
}

void abandon(const std::string& message, const Where& where) {
    fail(message, where);
    throw Abandoned();
}

bool hopeless() {
    return reporter().hopeless();
}

} // namespace kit
