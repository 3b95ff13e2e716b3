#include "Rules.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int margin = 7;
constexpr int spacing = 4;
constexpr int buttonWidth = 50;
constexpr int buttonHeight = 14;
constexpr int helpButton = 57670;

bool covers(const RECT& outer, const RECT& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

bool intersect(const RECT& one, const RECT& other) {
    RECT common;
    return IntersectRect(&common, &one, &other);
}

/// An up-down control stands on the edge of the edit before it.
bool isOwnUpDown(const Control& one, const Control& other) {
    return other.is(UPDOWN_CLASSW) && &other == &one + 1;
}

/// Units between two rectangles that lie side by side or one under the other; none when they
/// touch neither row nor column.
int distance(const Dialog& dialog, const RECT& one, const RECT& other) {
    const bool sameRow = one.top < other.bottom && other.top < one.bottom;
    const bool sameColumn = one.left < other.right && other.left < one.right;
    if (sameRow)
        return dialog.unitsAcross(std::max(other.left - one.right, one.left - other.right));
    if (sameColumn)
        return dialog.unitsDown(std::max(other.top - one.bottom, one.top - other.bottom));
    return spacing;
}

} // namespace

void checkPlaces(const Dialog& dialog, Report& report) {
    const SIZE client = dialog.client();
    for (const Control& control : dialog.controls()) {
        if (!covers({0, 0, client.cx, client.cy}, control.area))
            report.add(dialog.place(control), L"outside", L"reaches beyond the dialog");
    }
}

void checkMargins(const Dialog& dialog, Report& report) {
    const SIZE client = dialog.client();
    RECT content{client.cx, client.cy, 0, 0};
    for (const Control& control : dialog.controls()) {
        if (control.visible())
            UnionRect(&content, &content, &control.area);
    }
    const auto side = [&](const wchar_t* name, int pixels, int expected, int units) {
        // A unit is not a whole number of pixels: one pixel more or less is rounding.
        if (std::abs(pixels - expected) > 1)
            report.add(dialog.place(), L"margin",
                       std::wstring(L"has a margin of ") + std::to_wstring(units) + L" units " +
                           name + L"; " + std::to_wstring(margin) + L" are the rule");
    };
    if (dialog.controls().empty())
        return;
    const int right = client.cx - content.right;
    const int bottom = client.cy - content.bottom;
    side(L"at the left", content.left, dialog.across(margin), dialog.unitsAcross(content.left));
    side(L"at the top", content.top, dialog.down(margin), dialog.unitsDown(content.top));
    side(L"at the right", right, dialog.across(margin), dialog.unitsAcross(right));
    side(L"at the bottom", bottom, dialog.down(margin), dialog.unitsDown(bottom));
}

void checkOverlaps(const Dialog& dialog, Report& report) {
    const std::vector<Control>& controls = dialog.controls();
    for (const Control& one : controls) {
        for (const Control* other = &one + 1; other != controls.data() + controls.size(); ++other) {
            if (!one.visible() || !other->visible() || !intersect(one.area, other->area))
                continue;
            const bool contained = (one.isGroupBox() && covers(one.area, other->area)) ||
                                   (other->isGroupBox() && covers(other->area, one.area));
            if (!contained && !isOwnUpDown(one, *other))
                report.add(dialog.place(*other), L"overlap",
                           L"overlaps " + dialog.place(one).substr(dialog.place().size() + 2));
        }
    }
}

void checkPushButtons(const Dialog& dialog, Report& report) {
    const Control* last = nullptr;
    for (const Control& control : dialog.controls()) {
        if (!control.isPush() || !control.visible())
            continue;
        const bool closing =
            control.id == IDOK || control.id == IDCANCEL || control.id == helpButton;
        const bool browse = control.caption == L"..." || control.caption == L"\x2026" ||
                            control.caption == L"&..." || control.caption == L"&\x2026";
        const int width = dialog.across(browse ? buttonHeight : buttonWidth);
        if (std::abs(control.height() - dialog.down(buttonHeight)) > 1)
            report.add(dialog.place(control), L"button-size",
                       L"is " + std::to_wstring(dialog.unitsDown(control.height())) +
                           L" units high; 14 are the rule");
        if (control.width() < width - 1 || (closing && control.width() > width + 1))
            report.add(dialog.place(control), L"button-size",
                       L"is " + std::to_wstring(dialog.unitsAcross(control.width())) +
                           L" units wide; 50 are the rule");
        if (last != nullptr && distance(dialog, last->area, control.area) < spacing)
            report.add(dialog.place(control), L"spacing",
                       L"is nearer than 4 units to the button before it");
        last = &control;
    }
}
