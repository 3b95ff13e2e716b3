#include "kit/driver/MessageExpectation.h"

#include "kit/picture/WindowTree.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace kit {
namespace {

std::string iconName(UINT icon) {
    switch (icon) {
    case 0:
        return "no icon";
    case MB_ICONERROR:
        return "MB_ICONERROR";
    case MB_ICONQUESTION:
        return "MB_ICONQUESTION";
    case MB_ICONWARNING:
        return "MB_ICONWARNING";
    case MB_ICONINFORMATION:
        return "MB_ICONINFORMATION";
    default:
        return "icon " + std::to_string(icon);
    }
}

std::string buttonName(int button) {
    constexpr const char* names[] = {"none",    "IDOK",     "IDCANCEL",   "IDABORT",
                                     "IDRETRY", "IDIGNORE", "IDYES",      "IDNO",
                                     "IDCLOSE", "IDHELP",   "IDTRYAGAIN", "IDCONTINUE"};
    return button >= 0 && button < static_cast<int>(std::size(names))
               ? names[button]
               : "button " + std::to_string(button);
}

std::string buttonNames(const std::vector<int>& buttons) {
    std::string names;
    for (const int button : buttons)
        names += (names.empty() ? "" : " ") + buttonName(button);
    return names;
}

/// The buttons that the flags of MessageBox stand for, in no particular order.
std::vector<int> buttonsOf(UINT flags) {
    std::vector<int> buttons;
    switch (flags & MB_TYPEMASK) {
    case MB_OKCANCEL:
        buttons = {IDOK, IDCANCEL};
        break;
    case MB_ABORTRETRYIGNORE:
        buttons = {IDABORT, IDRETRY, IDIGNORE};
        break;
    case MB_YESNOCANCEL:
        buttons = {IDYES, IDNO, IDCANCEL};
        break;
    case MB_YESNO:
        buttons = {IDYES, IDNO};
        break;
    case MB_RETRYCANCEL:
        buttons = {IDRETRY, IDCANCEL};
        break;
    case MB_CANCELTRYCONTINUE:
        buttons = {IDCANCEL, IDTRYAGAIN, IDCONTINUE};
        break;
    default:
        buttons = {IDOK};
    }
    if ((flags & MB_HELP) != 0)
        buttons.push_back(IDHELP);
    return buttons;
}

/// The dialog next below a message box, or null; it need not be shown yet.
HWND dialogBelow(HWND box) {
    for (const HWND window : topLevelWindows(GetCurrentThreadId())) // from the top
        if (window != box && classOf(window) == L"#32770")
            return window;
    return nullptr;
}

std::string windowName(HWND window) {
    if (window == nullptr)
        return "none";
    std::ostringstream name;
    name << inQuotes(textOf(window)) << " (" << window << ")";
    return name.str();
}

} // namespace

MessageExpectation::MessageExpectation(Text caption, Text text, UINT icon, const Where& where)
    : where_(where), caption_(std::move(caption)), text_(std::move(text)),
      icon_(icon & MB_ICONMASK) {}

MessageExpectation& MessageExpectation::buttons(UINT flags) {
    buttons_ = flags;
    return *this;
}

MessageExpectation& MessageExpectation::defaultButton(int button) {
    defaultButton_ = button;
    return *this;
}

MessageExpectation& MessageExpectation::ownedByDialog() {
    ownedByDialog_ = true;
    return *this;
}

MessageExpectation& MessageExpectation::inspect(std::function<void(MessageDialog&)> look) {
    look_ = std::move(look);
    return *this;
}

MessageExpectation& MessageExpectation::answer(int button) {
    answer_ = button;
    return *this;
}

std::string MessageExpectation::describe() const {
    return "the message box " + (text_ ? inQuotes(*text_) : "of any text");
}

void MessageExpectation::meet(HWND window) const {
    MessageDialog box(window);
    std::string differences;
    const auto compare = [&](const char* what, const std::string& expected,
                             const std::string& actual) {
        if (expected != actual)
            differences += std::string("\n  ") + what + ": " + actual + "\n  expected: " + expected;
    };
    if (caption_)
        compare("caption", inQuotes(*caption_), inQuotes(box.caption()));
    if (text_)
        compare("text", inQuotes(*text_), inQuotes(box.text()));
    if (icon_)
        compare("icon", iconName(*icon_), iconName(box.icon()));
    if (buttons_) {
        std::vector<int> expected = buttonsOf(*buttons_);
        std::vector<int> actual = box.buttons();
        std::ranges::sort(expected);
        std::ranges::sort(actual);
        compare("buttons", buttonNames(expected), buttonNames(actual));
    }
    if (defaultButton_)
        compare("default button", buttonName(*defaultButton_), buttonName(box.defaultButton()));
    if (ownedByDialog_)
        compare("owner", windowName(dialogBelow(window)), windowName(box.owner()));
    if (!differences.empty())
        fail("The message box is another one than expected." + differences, where_);
    if (look_)
        look_(box);
    box.answer(answer_.value_or(box.defaultButton()), where_);
}

} // namespace kit
