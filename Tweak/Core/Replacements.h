// The functions behind the rows of the hook table, and the previous implementations of the hooked methods.
#pragma once

#include <PassKit/PKGlyphView.h>
#include <SpringBoard/SBApplication.h>
#include <SpringBoard/SBIcon.h>
#include <SpringBoard/SBLockScreen.h>
#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

// Run in place of the system's methods.
namespace pendix::hooked {

void applicationDidFinishLaunching(SpringBoard *self, SEL _cmd, id application);
void setUserInteractionEnabled(UIStatusBarItemView *self, SEL _cmd, BOOL enabled);
id initWithItem(UIStatusBarItemView *self, SEL _cmd, UIStatusBarItem *item, id data, int actions, id style);
BOOL clickedMenuButton(SBUIController *self, SEL _cmd);
BOOL handleMenuDoubleTap(SBUIController *self, SEL _cmd);
void presentBannerForContext(SBBannerController *self, SEL _cmd, id context, NSInteger reason);
BOOL shouldCreateContextAsSecure(UIWindow *self, SEL _cmd);
void handleDisplayTurnedOff(SBLockScreenViewController *self, SEL _cmd);
void handleDisplayTurnedOn(SBLockScreenViewController *self, SEL _cmd);
void handleDisplayTurnedOnWithReason(SBLockScreenViewController *self, SEL _cmd, id reason);
void prepareForUIUnlock(SBLockScreenViewController *self, SEL _cmd);
BOOL touchShouldProduceReturnEvent(UIStatusBar *self, SEL _cmd);
id initBadgeView(SBIconBadgeView *self, SEL _cmd);
void resizeForTextImage(SBIconBadgeView *self, SEL _cmd, UIImage *image);
void updateAccessoryView(SBIconView *self, SEL _cmd, BOOL animated);
void setProgress(PKFingerprintGlyphView *self, SEL _cmd, double progress, double duration, NSUInteger index);
void willActivate(SBApplication *self, SEL _cmd);
void willAnimateDeactivation(SBApplication *self, SEL _cmd, BOOL animated);

} // namespace pendix::hooked

// What those ran before; null while the row is not installed.
namespace pendix::original {

extern decltype(&hooked::applicationDidFinishLaunching) applicationDidFinishLaunching;
extern decltype(&hooked::setUserInteractionEnabled) setUserInteractionEnabled;
extern decltype(&hooked::initWithItem) initWithItem;
extern decltype(&hooked::clickedMenuButton) clickedMenuButton;
extern decltype(&hooked::handleMenuDoubleTap) handleMenuDoubleTap;
extern decltype(&hooked::presentBannerForContext) presentBannerForContext;
extern decltype(&hooked::shouldCreateContextAsSecure) shouldCreateContextAsSecure;
extern decltype(&hooked::handleDisplayTurnedOff) handleDisplayTurnedOff;
extern decltype(&hooked::handleDisplayTurnedOn) handleDisplayTurnedOn;
extern decltype(&hooked::handleDisplayTurnedOnWithReason) handleDisplayTurnedOnWithReason;
extern decltype(&hooked::prepareForUIUnlock) prepareForUIUnlock;
extern decltype(&hooked::touchShouldProduceReturnEvent) touchShouldProduceReturnEvent;
extern decltype(&hooked::initBadgeView) initBadgeView;
extern decltype(&hooked::resizeForTextImage) resizeForTextImage;
extern decltype(&hooked::updateAccessoryView) updateAccessoryView;
extern decltype(&hooked::setProgress) setProgress;
extern decltype(&hooked::willActivate) willActivate;
extern decltype(&hooked::willAnimateDeactivation) willAnimateDeactivation;

} // namespace pendix::original

// Methods that the system does not have; callers see them through the category headers.
namespace pendix::added {

void removePulse(SpringBoard *self, SEL _cmd);
void makePulse(SpringBoard *self, SEL _cmd, UIColor *color);
void pulse(SpringBoard *self, SEL _cmd, NSTimer *timer);
BOOL checkBadges(SpringBoard *self, SEL _cmd);
void pendixWillRotate(SpringBoard *self, SEL _cmd, NSNotification *notification);
NSString *getSysInfoByName(SpringBoard *self, SEL _cmd, char *name);
NSString *modelIdentifier(SpringBoard *self, SEL _cmd);
BOOL hasTouchID(SpringBoard *self, SEL _cmd);
BOOL hasBigScreen(SpringBoard *self, SEL _cmd);
void preferenceChangesByMe(SpringBoard *self, SEL _cmd);
BOOL isPendix(UIResponder *self, SEL _cmd, id view); // on the application and on item views
UIView *getForeGround(SpringBoard *self, SEL _cmd, int index);
NSArray *statusBarItemViews(SpringBoard *self, SEL _cmd);
UIStatusBarItemView *pendix(SpringBoard *self, SEL _cmd);
void dismisPendixUI(SpringBoard *self, SEL _cmd);
UIImage *imageForOrientation(SpringBoard *self, SEL _cmd, int orientation, NSString *path);
void prepareUI(SpringBoard *self, SEL _cmd, UIStatusBarItemView *item);
void unlockTap(SpringBoard *self, SEL _cmd, UIButton *button);
void dismisPendixUIorDelete(SpringBoard *self, SEL _cmd, UIButton *button);
void tapNumber(SpringBoard *self, SEL _cmd, UITapGestureRecognizer *recognizer);
void tryAgain(SpringBoard *self, SEL _cmd, UIView *keypad);
void animateError(SpringBoard *self, SEL _cmd, UIView *keypad, int distance, int first, int sign);
void usePasscode(SpringBoard *self, SEL _cmd);
void useTochID(SpringBoard *self, SEL _cmd);
void liveClock(SpringBoard *self, SEL _cmd);
float degreesToRadians(SpringBoard *self, SEL _cmd, float degrees);
NSNumber *degreesToNumber(SpringBoard *self, SEL _cmd, float degrees);
void swipeToClose(SpringBoard *self, SEL _cmd, UIPanGestureRecognizer *recognizer);
void close(SpringBoard *self, SEL _cmd, UITapGestureRecognizer *recognizer);
void closeIcon(SpringBoard *self, SEL _cmd, UIView *item);
void tapPressEvent(SpringBoard *self, SEL _cmd, UITapGestureRecognizer *recognizer);
void longPressEvent(SpringBoard *self, SEL _cmd, UILongPressGestureRecognizer *recognizer);
void okay(SpringBoard *self, SEL _cmd);
void dismissRequest(SpringBoard *self, SEL _cmd);
void tap(SpringBoard *self, SEL _cmd);
void alphaStatusBar(SpringBoard *self, SEL _cmd, NSTimer *timer);
void unlockPendix(SpringBoard *self, SEL _cmd, int page);
void setEditing(SBUIController *self, SEL _cmd);

} // namespace pendix::added
