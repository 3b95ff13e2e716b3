#pragma once

#include <exception>
#include <functional>
#include <source_location>
#include <string>

namespace kit {

/// The line of test code that a failure belongs to.
using Where = std::source_location;

/// Who hears of failures: the test framework, or a program that drives dialogs without one.
struct Reporter {
    /// Notes one failure and returns.
    std::function<void(const std::string& message, const Where& where)> fail;
    /// Asked after each step: true ends the script, its dialogs are dismissed.
    std::function<bool()> hopeless = [] { return false; };
};

/// Makes `reporter` the one that hears of failures from now on; the former one comes back.
/// Without any, a failure is printed to the error stream.
Reporter setReporter(Reporter reporter);

/// Notes a failure; the test goes on.
void fail(const std::string& message, const Where& where = Where::current());

/// A step cannot go on; its failure has been noted already.
class Abandoned : public std::exception {
public:
    const char* what() const noexcept override { return "the step was abandoned"; }
};

/// Notes a failure and ends the running step by an exception that the script catches.
[[noreturn]] void abandon(const std::string& message, const Where& where = Where::current());

/// Whether the reporter wants the script to end.
bool hopeless();

} // namespace kit
