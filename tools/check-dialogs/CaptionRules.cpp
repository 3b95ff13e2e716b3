#include "Rules.h"
#include "Text.h"

#include <commctrl.h>

#include <map>

namespace {

bool showsMnemonic(const Control& control) {
    if (control.isLabel())
        return (control.style & SS_NOPREFIX) == 0;
    return control.is(WC_BUTTONW);
}

/// The control right before this one in the template; null for the first.
const Control* before(const Dialog& dialog, const Control& control) {
    const Control* first = dialog.controls().data();
    return &control == first ? nullptr : &control - 1;
}

/// The label that gives an input its name; null when there is none.
const Control* labelOf(const Dialog& dialog, const Control& input) {
    const Control* label = before(dialog, input);
    return label != nullptr && label->isLabel() && !label->caption.empty() ? label : nullptr;
}

/// A device context with a font selected in it.
class Measure {
public:
    explicit Measure(HFONT font)
        : m_context(CreateCompatibleDC(nullptr)), m_before(SelectObject(m_context, font)) {}
    Measure(const Measure&) = delete;
    Measure& operator=(const Measure&) = delete;
    ~Measure() {
        SelectObject(m_context, m_before);
        DeleteDC(m_context);
    }

    /// Whether the text finds room within this width and height, in one line or in several.
    bool fits(const std::wstring& text, int width, int height, UINT format) const {
        RECT needed{0, 0, width, 0};
        DrawTextW(m_context, text.c_str(), -1, &needed, DT_CALCRECT | format);
        return needed.right <= width && needed.bottom <= height;
    }

private:
    HDC m_context;
    HGDIOBJ m_before;
};

/// The part of a control in which its caption is drawn, and how.
struct CaptionArea {
    int width = 0;
    int height = 0;
    UINT format = DT_SINGLELINE;
};

CaptionArea captionArea(const Control& control) {
    // What the system's own drawing takes at the sides, in pixels at 96 dots per inch.
    const int boxAndGap = GetSystemMetrics(SM_CXMENUCHECK) + 4;
    const int pushEdges = 2 * (GetSystemMetrics(SM_CXEDGE) + 2);
    const int groupCorners = 2 * 9;

    CaptionArea area{control.width(), control.height(), DT_SINGLELINE};
    if (control.isLabel()) {
        const DWORD type = control.style & SS_TYPEMASK;
        area.format = type == SS_SIMPLE || type == SS_LEFTNOWORDWRAP ? 0 : DT_WORDBREAK;
        if (control.style & SS_NOPREFIX)
            area.format |= DT_NOPREFIX;
    } else if (control.isPush()) {
        area.width -= pushEdges;
    } else if (control.isGroupBox()) {
        area.width -= groupCorners;
    } else {
        area.width -= boxAndGap;
    }
    if (control.is(WC_BUTTONW) && (control.style & BS_MULTILINE))
        area.format = DT_WORDBREAK;
    return area;
}

void checkRoomFor(const std::wstring& caption, const CaptionArea& area, HFONT font,
                  const std::wstring& place, Report& report) {
    const Measure measure(font);
    if (!measure.fits(caption, area.width, area.height, area.format))
        report.add(place, L"clipped", L"its text is cut off: \"" + caption + L"\"");
    // A text a third longer in this width needs what this text needs in three quarters of it.
    else if (!measure.fits(caption, area.width * 3 / 4, area.height, area.format))
        report.add(place, L"room",
                   L"a translation a third longer would be cut off: \"" + caption + L"\"");
}

void checkTitle(const Dialog& dialog, Report& report) {
    if (dialog.title().empty())
        return report.add(dialog.place(), L"clipped", L"has no title");
    if (dialog.isPage())
        return;
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const HFONT font = CreateFontIndirectW(&metrics.lfCaptionFont);
    const int iconAndButton = GetSystemMetrics(SM_CXSMICON) + metrics.iCaptionWidth + 12;
    checkRoomFor(dialog.title(),
                 {static_cast<int>(dialog.client().cx) - iconAndButton, metrics.iCaptionHeight,
                  DT_SINGLELINE | DT_NOPREFIX},
                 font, dialog.place(), report);
    DeleteObject(font);
}

} // namespace

void checkMnemonics(const Dialog& dialog, Report& report) {
    std::map<wchar_t, const Control*> taken;
    for (const Control& control : dialog.controls()) {
        if (!showsMnemonic(control))
            continue;
        const wchar_t letter = mnemonicOf(control.caption);
        const bool command = control.is(WC_BUTTONW) && !control.isGroupBox() &&
                             control.id != IDOK && control.id != IDCANCEL;
        const Control* next = &control + 1;
        const bool label = control.isLabel() && control.visible() &&
                           next < dialog.controls().data() + dialog.controls().size() &&
                           next->isInput();
        if (letter == 0) {
            if (command || label)
                report.add(dialog.place(control), L"mnemonic", L"has no mnemonic");
            continue;
        }
        const auto [entry, free] = taken.emplace(letter, &control);
        if (!free)
            report.add(dialog.place(control), L"mnemonic",
                       std::wstring(L"has the mnemonic ") + letter + L" of \"" +
                           withoutMnemonic(entry->second->caption) + L"\"");
    }
}

void checkNames(const Dialog& dialog, Report& report) {
    for (const Control& control : dialog.controls()) {
        if (control.isInput() && labelOf(dialog, control) == nullptr)
            report.add(dialog.place(control), L"name",
                       L"has no name: no STATIC with a text stands right before it");
    }
}

void checkRoom(const Dialog& dialog, Report& report) {
    checkTitle(dialog, report);
    for (const Control& control : dialog.controls()) {
        if (!control.isLabel() && !control.is(WC_BUTTONW))
            continue;
        // A label that is not seen only serves screen readers; icons and bitmaps have no text.
        if (!control.visible() || control.caption.empty())
            continue;
        const auto font = reinterpret_cast<HFONT>(SendMessageW(control.window, WM_GETFONT, 0, 0));
        checkRoomFor(control.caption, captionArea(control), font, dialog.place(control), report);
    }
}
