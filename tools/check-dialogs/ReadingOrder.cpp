#include "ReadingOrder.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

using Sequence = std::vector<std::size_t>;

/// What is read in one go: a control, or a group box with all that is in it.
struct Block {
    RECT area{};
    Sequence sequence;
};

bool contains(const Readable& box, const Readable& other) {
    return &box != &other && box.box && box.area.left <= other.area.left &&
           box.area.top <= other.area.top && box.area.right >= other.area.right &&
           box.area.bottom >= other.area.bottom;
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
Sequence orderOf(const std::vector<Block>& blocks) {
    if (blocks.size() == 1)
        return blocks.front().sequence;
    auto parts = cut(blocks, &RECT::top, &RECT::bottom);
    if (parts.size() == 1)
        parts = cut(blocks, &RECT::left, &RECT::right);
    Sequence sequence;
    for (const std::vector<Block>& part : parts) {
        if (parts.size() == 1) {
            // They overlap: there is no better order than from the top.
            for (const Block& block : part)
                sequence.insert(sequence.end(), block.sequence.begin(), block.sequence.end());
        } else {
            const auto inner = orderOf(part);
            sequence.insert(sequence.end(), inner.begin(), inner.end());
        }
    }
    return sequence;
}

/// The blocks of these: a group box takes in what lies in it.
std::vector<Block> blocksOf(const std::vector<Readable>& all, Sequence these) {
    std::vector<Block> blocks;
    while (!these.empty()) {
        // The outermost first: one that lies in no other.
        const auto outer = std::find_if(these.begin(), these.end(), [&](std::size_t one) {
            return std::none_of(these.begin(), these.end(),
                                [&](std::size_t other) { return contains(all[other], all[one]); });
        });
        const std::size_t box = *outer;
        these.erase(outer);
        const auto kept = std::stable_partition(these.begin(), these.end(), [&](std::size_t one) {
            return !contains(all[box], all[one]);
        });
        const Sequence inside(kept, these.end());
        these.erase(kept, these.end());
        Block block{all[box].area, {box}};
        if (!inside.empty()) {
            const auto inner = orderOf(blocksOf(all, inside));
            block.sequence.insert(block.sequence.end(), inner.begin(), inner.end());
        }
        blocks.push_back(std::move(block));
    }
    return blocks;
}

} // namespace

std::vector<std::size_t> readingOrder(const std::vector<Readable>& readables) {
    Sequence all(readables.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    return orderOf(blocksOf(readables, std::move(all)));
}
