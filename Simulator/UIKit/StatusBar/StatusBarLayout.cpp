#include "StatusBarLayout.hpp"

#include <algorithm>
#include <numeric>

namespace sim {

namespace {

constexpr double kLeftMargin = 6.5, kRightMargin = 5.5;

std::vector<size_t> onSide(const std::vector<StatusBarSlot> &slots, StatusBarSide side) {
    std::vector<size_t> result;
    for (size_t i = 0; i < slots.size(); ++i)
        if (slots[i].side == side) result.push_back(i);
    std::stable_sort(result.begin(), result.end(),
                     [&](size_t a, size_t b) { return slots[a].order < slots[b].order; });
    return result;
}

} // namespace

std::vector<double> layOutStatusBar(const std::vector<StatusBarSlot> &slots, double barWidth) {
    std::vector<double> lefts(slots.size());
    // Walks away from `start`; the first slot that shows something has no gap before it.
    auto walk = [&](const std::vector<size_t> &indices, double start, double direction) {
        bool first = true;
        for (size_t i : indices) {
            const auto &slot = slots[i];
            if (slot.width > 0) start += direction * (first ? 0 : slot.gap);
            lefts[i] = direction > 0 ? start : start - slot.width;
            start += direction * slot.width;
            first = first && slot.width <= 0;
        }
    };
    walk(onSide(slots, StatusBarSide::left), kLeftMargin, 1);
    walk(onSide(slots, StatusBarSide::right), barWidth - kRightMargin, -1);
    auto middle = onSide(slots, StatusBarSide::center);
    walk(middle, (barWidth - (middle.empty() ? 0 : slots[middle.front()].width)) / 2, 1);
    return lefts;
}

} // namespace sim
