#include "kit/driver/Dialog.h"

#include "kit/driver/Process.h"
#include "kit/picture/Picture.h"
#include "kit/picture/WindowTree.h"

#include <commctrl.h>
#include <shlobj.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace kit {
namespace {

constexpr UINT keyF1 = 0x004D; // WM_KEYF1: the system's own word for a pressed F1

/// A control of a dialog, or of a visible page inside it.
HWND find(HWND dialog, int id) {
    if (const HWND control = GetDlgItem(dialog, id))
        return control;
    for (HWND page = GetWindow(dialog, GW_CHILD); page != nullptr;
         page = GetWindow(page, GW_HWNDNEXT))
        if (IsWindowVisible(page) && classOf(page) == L"#32770")
            if (const HWND control = find(page, id))
                return control;
    return nullptr;
}

std::string named(HWND dialog, int id) {
    return "control " + std::to_string(id) + " of the dialog " + inQuotes(textOf(dialog));
}

LRESULT buttonType(HWND control) {
    return classOf(control) == L"Button" ? GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK : -1;
}

bool isPushButton(HWND control) {
    const LRESULT type = buttonType(control);
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON || type == BS_OWNERDRAW;
}

bool isToggle(HWND control) {
    switch (buttonType(control)) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
    case BS_3STATE:
    case BS_AUTO3STATE:
        return true;
    default:
        return false;
    }
}

void moveFocus(HWND control) {
    SendMessageW(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void typeInto(HWND edit, const std::wstring& text) {
    for (const wchar_t c : text)
        SendMessageW(edit, WM_CHAR, c, 1);
}

void key(HWND control, WORD key) {
    SendMessageW(control, WM_KEYDOWN, key, 1);
    SendMessageW(control, WM_KEYUP, key, 0xC0000001);
}

/// Presses an arrow of an up-down control with the mouse.
void pressArrow(HWND upDown, bool up) {
    RECT rect = {};
    GetClientRect(upDown, &rect);
    const bool isHorizontal = (GetWindowLongW(upDown, GWL_STYLE) & UDS_HORZ) != 0;
    POINT at = {rect.right / 2, rect.bottom / 2};
    if (isHorizontal)
        at.x = up ? rect.right - 2 : 2;
    else
        at.y = up ? 2 : rect.bottom - 2;
    SendMessageW(upDown, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    SendMessageW(upDown, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}

/// The list of dropped files as the shell hands it over; the receiver frees it.
HDROP makeDrop(const std::vector<std::wstring>& files) {
    std::wstring list;
    for (const std::wstring& file : files)
        list += file + L'\0';
    list += L'\0';

    const std::size_t bytes = list.size() * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + bytes);
    auto* const drop = static_cast<DROPFILES*>(GlobalLock(memory));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    std::memcpy(drop + 1, list.data(), bytes);
    GlobalUnlock(memory);
    return static_cast<HDROP>(memory);
}

} // namespace

HWND Dialog::control(int id, Where where) const {
    const HWND found = find(window_, id);
    if (found == nullptr)
        abandon("There is no " + named(window_, id) + ":\n" + tree(), where);
    return found;
}

/// A control that a person can use now.
HWND Dialog::usable(int id, const Where& where) const {
    const HWND found = control(id, where);
    if (!IsWindowVisible(found))
        abandon("Nobody can use the hidden " + named(window_, id), where);
    if (!IsWindowEnabled(found))
        abandon("Nobody can use the disabled " + named(window_, id), where);
    if (!IsWindowEnabled(window_))
        abandon("Nobody can use the dialog " + inQuotes(caption()) +
                    " while another one is open before it",
                where);
    return found;
}

std::wstring Dialog::caption() const {
    return textOf(window_);
}

RECT Dialog::rect() const {
    RECT rect = {};
    GetWindowRect(window_, &rect);
    return rect;
}

RECT Dialog::rect(int id, Where where) const {
    RECT rect = {};
    GetWindowRect(control(id, where), &rect);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

std::wstring Dialog::text(int id, Where where) const {
    return textOf(control(id, where));
}

bool Dialog::exists(int id) const {
    return find(window_, id) != nullptr;
}

bool Dialog::enabled(int id, Where where) const {
    return IsWindowEnabled(control(id, where));
}

bool Dialog::visible(int id, Where where) const {
    return (GetWindowLongW(control(id, where), GWL_STYLE) & WS_VISIBLE) != 0;
}

bool Dialog::checked(int id, Where where) const {
    const HWND found = control(id, where);
    if (!isToggle(found))
        abandon("Neither a check box nor a radio button is " + named(window_, id), where);
    return SendMessageW(found, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int Dialog::radio(int first, int last, Where where) const {
    for (int id = first; id <= last; ++id)
        if (exists(id) && checked(id, where))
            return id;
    return 0;
}

int Dialog::focus() const {
    const HWND focused = GetFocus();
    if (focused == nullptr || !IsChild(window_, focused))
        return 0;
    // The edit inside a combo box stands for the combo box.
    const HWND parent = GetParent(focused);
    return GetDlgCtrlID(parent != window_ && classOf(parent) != L"#32770" ? parent : focused);
}

Selection Dialog::selection(int id, Where where) const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(control(id, where), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end)};
}

int Dialog::defaultButton() const {
    const LRESULT answer = SendMessageW(window_, DM_GETDEFID, 0, 0);
    return HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : 0;
}

void Dialog::focusOn(int id, Where where) {
    moveFocus(usable(id, where));
}

void Dialog::type(int id, const Text& text, Where where) {
    const HWND edit = usable(id, where);
    moveFocus(edit);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    if (text.empty())
        key(edit, VK_DELETE);
    insert(id, text, where);
}

void Dialog::append(int id, const Text& text, Where where) {
    const HWND edit = usable(id, where);
    moveFocus(edit);
    const LRESULT length = SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0);
    SendMessageW(edit, EM_SETSEL, length, length);
    insert(id, text, where);
}

void Dialog::insert(int id, const Text& text, Where where) {
    const HWND edit = usable(id, where);
    if (classOf(edit) != L"Edit" || (GetWindowLongW(edit, GWL_STYLE) & ES_READONLY) != 0)
        abandon("Nobody can type into " + named(window_, id), where);
    // The dialog selects all where the focus comes from elsewhere; the caret stays here.
    if (GetFocus() != edit)
        SetFocus(edit);
    typeInto(edit, text);
}

void Dialog::select(int id, Selection selection, Where where) {
    const HWND edit = usable(id, where);
    SetFocus(edit);
    SendMessageW(edit, EM_SETSEL, selection.start, selection.end);
}

void Dialog::click(int id, Where where) {
    const HWND button = usable(id, where);
    if (!isPushButton(button) && !isToggle(button))
        abandon("No button is " + named(window_, id), where);
    SendMessageW(button, BM_CLICK, 0, 0);
}

void Dialog::press(int id, Where where) {
    const HWND button = usable(id, where);
    if (!isPushButton(button))
        abandon("No push button is " + named(window_, id), where);
    SendMessageW(button, BM_CLICK, 0, 0);
}

void Dialog::pressLater(int id, Where where) {
    const HWND button = usable(id, where);
    if (!isPushButton(button))
        abandon("No push button is " + named(window_, id), where);
    PostMessageW(button, BM_CLICK, 0, 0);
}

void Dialog::check(int id, bool on, Where where) {
    usable(id, where);
    if (checked(id, where) != on)
        click(id, where);
}

void Dialog::choose(int id, int index, Where where) {
    usable(id, where);
    combo(id, where).choose(index, where);
}

void Dialog::choose(int id, const Text& entry, Where where) {
    usable(id, where);
    combo(id, where).choose(entry, where);
}

void Dialog::spin(int id, int steps, Where where) {
    const HWND upDown = usable(id, where);
    const auto buddy = reinterpret_cast<HWND>(SendMessageW(upDown, UDM_GETBUDDY, 0, 0));
    const bool hasKeys =
        buddy != nullptr && (GetWindowLongW(upDown, GWL_STYLE) & UDS_ARROWKEYS) != 0;
    if (hasKeys)
        moveFocus(buddy);
    for (int i = 0; i < std::abs(steps); ++i) {
        if (hasKeys)
            key(buddy, steps > 0 ? VK_UP : VK_DOWN);
        else
            pressArrow(upDown, steps > 0);
    }
}

void Dialog::drop(const std::vector<std::wstring>& files, Where where) {
    dropOnto(window_, files, where);
}

void Dialog::dropOn(int id, const std::vector<std::wstring>& files, Where where) {
    dropOnto(usable(id, where), files, where);
}

void Dialog::dropOnto(HWND target, const std::vector<std::wstring>& files, const Where& where) {
    // As the shell does: the nearest window upwards that takes files.
    while (target != nullptr && (GetWindowLongW(target, GWL_EXSTYLE) & WS_EX_ACCEPTFILES) == 0)
        target = target == window_ ? nullptr : GetParent(target);
    if (target == nullptr)
        abandon("The dialog " + inQuotes(caption()) + " takes no files there", where);
    SendMessageW(target, WM_DROPFILES, reinterpret_cast<WPARAM>(makeDrop(files)), 0);
}

void Dialog::help(Where where) {
    const HWND focused = GetFocus();
    if (focused == nullptr || (focused != window_ && !IsChild(window_, focused)))
        abandon("The dialog " + inQuotes(caption()) + " has not the focus", where);
    // The system makes this message of the key, so that it comes from here as well.
    SendMessageW(focused, keyF1, 0, 0);
}

void Dialog::helpOn(int id, Where where) {
    const HWND target = control(id, where);
    HELPINFO request = {};
    request.cbSize = sizeof request;
    request.iContextType = HELPINFO_WINDOW;
    request.iCtrlId = id;
    request.hItemHandle = target;
    request.dwContextId = GetWindowContextHelpId(target);
    GetCursorPos(&request.MousePos);
    SendMessageW(target, WM_HELP, 0, reinterpret_cast<LPARAM>(&request));
}

void Dialog::close() {
    SendMessageW(window_, WM_SYSCOMMAND, SC_CLOSE, 0);
}

ListView Dialog::list(int id, Where where) const {
    const HWND found = control(id, where);
    if (classOf(found) != WC_LISTVIEWW)
        abandon("No list view is " + named(window_, id), where);
    return ListView(found);
}

ListBox Dialog::listBox(int id, Where where) const {
    const HWND found = control(id, where);
    if (classOf(found) != L"ListBox")
        abandon("No list box is " + named(window_, id), where);
    return ListBox(found);
}

ComboBox Dialog::combo(int id, Where where) const {
    const HWND found = control(id, where);
    if (classOf(found) != L"ComboBox")
        abandon("No combo box is " + named(window_, id), where);
    return ComboBox(found);
}

void Dialog::setText(int id, const Text& text, Where where) {
    SendMessageW(control(id, where), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void Dialog::command(int id) {
    SendMessageW(window_, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(find(window_, id)));
}

void Dialog::picture(const Text& name, Where where) const {
    const std::wstring folder = environment(L"CUADROS_PICTURES");
    if (!folder.empty() && !savePicture(window_, folder + L"\\" + name + L".png"))
        fail("The picture " + inQuotes(name) + " cannot be written to " + inQuotes(folder), where);
}

std::string Dialog::tree() const {
    return windowTree(window_);
}

} // namespace kit
