#pragma once

#include "kit/driver/Dialog.h"
#include "kit/driver/Failure.h"
#include "kit/driver/MessageExpectation.h"
#include "kit/driver/Watchdog.h"
#include "kit/picture/Text.h"

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace kit {

/// Tells whether a dialog is the one that a step waits for.
using Which = std::function<bool(HWND)>;

/// The dialog with this caption.
Which titled(Text caption);

/// The dialog that has a control of this number.
Which having(int control);

/// A conversation written down: what a person does in each dialog that comes, and which
/// message boxes come between, in this order.
///
/// The steps run inside the modal loop, one after the other, each as soon as its dialog is
/// active, shown and in the foreground, and the loop has nothing else to do. A press that
/// opens another dialog or a message box returns when that one is closed: its steps run
/// meanwhile. A modal window that no step waits for fails at once, with its tree; what was
/// never reached fails at the end. After a failure that leaves no way on, every window is
/// dismissed, so that the conversation ends.
class Script {
public:
    using Step = std::function<void(Dialog&)>;

    Script();
    /// A script with steps that was never run is a failure.
    ~Script();
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    /// What to do in the next dialog that is active (no message box).
    Script& onDialog(Step step, Where where = Where::current());

    /// What to do in a particular dialog.
    Script& onDialog(Which which, Step step, Where where = Where::current());

    /// A message box that has to come next, exactly so. Further conditions and the answer are
    /// named on the result; without an answer its default button is pressed.
    /// \param icon MB_ICONERROR and its kin, or 0 for a box without icon.
    MessageExpectation& expectMessage(Text caption, Text text, UINT icon,
                                      Where where = Where::current());

    /// A message box of any contents that has to come next; see MessageExpectation::inspect.
    MessageExpectation& expectMessage(Where where = Where::current());

    /// How many idle turns of the modal loop (10 ms or more each) a step waits for its window
    /// while another known one is active. The default is 200.
    Script& patience(int turns);

    /// Opens the conversation and drives it to its end.
    /// \return what the conversation returns.
    template <class Conversation>
    auto run(Conversation&& conversation, Where where = Where::current()) {
        const Running running(*this, where);
        return std::forward<Conversation>(conversation)();
    }

private:
    struct Item;

    /// Begins the driving and ends it, also when the conversation ends by an exception.
    class Running {
    public:
        Running(Script& script, const Where& where) : script_(script) { script_.begin(where); }
        ~Running() { script_.end(); }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

    private:
        Script& script_;
    };

    static LRESULT CALLBACK timerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void begin(const Where& where);
    void end();
    void turn();
    void perform(Item& item, HWND window);
    void unscripted(HWND window);
    void neverCame(const Item& item, HWND window);
    void giveUp(const std::string& message, const Where& where);
    void dismiss(HWND window);
    std::string outlook() const;

    std::vector<std::unique_ptr<Item>> items_;
    std::size_t next_ = 0;
    std::set<HWND> before_;          // windows that were there before the conversation
    std::set<HWND> known_;           // dialogs in which a step has run
    std::vector<HWND> driven_;       // windows whose steps are running now, outermost first
    std::map<HWND, int> dismissals_; // how often a window was told to go
    Where where_;
    std::optional<Watchdog> watchdog_;
    HWND timer_ = nullptr;
    Script* outer_ = nullptr;
    int patience_ = 200;
    int idle_ = 0;
    bool givenUp_ = false;
};

} // namespace kit
