// The functions behind the hook table's rows that belong to the triggers.
#pragma once

#include <SpringBoard/SBLockScreen.h>
#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

// Run in place of the system's methods.
namespace pendix::hooked {

BOOL clickedMenuButton(SBUIController *self, SEL _cmd);
BOOL handleMenuDoubleTap(SBUIController *self, SEL _cmd);
void presentBannerForContext(SBBannerController *self, SEL _cmd, id context, NSInteger reason);
BOOL shouldCreateContextAsSecure(UIWindow *self, SEL _cmd);
void handleDisplayTurnedOff(SBLockScreenViewController *self, SEL _cmd);
void handleDisplayTurnedOn(SBLockScreenViewController *self, SEL _cmd);
void handleDisplayTurnedOnWithReason(SBLockScreenViewController *self, SEL _cmd, id reason);
void prepareForUIUnlock(SBLockScreenViewController *self, SEL _cmd);

} // namespace pendix::hooked

// What those ran before; null while the row is not installed.
namespace pendix::original {

inline decltype(&hooked::clickedMenuButton) clickedMenuButton = nullptr;
inline decltype(&hooked::handleMenuDoubleTap) handleMenuDoubleTap = nullptr;
inline decltype(&hooked::presentBannerForContext) presentBannerForContext = nullptr;
inline decltype(&hooked::shouldCreateContextAsSecure) shouldCreateContextAsSecure = nullptr;
inline decltype(&hooked::handleDisplayTurnedOff) handleDisplayTurnedOff = nullptr;
inline decltype(&hooked::handleDisplayTurnedOn) handleDisplayTurnedOn = nullptr;
inline decltype(&hooked::handleDisplayTurnedOnWithReason) handleDisplayTurnedOnWithReason = nullptr;
inline decltype(&hooked::prepareForUIUnlock) prepareForUIUnlock = nullptr;

} // namespace pendix::original

// Methods that the system does not have; callers see them through the category headers.
namespace pendix::added {

void setEditing(SBUIController *self, SEL _cmd);

} // namespace pendix::added
