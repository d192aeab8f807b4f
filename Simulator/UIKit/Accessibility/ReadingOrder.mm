#import <Foundation/Foundation.h>

#include "ReadingOrder.h"

#include "UIKit/CoreGraphics/CGGeometry+Further.h"

#include <algorithm>

namespace sim {

void append(ReadingItem &item, const ReadingItem &more) {
    if (more.elements.empty()) return;
    item.frame = item.elements.empty() ? more.frame : CGRectUnion(item.frame, more.frame);
    item.elements.insert(item.elements.end(), more.elements.begin(), more.elements.end());
}

ReadingItems sortedByTop(ReadingItems items) {
    std::erase_if(items, [](const ReadingItem &item) { return item.elements.empty(); });
    std::ranges::stable_sort(items, {}, [](const ReadingItem &item) { return CGRectGetMinY(item.frame); });
    return items;
}

ReadingItem inReadingOrder(ReadingItems items) {
    items = sortedByTop(std::move(items));
    auto left = [](const ReadingItem &item) { return CGRectGetMinX(item.frame); };
    ReadingItem result;
    for (auto line = items.begin(); line != items.end();) {
        CGFloat middle = CGRectGetMidY(line->frame);
        auto end = std::find_if(line, items.end(),
                                [&](const ReadingItem &item) { return CGRectGetMinY(item.frame) >= middle; });
        if (end == line) ++end;
        std::ranges::stable_sort(line, end, {}, left);
        for (; line != end; ++line) append(result, *line);
    }
    return result;
}

} // namespace sim
