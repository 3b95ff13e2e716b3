#include "kit/picture/WindowTree.h"

#include "kit/picture/Text.h"

namespace kit {
namespace {

constexpr UINT answerTime = 500; // milliseconds

bool isSystems(HWND window) {
    const std::wstring name = classOf(window);
    return name == L"IME" || name == L"MSCTFIME UI" || name == L"Message";
}

/// A window of a stuck thread never answers; then only what the system keeps can be read.
bool answers(HWND window) {
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, answerTime, &result) != 0;
}

std::wstring keptTextOf(HWND window) {
    wchar_t text[256] = L"";
    InternalGetWindowText(window, text, 256);
    return text;
}

void describe(HWND window, bool answering, int depth, std::string& out) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&rect), 2);
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread);
    const LONG style = GetWindowLongW(window, GWL_STYLE);

    out.append(2 * static_cast<std::size_t>(depth), ' ');
    out += utf8(classOf(window));
    if ((style & WS_CHILD) != 0)
        out += " " + std::to_string(GetDlgCtrlID(window));
    out += " " + inQuotes(answering ? textOf(window) : keptTextOf(window));
    if ((style & WS_VISIBLE) == 0)
        out += " hidden";
    if ((style & WS_DISABLED) != 0)
        out += " disabled";
    if (thread.hwndFocus == window)
        out += " focus";
    if (thread.hwndActive == window)
        out += " active";
    out += " (" + std::to_string(rect.left) + "," + std::to_string(rect.top) + " " +
           std::to_string(rect.right - rect.left) + "x" + std::to_string(rect.bottom - rect.top) +
           ")\n";
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT))
        describe(child, answering, depth + 1, out);
}

} // namespace

std::wstring classOf(HWND window) {
    wchar_t name[256] = L"";
    GetClassNameW(window, name, 256);
    return name;
}

std::wstring textOf(HWND window) {
    std::wstring text(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0) + 1, L'\0');
    text.resize(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    return text;
}

std::string windowTree(HWND window) {
    std::string out;
    describe(window, answers(window), 0, out);
    return out;
}

std::string windowTrees(DWORD thread) {
    std::string out;
    for (const HWND window : topLevelWindows(thread))
        out += windowTree(window);
    return out;
}

std::vector<HWND> topLevelWindows(DWORD thread) {
    std::vector<HWND> windows;
    EnumThreadWindows(
        thread,
        [](HWND window, LPARAM list) -> BOOL {
            if (!isSystems(window))
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

} // namespace kit
