#include "TableState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Views/ViewState.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat kSize = 13;
// Between a text and the rows that it belongs to, and at its other side.
constexpr CGFloat kNear = 7, kAboveHeader = 15.5, kAboveFirstHeader = 32.5, kBelowFooter = 7.5;

CGFloat margin() { return sim::device().scale > 2 ? 20 : 15; }

struct EdgeState {
    UILabel *label = nil; // retained by the view
    bool footer = false;
};

EdgeState &state(UITableViewHeaderFooterView *view) {
    return sim::lazyState<EdgeState>(view->_headerFooterState);
}

void setUp(UILabel *label, NSString *text, bool footer) {
    [label setFont:[UIFont systemFontOfSize:kSize]];
    [label setTextColor:[UIColor colorWithRed:109 / 255.0 green:109 / 255.0 blue:114 / 255.0 alpha:1]];
    [label setNumberOfLines:0];
    [label setLineBreakMode:NSLineBreakByWordWrapping];
    [label setText:footer ? text : [text uppercaseString]];
}

CGFloat textHeight(NSString *text, CGFloat width, bool footer) {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    setUp(label, text, footer);
    CGFloat height = [label sizeThatFits:CGSizeMake(width - 2 * margin(), 0)].height;
    [label release];
    return std::ceil(height * 2) / 2;
}

} // namespace

namespace sim {

CGFloat headerTextHeight(NSString *text, CGFloat width, bool firstGroup) {
    return textHeight(text, width, false) + kNear + (firstGroup ? kAboveFirstHeader : kAboveHeader);
}

CGFloat footerTextHeight(NSString *text, CGFloat width) {
    return textHeight(text, width, true) + kNear + kBelowFooter;
}

} // namespace sim

@implementation UITableViewHeaderFooterView

- (instancetype)initWithText:(NSString *)text footer:(BOOL)footer {
    if (!(self = [super initWithFrame:CGRectZero])) return nil;
    auto &mine = state(self);
    mine.footer = footer;
    mine.label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    setUp(mine.label, text, footer);
    [self addSubview:mine.label];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (NSString *)text {
    return [state(self).label text];
}

- (BOOL)isFooter {
    return state(self).footer;
}

- (void)layoutSubviews {
    [super layoutSubviews];
    auto &mine = state(self);
    CGSize size = [self bounds].size;
    CGFloat width = std::max<CGFloat>(size.width - 2 * margin(), 0);
    CGFloat height = [mine.label sizeThatFits:CGSizeMake(width, 0)].height;
    CGFloat y = mine.footer ? kNear : size.height - kNear - height;
    [mine.label setFrame:CGRectMake(margin(), y, width, height)];
}

@end
