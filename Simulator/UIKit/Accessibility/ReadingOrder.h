// The order in which places on the screen are read: line by line, each from left to right.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include <vector>

namespace sim {

// Elements that are visited in one go, in their own order; `frame` is what all of them take.
struct ReadingItem {
    CGRect frame = {};
    std::vector<id> elements;
};
using ReadingItems = std::vector<ReadingItem>;

// Puts `more` after what the item has.
void append(ReadingItem &item, const ReadingItem &more);

// What begins above the middle of a line's first item belongs to that line.
ReadingItem inReadingOrder(ReadingItems items);

// By their upper edges; equal ones stay as they were.
ReadingItems sortedByTop(ReadingItems items);

} // namespace sim
