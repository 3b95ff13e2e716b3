#include "kit/RawDialog.h"

namespace {

constexpr int lineHeight = 16; // dialog units, with the space below
constexpr int width = 200;
constexpr int margin = 7;

/// Puts the parts of a dialog template one behind the other.
class TemplateWriter {
public:
    explicit TemplateWriter(std::vector<WORD>& out) : out_(out) {}

    void word(int value) { out_.push_back(static_cast<WORD>(value)); }
    void dword(DWORD value) {
        word(LOWORD(value));
        word(HIWORD(value));
    }
    void text(const std::wstring& text) {
        out_.insert(out_.end(), text.begin(), text.end());
        word(0);
    }
    void align() {
        if (out_.size() % 2 != 0)
            word(0);
    }

private:
    std::vector<WORD>& out_;
};

} // namespace

RawDialog& RawDialog::label(kit::Text text) {
    return control(-1, L"Static", std::move(text), SS_LEFT);
}

RawDialog& RawDialog::edit(int id, DWORD style) {
    return control(id, L"Edit", L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL | style);
}

RawDialog& RawDialog::button(int id, kit::Text text, DWORD style) {
    return control(id, L"Button", std::move(text), WS_TABSTOP | style);
}

RawDialog& RawDialog::checkBox(int id, kit::Text text) {
    return button(id, std::move(text), BS_AUTOCHECKBOX);
}

RawDialog& RawDialog::radio(int id, kit::Text text, DWORD style) {
    return button(id, std::move(text), BS_AUTORADIOBUTTON | style);
}

RawDialog& RawDialog::control(int id, kit::Text windowClass, kit::Text text, DWORD style,
                              int lines) {
    controls_.push_back(
        {id, std::move(windowClass), std::move(text), WS_CHILD | WS_VISIBLE | style, lines});
    return *this;
}

RawDialog& RawDialog::onInit(std::function<void(HWND)> init) {
    init_ = std::move(init);
    return *this;
}

RawDialog& RawDialog::onCommand(Command command) {
    command_ = std::move(command);
    return *this;
}

RawDialog& RawDialog::onMessage(Message message) {
    message_ = std::move(message);
    return *this;
}

std::vector<WORD> RawDialog::makeTemplate() const {
    int height = margin;
    for (const Control& control : controls_)
        height += control.lines * lineHeight;

    std::vector<WORD> words;
    TemplateWriter out(words);
    out.word(1);      // version of the extended template
    out.word(0xFFFF); // its mark
    out.dword(0);     // help number
    out.dword(exStyle_);
    out.dword(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SHELLFONT);
    out.word(static_cast<int>(controls_.size()));
    out.word(10);
    out.word(10);
    out.word(width);
    out.word(height + margin);
    out.word(0); // no menu
    out.word(0); // the system's dialog class
    out.text(caption_);
    out.word(8); // points
    out.word(FW_NORMAL);
    out.word(DEFAULT_CHARSET << 8);
    out.text(L"MS Shell Dlg");
    int y = margin;
    for (const Control& control : controls_) {
        out.align();
        out.dword(0); // help number
        out.dword(0); // extended style
        out.dword(control.style);
        out.word(margin);
        out.word(y);
        out.word(width - 2 * margin);
        out.word(control.lines * lineHeight - 2);
        out.dword(static_cast<DWORD>(control.id));
        out.text(control.windowClass);
        out.text(control.text);
        out.word(0); // no creation data
        y += control.lines * lineHeight;
    }
    return words;
}

INT_PTR CALLBACK RawDialog::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    const auto* const self =
        reinterpret_cast<const RawDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (self == nullptr)
        return FALSE;
    if (self->message_ && self->message_(dialog, message, wParam, lParam))
        return TRUE;
    switch (message) {
    case WM_INITDIALOG:
        if (self->init_)
            self->init_(dialog);
        return TRUE;
    case WM_COMMAND:
        if (const int id = LOWORD(wParam); id == IDOK || id == IDCANCEL)
            EndDialog(dialog, id);
        else if (self->command_)
            self->command_(dialog, id, HIWORD(wParam));
        return TRUE;
    default:
        return FALSE;
    }
}

INT_PTR RawDialog::open(HWND owner) const {
    const std::vector<WORD> words = makeTemplate();
    return DialogBoxIndirectParamW(GetModuleHandleW(nullptr),
                                   reinterpret_cast<LPCDLGTEMPLATEW>(words.data()), owner,
                                   procedure, reinterpret_cast<LPARAM>(this));
}
