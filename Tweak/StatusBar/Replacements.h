// The functions behind the hook table's rows that belong to the indicator, its pulse and the home screen's
// badges.
#pragma once

#include <SpringBoard/SBApplication.h>
#include <SpringBoard/SBIcon.h>
#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

// Run in place of the system's methods.
namespace pendix::hooked {

void setUserInteractionEnabled(UIStatusBarItemView *self, SEL _cmd, BOOL enabled);
id initWithItem(UIStatusBarItemView *self, SEL _cmd, UIStatusBarItem *item, id data, int actions, id style);
NSString *accessibilityValue(UIStatusBarItemView *self, SEL _cmd);
BOOL touchShouldProduceReturnEvent(UIStatusBar *self, SEL _cmd);
id initBadgeView(SBIconBadgeView *self, SEL _cmd);
void resizeForTextImage(SBIconBadgeView *self, SEL _cmd, UIImage *image);
void updateAccessoryView(SBIconView *self, SEL _cmd, BOOL animated);
void willActivate(SBApplication *self, SEL _cmd);
void willAnimateDeactivation(SBApplication *self, SEL _cmd, BOOL animated);

} // namespace pendix::hooked

// What those ran before; null while the row is not installed.
namespace pendix::original {

inline decltype(&hooked::setUserInteractionEnabled) setUserInteractionEnabled = nullptr;
inline decltype(&hooked::initWithItem) initWithItem = nullptr;
inline decltype(&hooked::accessibilityValue) accessibilityValue = nullptr;
inline decltype(&hooked::touchShouldProduceReturnEvent) touchShouldProduceReturnEvent = nullptr;
inline decltype(&hooked::initBadgeView) initBadgeView = nullptr;
inline decltype(&hooked::resizeForTextImage) resizeForTextImage = nullptr;
inline decltype(&hooked::updateAccessoryView) updateAccessoryView = nullptr;
inline decltype(&hooked::willActivate) willActivate = nullptr;
inline decltype(&hooked::willAnimateDeactivation) willAnimateDeactivation = nullptr;

} // namespace pendix::original

// Methods that the system does not have; callers see them through the category headers.
namespace pendix::added {

void removePulse(SpringBoard *self, SEL _cmd);
void makePulse(SpringBoard *self, SEL _cmd, UIColor *color);
void pulse(SpringBoard *self, SEL _cmd, NSTimer *timer);
BOOL checkBadges(SpringBoard *self, SEL _cmd);
BOOL isPendix(UIResponder *self, SEL _cmd, id view); // on the application and on item views
UIView *getForeGround(SpringBoard *self, SEL _cmd, int index);
NSArray *statusBarItemViews(SpringBoard *self, SEL _cmd);
UIStatusBarItemView *pendix(SpringBoard *self, SEL _cmd);
void alphaStatusBar(SpringBoard *self, SEL _cmd, NSTimer *timer);

} // namespace pendix::added
