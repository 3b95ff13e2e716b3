#pragma once

#include <gtest/gtest-spi.h>

#include <functional>
#include <string>
#include <vector>

/// The messages of the failures that a piece of a test makes; they do not count as failures
/// of the running test.
inline std::vector<std::string> failuresOf(const std::function<void()>& piece) {
    testing::TestPartResultArray results;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        piece();
    }
    std::vector<std::string> messages;
    for (int i = 0; i < results.size(); ++i)
        messages.emplace_back(results.GetTestPartResult(i).message());
    return messages;
}

/// Whether a failure message has a text in it.
testing::AssertionResult inline contains(const std::string& message, const std::string& part) {
    if (message.find(part) != std::string::npos)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "There is no \"" << part << "\" in:\n" << message;
}
