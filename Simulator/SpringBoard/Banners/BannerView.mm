#include "BannerView.h"

#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Home/Glass.h"
#include "SpringBoard/Icons/IconImages.h"
#include "SpringBoard/Lock/LockTexts.hpp"

namespace {

constexpr CGFloat kHeight = 64, kIcon = 20, kIconLeft = 15, kIconTop = 10, kTextLeft = 45, kTextSize = 15;

// On a tablet the words keep to the middle.
CGFloat inset() { return sim::device().pad ? 150 : 0; }

UILabel *makeLabel(NSString *text, UIFont *font, CGRect frame, CGFloat alpha) {
    UILabel *label = [[[UILabel alloc] initWithFrame:frame] autorelease];
    [label setText:text];
    [label setFont:font];
    [label setTextColor:[UIColor colorWithWhite:1 alpha:alpha]];
    return label;
}

UIView *makeGrabber(CGFloat width) {
    constexpr CGFloat kWide = 36, kThick = 4, kAboveFoot = 4;
    UIView *bar = [[[UIView alloc]
        initWithFrame:CGRectMake((width - kWide) / 2, kHeight - kAboveFoot - kThick, kWide, kThick)]
        autorelease];
    [bar setBackgroundColor:[UIColor colorWithWhite:1 alpha:0.35]];
    [[bar layer] setCornerRadius:kThick / 2];
    return bar;
}

void addWords(UIView *banner, SBUIBannerContext *context) {
    CGFloat left = inset() + kTextLeft, room = [banner bounds].size.width - left - inset() - kIconLeft;
    UIFont *bold = [UIFont boldSystemFontOfSize:kTextSize], *plain = [UIFont systemFontOfSize:kTextSize];
    CGFloat line = 19, top = kIconTop + (kIcon - line) / 2,
            titleWidth = [[context title] sizeWithFont:bold].width;
    constexpr CGFloat kNowGap = 7, kNowSize = 12, kNowRoom = 60;
    [banner addSubview:makeLabel([context title], bold, CGRectMake(left, top, room - kNowRoom, line), 1)];
    [banner addSubview:makeLabel([NSString stringWithUTF8String:sim::lockTexts().now],
                                 [UIFont systemFontOfSize:kNowSize],
                                 CGRectMake(left + titleWidth + kNowGap, top + 1, kNowRoom, line), 0.5)];
    [banner addSubview:makeLabel([context message], plain, CGRectMake(left, top + line, room, line), 1)];
    if (![context application]) return;
    UIImageView *icon =
        [[[UIImageView alloc] initWithImage:sim::iconImage([context application])] autorelease];
    [icon setFrame:CGRectMake(inset() + kIconLeft, kIconTop, kIcon, kIcon)];
    [banner addSubview:icon];
}

} // namespace

@implementation SBDefaultBannerView

- (instancetype)initWithContext:(id)context {
    CGRect frame = CGRectMake(0, 0, sim::device().width, kHeight);
    if (!(self = [super initWithFrame:frame])) return nil;
    [self addSubview:sim::makeGlass(frame, _UIBackdropViewStyleDark, 0.5,
                                    [UIColor colorWithWhite:0.1 alpha:0.92])];
    if ([context isKindOfClass:[SBUIBannerContext class]]) addWords(self, context);
    [self addSubview:makeGrabber(frame.size.width)];
    for (UIView *part in [self subviews]) [part setUserInteractionEnabled:NO];
    return self;
}

@end
