#pragma once

#include "kit/driver/ComboBox.h"
#include "kit/driver/Failure.h"
#include "kit/driver/ListBox.h"
#include "kit/driver/ListView.h"
#include "kit/picture/Text.h"

#include <windows.h>

#include <string>
#include <vector>

namespace kit {

/// A place in the text of an edit control, in characters: start == end is the caret.
struct Selection {
    int start;
    int end;
    bool operator==(const Selection&) const = default;
};

/// An open dialog, as a person sees and uses it.
///
/// Controls are found by their number in the dialog and in the visible pages inside it. What
/// a person could not do (press a disabled button, type into a hidden edit, use a control
/// that is not there) is a failure of the test and ends the step.
class Dialog {
public:
    explicit Dialog(HWND window) noexcept : window_(window) {}

    HWND handle() const noexcept { return window_; }
    HWND owner() const { return GetWindow(window_, GW_OWNER); }

    /// The window of a control.
    HWND control(int id, Where where = Where::current()) const;

    // What a person sees.

    std::wstring caption() const;
    RECT rect() const;                                       ///< In screen pixels.
    RECT rect(int id, Where where = Where::current()) const; ///< In client pixels.
    std::wstring text(int id, Where where = Where::current()) const;
    bool exists(int id) const;
    bool enabled(int id, Where where = Where::current()) const;
    bool visible(int id, Where where = Where::current()) const;
    bool checked(int id, Where where = Where::current()) const;

    /// The checked radio button among the numbers first..last, or 0.
    int radio(int first, int last, Where where = Where::current()) const;

    /// The number of the control that has the focus; 0 when none of this dialog has it.
    int focus() const;

    /// The selected characters of an edit control.
    Selection selection(int id, Where where = Where::current()) const;

    /// The number of the button that Enter presses; 0 for none.
    int defaultButton() const;

    // What a person does.

    /// Moves the focus to a control.
    void focusOn(int id, Where where = Where::current());

    /// Replaces the text of an edit control key by key: each key fires its change.
    void type(int id, const Text& text, Where where = Where::current());

    /// Types behind the text of an edit control.
    void append(int id, const Text& text, Where where = Where::current());

    /// Types where the caret is, over what is selected.
    void insert(int id, const Text& text, Where where = Where::current());

    /// Selects characters of an edit control.
    void select(int id, Selection selection, Where where = Where::current());

    /// Clicks a push button, check box or radio button. Returns when the click is handled.
    void click(int id, Where where = Where::current());

    /// Presses a push button; for reading, the same as click.
    void press(int id, Where where = Where::current());

    /// Presses a push button after the running step has returned.
    void pressLater(int id, Where where = Where::current());

    /// Clicks a check box or radio button unless it is in the wanted state already.
    void check(int id, bool on = true, Where where = Where::current());

    /// Chooses an entry of a drop-down list with the mouse: one change notification.
    void choose(int id, int index, Where where = Where::current());
    void choose(int id, const Text& entry, Where where = Where::current());

    /// Turns an up-down control by its keys, or by its arrows where it has no keys.
    /// \param steps positive: up; negative: down.
    void spin(int id, int steps, Where where = Where::current());

    /// Drops files onto the dialog, or onto a control of it.
    void drop(const std::vector<std::wstring>& files, Where where = Where::current());
    void dropOn(int id, const std::vector<std::wstring>& files, Where where = Where::current());

    /// F1 in the control that has the focus.
    void help(Where where = Where::current());

    /// A help request for one control, as the question-mark pointer makes it.
    void helpOn(int id, Where where = Where::current());

    /// The close box of the caption.
    void close();

    // Parts with a life of their own.

    ListView list(int id, Where where = Where::current()) const;
    ListBox listBox(int id, Where where = Where::current()) const;
    ComboBox combo(int id, Where where = Where::current()) const;

    // What only a program does.

    /// Sets a text at once: one change notification.
    void setText(int id, const Text& text, Where where = Where::current());

    /// Sends a command, also of a button that is disabled or does not exist.
    void command(int id);

    /// Writes a picture `name`.png into the folder that the environment variable
    /// CUADROS_PICTURES names; without it, does nothing.
    void picture(const Text& name, Where where = Where::current()) const;

    /// The window tree of the dialog, for messages.
    std::string tree() const;

private:
    HWND usable(int id, const Where& where) const;
    void dropOnto(HWND target, const std::vector<std::wstring>& files, const Where& where);

    HWND window_;
};

} // namespace kit
