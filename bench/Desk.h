// The main window of a host, which owns the dialogs, and what it does when one is open.
#pragma once

#include <windows.h>

#include <functional>

namespace bench {

class Desk {
public:
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    HWND window() const { return m_window; }

    /// What is done with a modal dialog once it is shown and all of it is painted; at first it
    /// is accepted.
    std::function<void(HWND dialog)> whenPainted;

    /// The same for a window that does not tell its owner: at the next turn of whatever loop runs.
    void paintAtNextMessage(HWND window) const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window;
};

/// Paints what is not painted yet of a window and of all in it.
void paintAll(HWND window);

/// Puts the press of a dialog's OK button into the queue.
void pressOk(HWND dialog);

/// Deals with all that is in the queue.
void emptyQueue();

} // namespace bench
