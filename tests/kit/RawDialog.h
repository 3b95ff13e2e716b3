#pragma once

#include "kit/picture/Text.h"

#include <windows.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// A dialog straight on the system, for the tests of the kit itself.
class RawDialog {
public:
    /// Handles one notification: control number, code, dialog.
    using Command = std::function<void(HWND dialog, int id, int code)>;
    using Message = std::function<bool(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)>;

    explicit RawDialog(kit::Text caption, DWORD exStyle = 0)
        : caption_(std::move(caption)), exStyle_(exStyle) {}

    RawDialog& label(kit::Text text);
    RawDialog& edit(int id, DWORD style = 0);
    RawDialog& button(int id, kit::Text text, DWORD style = 0);
    RawDialog& checkBox(int id, kit::Text text);
    RawDialog& radio(int id, kit::Text text, DWORD style = 0);
    RawDialog& control(int id, kit::Text windowClass, kit::Text text, DWORD style, int lines = 1);

    /// Called at the start, before the dialog is shown.
    RawDialog& onInit(std::function<void(HWND)> init);

    /// Called for each command but OK and Cancel, which end the dialog unless taken with
    /// onMessage.
    RawDialog& onCommand(Command command);

    /// Called for each message first; true ends its handling.
    RawDialog& onMessage(Message message);

    /// Opens the dialog and returns the number of the button that ended it.
    INT_PTR open(HWND owner = nullptr) const;

private:
    struct Control {
        int id;
        std::wstring windowClass;
        std::wstring text;
        DWORD style;
        int lines;
    };

    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    std::vector<WORD> makeTemplate() const;

    std::wstring caption_;
    DWORD exStyle_;
    std::vector<Control> controls_;
    std::function<void(HWND)> init_;
    Command command_;
    Message message_;
};
