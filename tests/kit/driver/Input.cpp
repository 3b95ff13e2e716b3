#include "kit/driver/Input.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

namespace kit {
namespace {

constexpr std::chrono::seconds stateLimit{30};

std::function<bool(MSG&)>& messageFilter() {
    static std::function<bool(MSG&)> filter;
    return filter;
}

/// Collects input and hands it over at once, so that nothing comes between.
class Input {
public:
    Input& key(WORD key, bool down) {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = (down ? 0 : KEYEVENTF_KEYUP) | (isExtended(key) ? 1 : 0);
        inputs_.push_back(input);
        return *this;
    }

    Input& character(wchar_t c, bool down) {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wScan = c;
        input.ki.dwFlags = KEYEVENTF_UNICODE | (down ? 0 : KEYEVENTF_KEYUP);
        inputs_.push_back(input);
        return *this;
    }

    Input& mouse(DWORD flags, DWORD time, POINT screen = {}) {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dx = screen.x;
        input.mi.dy = screen.y;
        input.mi.dwFlags = flags;
        input.mi.time = time;
        inputs_.push_back(input);
        return *this;
    }

    Input& hold(Held held, bool down) {
        if (held & Held::Shift)
            key(VK_SHIFT, down);
        if (held & Held::Ctrl)
            key(VK_CONTROL, down);
        if (held & Held::Alt)
            key(VK_MENU, down);
        return *this;
    }

    void send() {
        SendInput(static_cast<UINT>(inputs_.size()), inputs_.data(), sizeof(INPUT));
        pump();
    }

private:
    static bool isExtended(WORD key) {
        return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
    }

    std::vector<INPUT> inputs_;
};

/// A place of a window in the units of absolute mouse input.
POINT absolute(HWND window, POINT place) {
    ClientToScreen(window, &place);
    const auto scale = [](LONG pixel, int size) { return (pixel * 65536 + size - 1) / size; };
    return {scale(place.x, GetSystemMetrics(SM_CXSCREEN)),
            scale(place.y, GetSystemMetrics(SM_CYSCREEN))};
}

/// The time of the next click: later than the latest by more than makes a double click, however
/// quickly a test clicks.
DWORD nextClickTime() {
    static DWORD latest = 0;
    latest = std::max(GetTickCount(), latest + GetDoubleClickTime() + 1);
    return latest;
}

/// Moves to a place and presses and releases a button so many times.
void clickAt(HWND window, POINT place, DWORD down, DWORD up, int times, Held held) {
    const DWORD time = nextClickTime();
    Input input;
    input.mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, time, absolute(window, place));
    input.hold(held, true);
    for (int i = 0; i < times; ++i)
        input.mouse(down, time).mouse(up, time);
    input.hold(held, false).send();
}

} // namespace

namespace keyboard {

void press(WORD key, Held held) {
    Input().hold(held, true).key(key, true).key(key, false).hold(held, false).send();
}

void mnemonic(wchar_t letter) {
    press(static_cast<WORD>(LOBYTE(VkKeyScanW(letter))), Held::Alt);
}

void type(const Text& text) {
    for (const wchar_t c : text)
        Input().character(c, true).character(c, false).send();
}

} // namespace keyboard

namespace mouse {

void move(HWND window, POINT place) {
    Input().mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, 0, absolute(window, place)).send();
}

void click(HWND window, POINT place, Held held) {
    clickAt(window, place, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 1, held);
}

void rightClick(HWND window, POINT place) {
    clickAt(window, place, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, 1, Held::Nothing);
}

void doubleClick(HWND window, POINT place) {
    clickAt(window, place, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 2, Held::Nothing);
}

void click(HWND window) {
    RECT rect = {};
    GetClientRect(window, &rect);
    click(window, {rect.right / 2, rect.bottom / 2});
}

} // namespace mouse

void pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // The loop around us has to see it.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (messageFilter() && messageFilter()(message))
            continue;
        const HWND dialog = GetActiveWindow();
        if (dialog != nullptr && IsDialogMessageW(dialog, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void pumpUntil(const char* state, const std::function<bool()>& reached, Where where) {
    const auto end = std::chrono::steady_clock::now() + stateLimit;
    for (pump(); !reached(); pump()) {
        if (std::chrono::steady_clock::now() > end)
            abandon(std::string("Waited in vain for this state: ") + state, where);
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

void setMessageFilter(std::function<bool(MSG&)> filter) {
    messageFilter() = std::move(filter);
}

} // namespace kit
