#include "LockScreenView.h"
#include "LockTexts.hpp"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"

#include <cmath>

namespace {

struct DateState {
    UILabel *time = nil, *date = nil; // retained by the view tree
};

DateState &state(SBFLockScreenDateView *view) { return sim::lazyState<DateState>(view->_dateState); }

UILabel *makeLabel(CGRect frame, NSString *font, CGFloat size) {
    UILabel *label = [[[UILabel alloc] initWithFrame:frame] autorelease];
    [label setFont:[UIFont fontWithName:font size:size]];
    [label setTextColor:[UIColor whiteColor]];
    [label setTextAlignment:NSTextAlignmentCenter];
    return label;
}

NSString *string(const std::string &text) { return [NSString stringWithUTF8String:text.c_str()]; }

} // namespace

@implementation SBFLockScreenDateView

// Two lines at the top of the page that it is given; the frame is theirs.
- (instancetype)initWithFrame:(CGRect)page {
    constexpr double kTop = 0.06, kTimeShare = 0.25, kLargest = 100, kPhoneDate = 17, kPadDate = 21,
                     kDateHeight = 28;
    CGFloat size = std::fmin(page.size.width * kTimeShare, kLargest), line = std::round(size * 1.12);
    CGFloat y = std::round(page.size.height * kTop) + 4;
    if (!(self = [super initWithFrame:CGRectMake(page.origin.x, y, page.size.width, line + kDateHeight)]))
        return nil;
    [self setUserInteractionEnabled:NO];
    [self addSubview:state(self).time = makeLabel(CGRectMake(0, 0, page.size.width, line),
                                                  @"HelveticaNeue-UltraLight", size)];
    [self
        addSubview:state(self).date = makeLabel(CGRectMake(0, line, page.size.width, kDateHeight),
                                                @"HelveticaNeue", sim::device().pad ? kPadDate : kPhoneDate)];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (void)update {
    auto now = static_cast<int64_t>([[NSDate date] timeIntervalSince1970]);
    [state(self).time setText:string(sim::lockTime(now))];
    [state(self).date setText:string(sim::lockDate(now))];
}

@end
