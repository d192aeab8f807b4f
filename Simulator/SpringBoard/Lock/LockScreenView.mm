#include "LockScreenView.h"

#include "LockTexts.hpp"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Home/Glass.h"
#include "SpringBoard/Home/HomeViews.h"
#include "UIKit/UIKit+Further.h"

#include <algorithm>
#include <cmath>

namespace {

struct LockViewState {
    UIScrollView *scroll = nil; // retained by the view tree, as what follows is
    SBFLockScreenDateView *date = nil;
    UILabel *slide = nil;
    UIView *frost = nil;
    SBUIPasscodeLockView *passcode = nil;
};

LockViewState &state(SBLockScreenView *view) { return sim::lazyState<LockViewState>(view->_lockViewState); }

constexpr CGFloat kFrost = 0.35;

// "slide to unlock" at the foot of the screen.
UILabel *makeSlideLabel(CGRect page) {
    constexpr CGFloat kHeight = 36, kPhoneSize = 25, kPadSize = 30, kAboveFoot = 98, kMargin = 24;
    CGRect line = CGRectMake(page.origin.x, page.size.height - kAboveFoot, page.size.width, kHeight);
    CGRect frame = CGRectInset(line, kMargin, 0);
    UILabel *label = [[[UILabel alloc] initWithFrame:frame] autorelease];
    [label setText:[NSString stringWithUTF8String:sim::lockTexts().slide]];
    [label setFont:[UIFont fontWithName:@"HelveticaNeue-Light"
                                   size:sim::device().pad ? kPadSize : kPhoneSize]];
    [label setTextColor:[UIColor whiteColor]];
    [label setTextAlignment:NSTextAlignmentCenter];
    [label setAdjustsFontSizeToFitWidth:YES];
    return label;
}

// The short bars at the edges that say what can be pulled in from there.
UIView *makeGrabber(CGFloat x, CGFloat y) {
    constexpr CGFloat kWidth = 36, kHeight = 5;
    UIView *bar = [[[UIView alloc] initWithFrame:CGRectMake(x - kWidth / 2, y, kWidth, kHeight)] autorelease];
    [bar setBackgroundColor:[UIColor colorWithWhite:1 alpha:0.55]];
    [[bar layer] setCornerRadius:kHeight / 2];
    [bar setUserInteractionEnabled:NO];
    return bar;
}

NSArray *numbers(double first, double second, double third) {
    return [NSArray arrayWithObjects:[NSNumber numberWithDouble:first], [NSNumber numberWithDouble:second],
                                     [NSNumber numberWithDouble:third], nil];
}

// A bright band wanders over the dimmer words, from left to right, without end.
void startGlinting(UIView *view) {
    constexpr CFTimeInterval kRound = 3;
    constexpr CGFloat kDim = 0.5;
    CAGradientLayer *band = [CAGradientLayer layer];
    id dim = static_cast<id>([[UIColor colorWithWhite:0 alpha:kDim] CGColor]);
    id bright = static_cast<id>([[UIColor blackColor] CGColor]);
    [band setFrame:[view bounds]];
    [band setColors:[NSArray arrayWithObjects:dim, bright, dim, nil]];
    [band setStartPoint:CGPointMake(0, 0.5)];
    [band setEndPoint:CGPointMake(1, 0.5)];
    [band setLocations:numbers(-0.4, -0.2, 0)];
    [[view layer] setMask:band];
    CABasicAnimation *wander = [CABasicAnimation animationWithKeyPath:@"locations"];
    [wander setFromValue:numbers(-0.2, 0, 0.2)];
    [wander setToValue:numbers(0.9, 1.1, 1.3)];
    [wander setDuration:kRound];
    [wander setRepeatCount:HUGE_VALF];
    [band addAnimation:wander forKey:@"glint"];
}

} // namespace

@implementation SBLockScreenScrollView
@end

@implementation SBLockScreenView

- (instancetype)initWithFrame:(CGRect)frame passcode:(BOOL)passcode {
    if (!(self = [super initWithFrame:frame])) return nil;
    CGSize size = frame.size;
    CGRect left = CGRectMake(0, 0, size.width, size.height), right = CGRectOffset(left, size.width, 0);
    auto &mine = state(self);
    [self addSubview:[[[SBWallpaperView alloc] initWithFrame:left] autorelease]];
    if (passcode) {
        [self addSubview:mine.frost = sim::makeGlass(left, _UIBackdropViewStyleDark, kFrost,
                                                     [UIColor colorWithWhite:0 alpha:0.6])];
        [mine.frost setUserInteractionEnabled:NO];
        mine.passcode = [[[SBUIPasscodeLockView alloc] initWithFrame:left] autorelease];
    }
    mine.scroll = [[[SBLockScreenScrollView alloc] initWithFrame:left] autorelease];
    [mine.scroll setContentSize:CGSizeMake(2 * size.width, size.height)];
    [mine.scroll setPagingEnabled:YES];
    [mine.scroll setBounces:NO];
    [mine.scroll setShowsHorizontalScrollIndicator:NO];
    [mine.scroll setShowsVerticalScrollIndicator:NO];
    if (mine.passcode) [mine.scroll addSubview:mine.passcode];
    mine.date = [[[SBFLockScreenDateView alloc] initWithFrame:right] autorelease];
    [mine.scroll addSubview:mine.date];
    mine.slide = makeSlideLabel(right);
    [mine.scroll addSubview:mine.slide];
    [self addSubview:mine.scroll];
    constexpr CGFloat kTop = 24, kBottom = 12;
    [mine.scroll addSubview:makeGrabber(CGRectGetMidX(right), kTop)];
    [mine.scroll addSubview:makeGrabber(CGRectGetMidX(right), size.height - kBottom)];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (UIScrollView *)scrollView {
    return state(self).scroll;
}
- (SBFLockScreenDateView *)dateView {
    return state(self).date;
}
- (SBUIPasscodeLockView *)passcodeView {
    return state(self).passcode;
}

- (void)followScrolling {
    CGFloat width = [self bounds].size.width, x = [state(self).scroll contentOffset].x;
    [state(self).frost setAlpha:std::clamp<CGFloat>(1 - x / width, 0, 1)];
}

- (void)prepareToShow {
    auto &mine = state(self);
    [mine.scroll setContentOffset:CGPointMake([self bounds].size.width, 0) animated:NO];
    [mine.passcode reset];
    [mine.date update];
    [self followScrolling];
    startGlinting(mine.slide);
}

- (void)didHide {
    [[state(self).slide layer] setMask:nil];
}

@end
