// A step in the start of a module that fails.
#pragma once

#include <array>

/// As long as it lives, a module that starts finds, where the framework's own function of a step
/// begins, a jump to one that fails.
class FailingStart {
public:
    enum class Step {
        winInit,    ///< AfxWinInit answers FALSE
        chainEntry, ///< a CDynLinkLibrary cannot be made: CMemoryException
    };

    explicit FailingStart(Step step);
    ~FailingStart();
    FailingStart(const FailingStart&) = delete;
    FailingStart& operator=(const FailingStart&) = delete;

private:
    using Code = std::array<unsigned char, 14>;

    void* m_function;
    Code m_code; // what stands there otherwise
};
