#include "Tweak/Panel/NameType.h"

#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/PanelViews.h"

#include <algorithm>
#include <cmath>

namespace pendix {

namespace {

constexpr CGFloat kUsualSize = 12, kUsualHeight = 15;
constexpr CGFloat kHugeSize = 20; // what still gives a name of eight letters room
constexpr CGFloat kSpare = 8;     // below a name of the usual height
constexpr CGFloat kBelowIcon = 5, kBeyond = 10;

} // namespace

NameType currentNameType() {
    const BOOL huge = wantsHugeText();
    const CGFloat size = huge ? kHugeSize : nameSize();
    NameType type = {textFont(@"HelveticaNeue", size), huge ? 2 : 1, kUsualHeight, 0};
    if (size > kUsualSize) type.height = std::ceil(static_cast<CGFloat>(type.lines) * type.font.lineHeight);
    type.more = std::max<CGFloat>(type.height - kUsualHeight - kSpare, 0);
    return type;
}

void placeName(UILabel *name, const NameType &type, CGFloat y, CGFloat width, CGFloat step) {
    CGFloat room = width + 2 * kBeyond;
    // Large names would run into one another.
    if (type.height > kUsualHeight) room = std::min(room, step);
    name.frame = CGRectMake((width - room) / 2, y + kBelowIcon, room, type.height);
    name.font = type.font;
    name.numberOfLines = type.lines;
    name.lineBreakMode = type.lines > 1 ? NSLineBreakByTruncatingTail : NSLineBreakByTruncatingMiddle;
    // A name of one line stands at the top of two.
    if (type.lines > 1) setHeight(name, std::min([name sizeThatFits:name.frame.size].height, type.height));
}

} // namespace pendix
