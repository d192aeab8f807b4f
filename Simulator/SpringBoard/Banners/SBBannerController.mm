// Banners come in from the top one at a time, and go by themselves.
#include "BannerContext.h"
#include "BannerView.h"

#include "Runtime/Process/Device.hpp"
#include "Runtime/Time/Clock.hpp"
#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Home/HomeViews.h"
#include "SpringBoard/HomeScreen.h"
#include "SpringBoard/Lock/LockState.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"

#include <SpringBoard/SpringBoard.h>

#include <utility>

namespace {

constexpr NSTimeInterval kSlide = 0.3, kStay = 5;

struct Banner {
    UIWindow *window = nil; // retained while the banner is there
    UIView *view = nil;     // retained by the window
    id context = nil;       // retained
    sim::Clock::TaskId leaving = 0;
} current;

// Above the status bar. (Inferred.)
UIWindow *makeWindow(CGSize size) {
    constexpr UIWindowLevel kLevel = 1100;
    UIWindow *window =
        [[sim::homeWindowClass() alloc] initWithFrame:CGRectMake(0, 0, size.width, size.height)];
    [window setWindowLevel:kLevel];
    [window setClipsToBounds:YES];
    sim::setRole(window, sim::WindowRole::alert);
    return window;
}

void discard(const Banner &banner) {
    [banner.window setHidden:YES];
    [banner.view removeFromSuperview];
    [banner.context release];
    [banner.window release];
}

void placeAbove(UIView *view) { [view setFrame:CGRectOffset([view bounds], 0, -[view bounds].size.height)]; }

// The banner's own part in it is over at once.
void leave(bool animated) {
    Banner banner = std::exchange(current, {});
    if (!banner.window) return;
    sim::Clock::shared().cancel(banner.leaving);
    [banner.window setUserInteractionEnabled:NO];
    if (!animated) return discard(banner);
    [UIView animateWithDuration:kSlide
        animations:^{ placeAbove(banner.view); }
        completion:^(BOOL) { discard(banner); }];
}

} // namespace

@implementation SBBannerController

+ (instancetype)sharedInstance {
    static SBBannerController *controller = [self new];
    return controller;
}

// One that is there makes way at once. (Inferred.)
- (void)_presentBannerForContext:(id)context reason:(NSInteger)reason {
    leave(false);
    SBDefaultBannerView *view = [[[SBDefaultBannerView alloc] initWithContext:context] autorelease];
    UITapGestureRecognizer *tap =
        [[[UITapGestureRecognizer alloc] initWithTarget:self action:@selector(bannerTapped)] autorelease];
    UISwipeGestureRecognizer *swipe =
        [[[UISwipeGestureRecognizer alloc] initWithTarget:self action:@selector(bannerSwiped)] autorelease];
    [swipe setDirection:UISwipeGestureRecognizerDirectionUp];
    [view addGestureRecognizer:tap];
    [view addGestureRecognizer:swipe];
    sim::Clock &clock = sim::Clock::shared();
    current = {
        makeWindow([view bounds].size), view, [context retain],
        clock.schedule(clock.now() + sim::fromSeconds(kStay), sim::Clock::Phase::timer, [] { leave(true); })};
    [current.window addSubview:view];
    placeAbove(view);
    [current.window setHidden:NO];
    [UIView animateWithDuration:kSlide animations:^{ [view setFrame:[view bounds]]; }];
}

// Opens what the banner came from; behind the lock screen for the time being.
- (void)bannerTapped {
    if ([current.context isKindOfClass:[SBUIBannerContext class]])
        sim::launch([static_cast<SBUIBannerContext *>(current.context) application], false);
    leave(true);
}

- (void)bannerSwiped {
    leave(true);
}

@end

namespace sim {

void presentBanner(const std::string &text) {
    constexpr NSInteger kNewBulletin = 1;
    SBApplication *sender = findApplication(std::string("com.apple.MobileSMS"));
    if (!sender && !installedApplications().empty()) sender = installedApplications().front();
    NSString *message = [NSString stringWithUTF8String:text.c_str()];
    SBUIBannerContext *context = [[[SBUIBannerContext alloc] initWithApplication:sender
                                                                         message:message] autorelease];
    [[SBBannerController sharedInstance] _presentBannerForContext:context reason:kNewBulletin];
}

} // namespace sim
