// Where the items of the status bar stand, in points.
#pragma once

#include <vector>

namespace sim {

enum class StatusBarSide { left, right, center };

struct StatusBarSlot {
    StatusBarSide side = StatusBarSide::left;
    int order = 0; // 0 stands at the edge of its side (in the middle), higher ones further in (to the right)
    double width = 0; // of what the item shows
    double gap = 0;   // to the neighbour nearer to the edge
    bool operator==(const StatusBarSlot &) const = default;
};

constexpr double kStatusBarHeight = 20;

// The left end of each slot, in the order given. Slots of one side and order stand in that order too. An
// empty slot takes no room and no gap.
std::vector<double> layOutStatusBar(const std::vector<StatusBarSlot> &slots, double barWidth);

} // namespace sim
