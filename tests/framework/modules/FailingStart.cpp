#include "FailingStart.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

BOOL AFXAPI Refuse(HINSTANCE, HINSTANCE, LPTSTR, int) {
    return FALSE;
}

void* FrameworkFunction(const char* decorated) {
    const HMODULE framework = ::GetModuleHandle(L"CuadrosAfx.dll");
    return reinterpret_cast<void*>(::GetProcAddress(framework, decorated));
}

} // namespace

FailingStart::FailingStart(Step step)
    : m_function(step == Step::winInit
                     ? reinterpret_cast<void*>(&AfxWinInit)
                     : FrameworkFunction("_ZN15CDynLinkLibraryC1ER20AFX_EXTENSION_MODULEi")) {
    void* const failing = step == Step::winInit ? reinterpret_cast<void*>(&Refuse)
                                                : reinterpret_cast<void*>(&AfxThrowMemoryException);
    Code jump = {0xFF, 0x25, 0, 0, 0, 0}; // to the address that follows
    std::memcpy(&jump[6], &failing, sizeof failing);
    std::memcpy(m_code.data(), m_function, m_code.size());
    EXPECT_TRUE(
        ::WriteProcessMemory(::GetCurrentProcess(), m_function, jump.data(), jump.size(), nullptr));
}

FailingStart::~FailingStart() {
    EXPECT_TRUE(::WriteProcessMemory(::GetCurrentProcess(), m_function, m_code.data(),
                                     m_code.size(), nullptr));
}
