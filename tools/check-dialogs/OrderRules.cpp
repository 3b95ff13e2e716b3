#include "Rules.h"

#include <algorithm>

namespace {

/// What is read in one go: a control, or a group box with all that is in it.
struct Block {
    RECT area{};
    std::vector<const Control*> sequence;
};

bool contains(const Control& box, const Control& control) {
    return &box != &control && box.isGroupBox() && box.area.left <= control.area.left &&
           box.area.top <= control.area.top && box.area.right >= control.area.right &&
           box.area.bottom >= control.area.bottom;
}

/// Cuts the blocks where a line across all of them meets none; `from` and `to` are the sides that
/// lie along the way. The parts come in that way's order.
std::vector<std::vector<Block>> cut(std::vector<Block> blocks, LONG RECT::*from, LONG RECT::*to) {
    std::stable_sort(blocks.begin(), blocks.end(), [&](const Block& one, const Block& other) {
        return one.area.*from < other.area.*from;
    });
    std::vector<std::vector<Block>> parts;
    LONG reached = 0;
    for (Block& block : blocks) {
        if (parts.empty() || block.area.*from >= reached)
            parts.emplace_back();
        reached = std::max(reached, block.area.*to);
        parts.back().push_back(std::move(block));
    }
    return parts;
}

/// Rows from the top; where nothing separates rows, columns from the left.
std::vector<const Control*> readingOrder(const std::vector<Block>& blocks) {
    if (blocks.size() == 1)
        return blocks.front().sequence;
    auto parts = cut(blocks, &RECT::top, &RECT::bottom);
    if (parts.size() == 1)
        parts = cut(blocks, &RECT::left, &RECT::right);
    std::vector<const Control*> sequence;
    for (const std::vector<Block>& part : parts) {
        if (parts.size() == 1) {
            // They overlap: there is no better order than from the top.
            for (const Block& block : part)
                sequence.insert(sequence.end(), block.sequence.begin(), block.sequence.end());
        } else {
            const auto inner = readingOrder(part);
            sequence.insert(sequence.end(), inner.begin(), inner.end());
        }
    }
    return sequence;
}

/// The blocks of these controls: a group box takes in what lies in it.
std::vector<Block> blocksOf(std::vector<const Control*> controls) {
    std::vector<Block> blocks;
    while (!controls.empty()) {
        // The outermost first: one that lies in no other.
        const auto outer = std::find_if(controls.begin(), controls.end(), [&](const Control* one) {
            return std::none_of(controls.begin(), controls.end(),
                                [&](const Control* other) { return contains(*other, *one); });
        });
        const Control* box = *outer;
        controls.erase(outer);
        std::vector<const Control*> inside;
        const auto kept =
            std::stable_partition(controls.begin(), controls.end(),
                                  [&](const Control* one) { return !contains(*box, *one); });
        inside.assign(kept, controls.end());
        controls.erase(kept, controls.end());
        Block block{box->area, {box}};
        if (!inside.empty()) {
            const auto inner = readingOrder(blocksOf(inside));
            block.sequence.insert(block.sequence.end(), inner.begin(), inner.end());
        }
        blocks.push_back(std::move(block));
    }
    return blocks;
}

} // namespace

void checkReadingOrder(const Dialog& dialog, Report& report) {
    std::vector<const Control*> tabOrder;
    for (const Control& control : dialog.controls()) {
        if (control.visible())
            tabOrder.push_back(&control);
    }
    if (tabOrder.empty())
        return;
    const auto expected = readingOrder(blocksOf(tabOrder));
    const auto [first, read] = std::mismatch(tabOrder.begin(), tabOrder.end(), expected.begin());
    // One finding: what follows the first difference is mostly its consequence.
    if (first != tabOrder.end())
        report.add(dialog.place(**first), L"order",
                   L"comes before " + dialog.place(**read).substr(dialog.place().size() + 2) +
                       L" in the tab order, and after it for the eye");
}

void checkClosingButtons(const Dialog& dialog, Report& report) {
    for (const Control& control : dialog.controls()) {
        if (control.isButton(BS_DEFPUSHBUTTON) && control.id != IDOK)
            report.add(dialog.place(control), L"default", L"is a default button; OK is the one");
    }
    if (dialog.isPage())
        return;
    const Control* ok = dialog.find(IDOK);
    const Control* cancel = dialog.find(IDCANCEL);
    if (ok == nullptr || !ok->isButton(BS_DEFPUSHBUTTON))
        report.add(dialog.place(), L"default", L"has no OK button that is the default");
    if (cancel == nullptr || !cancel->isPush() || cancel - 1 != ok)
        report.add(dialog.place(), L"default", L"has no Cancel button right after OK");
}
