// An exchange of a window's data, for as long as it runs.
#pragma once

#include "afxrt/wnd.h"

#include <utility>

namespace afx_internal {

/// The notifications of a window's controls are ignored as long as one of these lives. While a
/// prompt is open the window may go, and its object with it.
class ExchangeLock {
public:
    explicit ExchangeLock(CWnd& window)
        : m_window(&window), m_outer(std::exchange(window.m_exchange, this)) {}
    ~ExchangeLock() {
        if (m_window)
            m_window->m_exchange = m_outer;
    }
    ExchangeLock(const ExchangeLock&) = delete;
    ExchangeLock& operator=(const ExchangeLock&) = delete;

    bool HasWindow() const { return m_window && m_window->m_hWnd; }

    /// The object of the window goes: neither this exchange nor those around it may touch it.
    void Forget() {
        for (ExchangeLock* lock = this; lock; lock = lock->m_outer)
            lock->m_window = nullptr;
    }

private:
    CWnd* m_window;
    ExchangeLock* m_outer;
};

} // namespace afx_internal
