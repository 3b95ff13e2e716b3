#include "kit/driver/Script.h"

#include "kit/picture/WindowTree.h"

#include <algorithm>
#include <cstring>

namespace kit {
namespace {

constexpr wchar_t timerClass[] = L"kit.Script";
constexpr UINT turnLength = 10; // milliseconds; the shortest that the system has

Script* running = nullptr; // the innermost script that runs

std::string place(const Where& where) {
    const char* const slash = std::strrchr(where.file_name(), '/');
    return std::string(slash != nullptr ? slash + 1 : where.file_name()) + ":" +
           std::to_string(where.line());
}

/// The window that takes a person's input now, or null while it is not ready for it.
HWND readyWindow() {
    // A dialog is activated before it is shown.
    const HWND active = GetActiveWindow();
    return active != nullptr && IsWindowVisible(active) && IsWindowEnabled(active) &&
                   GetForegroundWindow() == active
               ? active
               : nullptr;
}

bool isDialog(HWND window) {
    return classOf(window) == L"#32770" && !MessageDialog::is(window);
}

} // namespace

Which titled(Text caption) {
    return [caption = std::move(caption)](HWND dialog) { return textOf(dialog) == caption; };
}

Which having(int control) {
    return [control](HWND dialog) { return Dialog(dialog).exists(control); };
}

/// What comes next: a step in a dialog, or a message box.
struct Script::Item {
    Where where;
    Which which; // empty: any dialog
    Step step;
    std::optional<MessageExpectation> message;

    bool matches(HWND window) const {
        if (message)
            return MessageDialog::is(window);
        return which ? !MessageDialog::is(window) && which(window) : isDialog(window);
    }

    std::string describe() const {
        return (message ? message->describe()
                : which ? std::string("a particular dialog")
                        : std::string("a dialog")) +
               " (" + place(where) + ")";
    }
};

Script::Script() = default;
Script::~Script() {
    if (!items_.empty())
        fail("The script was never run.", items_.front()->where);
}

Script& Script::onDialog(Step step, Where where) {
    return onDialog(nullptr, std::move(step), where);
}

Script& Script::onDialog(Which which, Step step, Where where) {
    items_.push_back(std::make_unique<Item>(
        Item{.where = where, .which = std::move(which), .step = std::move(step), .message = {}}));
    return *this;
}

MessageExpectation& Script::expectMessage(Text caption, Text text, UINT icon, Where where) {
    MessageExpectation& message = expectMessage(where);
    message = MessageExpectation(std::move(caption), std::move(text), icon, where);
    return message;
}

MessageExpectation& Script::expectMessage(Where where) {
    items_.push_back(std::make_unique<Item>(
        Item{.where = where, .which = {}, .step = {}, .message = MessageExpectation(where)}));
    return *items_.back()->message;
}

Script& Script::patience(int turns) {
    patience_ = turns;
    return *this;
}

void Script::begin(const Where& where) {
    where_ = where;
    givenUp_ = false;
    idle_ = 0;
    known_.clear();
    dismissals_.clear();
    const std::vector<HWND> present = topLevelWindows(GetCurrentThreadId());
    before_ = {present.begin(), present.end()};

    static const ATOM registered = [] {
        WNDCLASSW description = {};
        description.lpfnWndProc = timerProc;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = timerClass;
        return RegisterClassW(&description);
    }();
    // Every modal loop dispatches the timer of a window, message boxes and the system's
    // dialogs included; it comes last, when no other message waits.
    timer_ = CreateWindowExW(0, MAKEINTATOM(registered), nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE,
                             nullptr, GetModuleHandleW(nullptr), nullptr);
    SetWindowLongPtrW(timer_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetTimer(timer_, 1, turnLength, nullptr);
    outer_ = std::exchange(running, this);
    watchdog_.emplace();
    Watchdog::progress(outlook());
}

void Script::end() {
    DestroyWindow(timer_);
    running = outer_;
    watchdog_.reset();
    if (!givenUp_)
        for (; next_ < items_.size(); ++next_)
            fail("The conversation ended and this never came: " + items_[next_]->describe(),
                 items_[next_]->where);
    items_.clear();
    next_ = 0;
}

LRESULT CALLBACK Script::timerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_TIMER)
        return DefWindowProcW(window, message, wParam, lParam);
    auto* const script = reinterpret_cast<Script*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (script == running)
        script->turn();
    return 0;
}

void Script::turn() {
    const HWND window = readyWindow();
    // A step that handles messages itself must not be overtaken by the next one.
    if (window == nullptr || std::ranges::find(driven_, window) != driven_.end())
        return;
    if (givenUp_) {
        if (!before_.contains(window))
            dismiss(window);
        return;
    }
    std::erase_if(known_, [](HWND dialog) { return !IsWindow(dialog); });

    const bool isKnown = before_.contains(window) || known_.contains(window);
    if (next_ < items_.size() && items_[next_]->matches(window)) {
        idle_ = 0;
        perform(*items_[next_++], window);
    } else if (!isKnown || (next_ == items_.size() && known_.contains(window))) {
        unscripted(window);
    } else if (next_ < items_.size() && ++idle_ > patience_) {
        neverCame(*items_[next_], window);
    }
}

void Script::perform(Item& item, HWND window) {
    Watchdog::progress("the end of the step at " + place(item.where));
    driven_.push_back(window);
    try {
        if (item.message) {
            item.message->meet(window);
        } else {
            known_.insert(window);
            Dialog dialog(window);
            item.step(dialog);
        }
        if (hopeless())
            givenUp_ = true;
    } catch (const Abandoned&) {
        givenUp_ = true;
    } catch (const std::exception& exception) {
        giveUp(std::string("The step ended by an exception: ") + exception.what(), item.where);
    } catch (...) {
        giveUp("The step ended by an exception.", item.where);
    }
    driven_.pop_back();
    Watchdog::progress(outlook());
}

void Script::unscripted(HWND window) {
    std::string message = MessageDialog::is(window) ? "An unexpected message box: "
                          : known_.contains(window) ? "The script is at its end, but open is "
                                                      "still the dialog "
                                                    : "An unexpected dialog: ";
    message += inQuotes(textOf(window));
    if (MessageDialog::is(window))
        message += " " + inQuotes(MessageDialog(window).text());
    message += "; waiting for " + outlook() + "\n" + windowTree(window);
    giveUp(message, next_ < items_.size() ? items_[next_]->where : where_);
    dismiss(window);
}

void Script::neverCame(const Item& item, HWND window) {
    giveUp("This does not come: " + item.describe() + "; open is\n" + windowTree(window),
           item.where);
    if (!before_.contains(window))
        dismiss(window);
}

void Script::giveUp(const std::string& message, const Where& where) {
    fail(message, where);
    givenUp_ = true;
}

void Script::dismiss(HWND window) {
    switch (dismissals_[window]++) {
    case 0:
        if (MessageDialog::is(window))
            PostMessageW(window, WM_COMMAND, MessageDialog(window).mildestButton(), 0);
        else
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        break;
    case 1:
        PostMessageW(window, WM_CLOSE, 0, 0);
        break;
    default:
        EndDialog(window, IDCANCEL);
    }
}

std::string Script::outlook() const {
    return next_ < items_.size() ? items_[next_]->describe() : "the end of the conversation";
}

} // namespace kit
