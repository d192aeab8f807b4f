// Bringing the panel up.
#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/Scheme.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Touchable.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

constexpr float kDimming = 0.5f;                // seconds
constexpr NSTimeInterval kFollowInterval = 0.1; // seconds
constexpr CGFloat kDimmedItems = 0.3;

UIColor *dimming() {
    constexpr CGFloat kBarely = 0.01, kStrong = 0.7;
    constexpr CGFloat kCoverDark = 0.15, kCoverLight = 0.85; // white; instead of blurring
    if (reducesTransparency() && isOn(keys::blursScreen))
        return [UIColor colorWithWhite:currentScheme().light ? kCoverDark : kCoverLight alpha:1];
    if (isOn(keys::clearBackground)) return [UIColor colorWithWhite:0 alpha:kBarely];
    return [UIColor colorWithWhite:currentScheme().light ? 0 : 1 alpha:kStrong];
}

void follow(SpringBoard *springBoard) {
    NSTimer *follower = [NSTimer scheduledTimerWithTimeInterval:kFollowInterval
                                                         target:springBoard
                                                       selector:@selector(alphaStatusBar:)
                                                       userInfo:nil
                                                        repeats:YES];
    [follower fire];
}

} // namespace

void bringUpPanel(SpringBoard *self) {
    NSLog(@"<Pendix> Loading Pendix UI!");
    window.userInteractionEnabled = YES;
    window1 = [[UIApplication sharedApplication] statusBarWindow];
    [self prepareUI:[self pendix]];
    isSliding = NO;
    isEditing = NO;
    UIColor *behind = dimming();
    [UIView animateTouchablyFor:animationDuration(kDimming)
        animations:^{
            window.backgroundColor = behind;
            for (UIView *view in [self statusBarItemViews])
                if (![self isPendix:view]) view.alpha = kDimmedItems;
        }
        completion:^(BOOL) { follow(self); }];
}

void added::tap(SpringBoard *self, SEL) {
    if (isOn(keys::enabled)) bringUpPanel(self);
}

} // namespace pendix
