#include "Dialog.h"

#include "Text.h"

#include <commctrl.h>

#include <cstring>
#include <utility>

namespace {

std::wstring textOf(HWND window) {
    std::wstring text(GetWindowTextLengthW(window) + 1, L'\0');
    text.resize(GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
    return text;
}

std::wstring classOf(HWND window) {
    wchar_t name[256] = L"";
    GetClassNameW(window, name, 256);
    return name;
}

/// What the head of a DIALOGEX template says.
struct Head {
    bool extended = false;
    DWORD style = 0;
    std::wstring font;
    int points = 0;
    int height = 0;
};

template <typename Number>
Number numberAt(const BYTE* bytes) {
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

/// Skips a menu, class or title field: nothing, a number, or a text.
const BYTE* afterField(const BYTE* field) {
    if (numberAt<WORD>(field) == 0xFFFF)
        return field + 4;
    while (numberAt<WORD>(field) != 0)
        field += 2;
    return field + 2;
}

Head headOf(const BYTE* bytes) {
    Head head;
    head.extended = numberAt<WORD>(bytes) == 1 && numberAt<WORD>(bytes + 2) == 0xFFFF;
    if (!head.extended)
        return head;
    head.style = numberAt<DWORD>(bytes + 12);
    head.height = numberAt<short>(bytes + 24);
    const BYTE* field = bytes + 26;
    for (int i = 0; i < 3; ++i)
        field = afterField(field);
    if (head.style & DS_SETFONT) {
        head.points = numberAt<WORD>(field);
        for (field += 6; numberAt<WORD>(field) != 0; field += 2)
            head.font += static_cast<wchar_t>(numberAt<WORD>(field));
    }
    return head;
}

void checkHead(const Head& head, const std::wstring& place, Report& report) {
    const auto wrong = [&](const wchar_t* text) { report.add(place, L"template", text); };
    if (!head.extended)
        return wrong(L"is a DIALOG; write DIALOGEX");
    if ((head.style & DS_SHELLFONT) != DS_SHELLFONT)
        wrong(L"lacks DS_SHELLFONT, which stands for the user's own font");
    if (head.font != L"MS Shell Dlg" || head.points != 8)
        wrong(L"has another font than MS Shell Dlg 8");
    if (head.style & WS_VISIBLE)
        wrong(L"has WS_VISIBLE: it would flash up before it is filled and centred");
    const DWORD frame = DS_MODALFRAME | WS_CAPTION | WS_SYSMENU;
    if (!(head.style & WS_CHILD) && (head.style & frame) != frame)
        wrong(L"lacks one of DS_MODALFRAME, WS_CAPTION and WS_SYSMENU");
    if (head.height > 300)
        report.add(place, L"height",
                   L"is " + std::to_wstring(head.height) + L" units high; 300 are the limit");
}

INT_PTR CALLBACK dialogProcedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

} // namespace

bool Control::is(const wchar_t* windowClass) const {
    return CompareStringOrdinal(kind.c_str(), -1, windowClass, -1, TRUE) == CSTR_EQUAL;
}

bool Control::isButton(DWORD type) const {
    return is(WC_BUTTONW) && (style & BS_TYPEMASK) == type;
}

bool Control::isPush() const {
    return isButton(BS_PUSHBUTTON) || isButton(BS_DEFPUSHBUTTON);
}

bool Control::isCheck() const {
    return isButton(BS_CHECKBOX) || isButton(BS_AUTOCHECKBOX) || isButton(BS_3STATE) ||
           isButton(BS_AUTO3STATE);
}

bool Control::isRadio() const {
    return isButton(BS_RADIOBUTTON) || isButton(BS_AUTORADIOBUTTON);
}

bool Control::isLabel() const {
    if (!is(WC_STATICW))
        return false;
    const DWORD type = style & SS_TYPEMASK;
    return type == SS_LEFT || type == SS_CENTER || type == SS_RIGHT || type == SS_SIMPLE ||
           type == SS_LEFTNOWORDWRAP;
}

bool Control::isInput() const {
    for (const wchar_t* input :
         {WC_EDITW, WC_COMBOBOXW, WC_COMBOBOXEXW, WC_LISTBOXW, WC_LISTVIEWW, WC_TREEVIEWW,
          TRACKBAR_CLASSW, DATETIMEPICK_CLASSW, HOTKEY_CLASSW, WC_IPADDRESSW}) {
        if (is(input))
            return true;
    }
    return false;
}

std::optional<Dialog> Dialog::create(HMODULE module, int number, const std::wstring& name,
                                     Report& report) {
    Dialog dialog;
    dialog.m_number = number;
    dialog.m_name = name;
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(number), RT_DIALOG);
    const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(module, resource)));
    const Head head = headOf(bytes);
    checkHead(head, dialog.place(), report);
    dialog.m_style = head.style;

    // A page needs a window to be the child of; a template is never shown, whatever it says.
    dialog.m_owner = CreateWindowExW(0, WC_STATICW, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                     GetModuleHandleW(nullptr), nullptr);
    std::vector<BYTE> copy(bytes, bytes + SizeofResource(module, resource));
    const DWORD hidden = head.style & ~static_cast<DWORD>(WS_VISIBLE);
    if (head.extended)
        std::memcpy(copy.data() + 12, &hidden, sizeof hidden);
    dialog.m_window = CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                                 reinterpret_cast<LPCDLGTEMPLATEW>(copy.data()),
                                                 dialog.m_owner, dialogProcedure, 0);
    if (dialog.m_window == nullptr) {
        report.add(dialog.place(), L"template", L"cannot be created");
        return std::nullopt;
    }
    RECT base{0, 0, 4, 8};
    MapDialogRect(dialog.m_window, &base);
    dialog.m_base = {base.right, base.bottom};
    dialog.m_title = textOf(dialog.m_window);
    dialog.collectControls();
    return dialog;
}

Dialog::Dialog(Dialog&& other) noexcept
    : m_window(std::exchange(other.m_window, nullptr)),
      m_owner(std::exchange(other.m_owner, nullptr)), m_number(other.m_number),
      m_name(std::move(other.m_name)), m_title(std::move(other.m_title)), m_style(other.m_style),
      m_base(other.m_base), m_controls(std::move(other.m_controls)) {}

Dialog::~Dialog() {
    if (m_window != nullptr)
        DestroyWindow(m_window);
    if (m_owner != nullptr)
        DestroyWindow(m_owner);
}

void Dialog::collectControls() {
    for (HWND child = GetWindow(m_window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        Control control;
        control.window = child;
        // The template's -1 comes back as 65535 from some versions, as -1 from others.
        control.id = static_cast<int>(static_cast<short>(GetDlgCtrlID(child))) == -1
                         ? -1
                         : (GetDlgCtrlID(child) & 0xFFFF);
        control.kind = classOf(child);
        control.style = static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE));
        GetWindowRect(child, &control.area);
        MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&control.area), 2);
        control.caption = textOf(child);
        m_controls.push_back(control);
    }
}

SIZE Dialog::client() const {
    RECT area;
    GetClientRect(m_window, &area);
    return {area.right, area.bottom};
}

const Control* Dialog::find(int id) const {
    for (const Control& control : m_controls) {
        if (control.id == id)
            return &control;
    }
    return nullptr;
}

std::wstring Dialog::place() const {
    return m_name + L" (" + std::to_wstring(m_number) + L")";
}

std::wstring Dialog::place(const Control& control) const {
    if (control.id != -1)
        return place() + L": control " + std::to_wstring(control.id);
    if (control.caption.empty())
        return place() + L": " + control.kind;
    return place() + L": \"" + withoutMnemonic(control.caption) + L"\"";
}
