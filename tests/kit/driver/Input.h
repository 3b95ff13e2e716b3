#pragma once

#include "kit/driver/Failure.h"
#include "kit/picture/Text.h"

#include <windows.h>

#include <functional>

namespace kit {

/// Keys held down during another key or a click; they can be combined with |.
enum class Held : unsigned { Nothing = 0, Shift = 1, Ctrl = 2, Alt = 4 };
constexpr Held operator|(Held a, Held b) {
    return static_cast<Held>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool operator&(Held a, Held b) {
    return (static_cast<unsigned>(a) & static_cast<unsigned>(b)) != 0;
}

/// The real keyboard: keys enter where a person's keys enter, and are handled on return.
namespace keyboard {

/// A key by its virtual-key code, pressed and released: VK_TAB, VK_RETURN, VK_ESCAPE, VK_F1.
void press(WORD key, Held held = Held::Nothing);

/// Alt and the underlined letter of a caption.
void mnemonic(wchar_t letter);

/// Characters into whatever has the focus.
void type(const Text& text);

} // namespace keyboard

/// The real mouse. Places are in client pixels of the window.
namespace mouse {

void move(HWND window, POINT place);
void click(HWND window, POINT place, Held held = Held::Nothing);
void rightClick(HWND window, POINT place);
void doubleClick(HWND window, POINT place);

/// Clicks the middle of a window.
void click(HWND window);

} // namespace mouse

/// Handles every message that waits, as the modal loop of the active dialog would.
void pump();

/// Handles messages until a state is reached; the state is named for the failure that comes
/// when it is not reached within the limit.
void pumpUntil(const char* state, const std::function<bool()>& reached,
               Where where = Where::current());

/// Lets an application framework see each message before the dialog does, as its own modal
/// loop would. True means that it has handled the message.
void setMessageFilter(std::function<bool(MSG&)> filter);

} // namespace kit
