#include "SwitcherScreen.h"

#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Home/Glass.h"
#include "SpringBoard/Home/HomeViews.h"
#include "SpringBoard/System/BarStyle.h"
#include "SpringBoard/System/Interface.h"
#include "SwitcherCard.h"
#include "SwitcherModel.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

constexpr NSTimeInterval kZoom = 0.3, kThrow = 0.3;
constexpr CGFloat kGap = 22, kMiddle = 0.45; // between cards; their middle, as a share of the screen

UIWindow *window = nil; // retained
UIScrollView *row = nil;
std::vector<SBAppSwitcherCardView *> cards; // retained by the row

CGSize screen() { return CGSizeMake(device().width, device().height); }
CGFloat scale() { return device().pad ? 0.45 : 0.52; }
CGFloat pitch() { return screen().width * scale() + kGap; }

void layOut() {
    for (size_t i = 0; i < cards.size(); ++i)
        [cards[i] setCenter:CGPointMake(screen().width / 2 + static_cast<CGFloat>(i) * pitch(),
                                        screen().height * kMiddle)];
    [row setContentSize:CGSizeMake(screen().width + static_cast<CGFloat>(cards.size() - 1) * pitch(),
                                   screen().height)];
}

} // namespace

} // namespace sim

@interface SBAppSwitcherCardHandler : NSObject <SBAppSwitcherCardDelegate>
@end

@implementation SBAppSwitcherCardHandler

- (void)cardTapped:(SBAppSwitcherCardView *)card {
    if (!sim::switcherIsOpen()) return;
    if ([card application]) {
        sim::launch([card application], false);
    } else {
        sim::returnToHomeScreen();
    }
    sim::closeSwitcher(true);
}

- (void)cardThrownUp:(SBAppSwitcherCardView *)card {
    auto place = std::find(sim::cards.begin(), sim::cards.end(), card);
    if (place == sim::cards.end()) return;
    sim::cards.erase(place);
    [UIView animateWithDuration:sim::kThrow
        animations:^{
            [card setCenter:CGPointMake([card center].x, -[card bounds].size.height)];
            sim::layOut();
        }
        completion:^(BOOL) { [card removeFromSuperview]; }];
    sim::quitFromSwitcher([card application]);
}

@end

namespace sim {

namespace {

void addCard(SBApplication *application) {
    static SBAppSwitcherCardHandler *handler = [SBAppSwitcherCardHandler new];
    SBAppSwitcherCardView *card = [[[SBAppSwitcherCardView alloc] initWithApplication:application
                                                                                scale:scale()
                                                                             delegate:handler] autorelease];
    [row addSubview:card];
    cards.push_back(card);
}

void fill() {
    CGRect frame = CGRectMake(0, 0, screen().width, screen().height);
    [window addSubview:[[[SBWallpaperView alloc] initWithFrame:frame] autorelease]];
    [window addSubview:makeGlass(frame, _UIBackdropViewStyleDark, 0.3, [UIColor colorWithWhite:0 alpha:0.7])];
    row = [[[UIScrollView alloc] initWithFrame:frame] autorelease];
    [row setAlwaysBounceHorizontal:YES];
    [row setShowsHorizontalScrollIndicator:NO];
    [row setShowsVerticalScrollIndicator:NO];
    [window addSubview:row];
    addCard(nil);
    for (const auto &identifier : switcherIdentifiers())
        if (SBApplication *application = findApplication(identifier)) addCard(application);
    layOut();
    [row setContentOffset:CGPointMake(frontApplication() && cards.size() > 1 ? pitch() : 0, 0)];
}

// As large as the screen, so that the middle card covers it.
CGAffineTransform enlarged() {
    CGFloat factor = 1 / scale();
    CGFloat shift = screen().height * (0.5 - kMiddle) * factor;
    return CGAffineTransformConcat(CGAffineTransformMakeScale(factor, factor),
                                   CGAffineTransformMakeTranslation(0, shift));
}

void empty(UIWindow *closing) {
    [closing setHidden:YES];
    for (UIView *view in [closing subviews]) [view removeFromSuperview];
    [closing release];
}

} // namespace

bool switcherIsOpen() { return window != nil; }

void openSwitcher() {
    // Above applications, below the status bar. (Inferred.)
    constexpr UIWindowLevel kLevel = 500;
    if (window) return;
    setReachability(false);
    window = [[homeWindowClass() alloc] initWithFrame:CGRectMake(0, 0, screen().width, screen().height)];
    [window setWindowLevel:kLevel];
    setRole(window, WindowRole::home);
    fill();
    updateStatusBarStyle();
    [window setAlpha:0];
    [window setHidden:NO];
    [row setTransform:enlarged()];
    UIView *shown = row;
    UIWindow *opening = window;
    [UIView animateWithDuration:kZoom
                     animations:^{
                         [opening setAlpha:1];
                         [shown setTransform:CGAffineTransformIdentity];
                     }];
}

bool closeSwitcher(bool animated) {
    UIWindow *closing = std::exchange(window, nil);
    if (!closing) return false;
    UIView *shown = std::exchange(row, nil);
    cards.clear();
    updateStatusBarStyle();
    if (!animated) {
        empty(closing);
        return true;
    }
    [closing setUserInteractionEnabled:NO];
    [UIView animateWithDuration:kZoom
        animations:^{
            [closing setAlpha:0];
            [shown setTransform:enlarged()];
        }
        completion:^(BOOL) { empty(closing); }];
    return true;
}

} // namespace sim
