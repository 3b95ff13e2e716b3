#include "kit/driver/MessageDialog.h"

#include "kit/picture/WindowTree.h"

#include <algorithm>
#include <string>

namespace kit {
namespace {

constexpr int textControl = 0xFFFF;

std::vector<HWND> visibleChildren(HWND window) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT))
        if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0)
            children.push_back(child);
    return children;
}

bool isButton(HWND window) {
    return classOf(window) == L"Button";
}

bool isIcon(HWND window) {
    return classOf(window) == L"Static" &&
           (GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
}

bool isAnswer(int id) {
    return id >= IDOK && id <= IDCONTINUE;
}

} // namespace

bool MessageDialog::is(HWND window) {
    // The system offers no such question. No other dialog consists of its text, perhaps an
    // icon, and answer buttons only, with its procedure in the system's library.
    if (classOf(window) != L"#32770" || GetDlgItem(window, textControl) == nullptr)
        return false;
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(GetWindowLongPtrW(window, DWLP_DLGPROC)), &module);
    return module == GetModuleHandleW(L"user32.dll") &&
           std::ranges::all_of(visibleChildren(window), [](HWND child) {
               return isButton(child) ? isAnswer(GetDlgCtrlID(child)) : classOf(child) == L"Static";
           });
}

std::wstring MessageDialog::caption() const {
    return textOf(window_);
}

std::wstring MessageDialog::text() const {
    return textOf(GetDlgItem(window_, textControl));
}

UINT MessageDialog::icon() const {
    for (const HWND child : visibleChildren(window_)) {
        if (!isIcon(child))
            continue;
        const LRESULT shown = SendMessageW(child, STM_GETICON, 0, 0);
        const auto is = [shown](LPCWSTR name) {
            return shown == reinterpret_cast<LRESULT>(LoadIconW(nullptr, name));
        };
        if (is(IDI_HAND))
            return MB_ICONHAND;
        if (is(IDI_QUESTION))
            return MB_ICONQUESTION;
        if (is(IDI_EXCLAMATION))
            return MB_ICONEXCLAMATION;
        if (is(IDI_ASTERISK))
            return MB_ICONASTERISK;
    }
    return 0;
}

std::vector<int> MessageDialog::buttons() const {
    std::vector<HWND> found = visibleChildren(window_);
    std::erase_if(found, [](HWND child) { return !isButton(child); });
    std::ranges::sort(found, {}, [](HWND button) {
        RECT rect = {};
        GetWindowRect(button, &rect);
        return rect.left;
    });
    std::vector<int> ids(found.size());
    std::ranges::transform(found, ids.begin(), GetDlgCtrlID);
    return ids;
}

int MessageDialog::defaultButton() const {
    for (const HWND child : visibleChildren(window_))
        if (isButton(child) && (GetWindowLongW(child, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
            return GetDlgCtrlID(child);
    return 0;
}

void MessageDialog::answer(int button, Where where) {
    const HWND control = GetDlgItem(window_, button);
    if (control == nullptr)
        abandon("the message box has no button " + std::to_string(button), where);
    PostMessageW(window_, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(control));
}

int MessageDialog::mildestButton() const {
    const std::vector<int> present = buttons();
    for (const int wanted : {IDCANCEL, IDNO, IDIGNORE, IDOK})
        if (std::ranges::find(present, wanted) != present.end())
            return wanted;
    return present.empty() ? IDCANCEL : present.back();
}

} // namespace kit
