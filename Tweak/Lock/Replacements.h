// The functions behind the hook table's rows that belong to the lock.
#pragma once

#include <PassKit/PKGlyphView.h>
#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

// Run in place of the system's methods.
namespace pendix::hooked {

void setProgress(PKFingerprintGlyphView *self, SEL _cmd, double progress, double duration, NSUInteger index);

} // namespace pendix::hooked

// What those ran before; null while the row is not installed.
namespace pendix::original {

inline decltype(&hooked::setProgress) setProgress = nullptr;

} // namespace pendix::original

// Methods that the system does not have; callers see them through the category headers.
namespace pendix::added {

void unlockTap(SpringBoard *self, SEL _cmd, UIButton *button);
void dismisPendixUIorDelete(SpringBoard *self, SEL _cmd, UIButton *button);
void tapNumber(SpringBoard *self, SEL _cmd, UITapGestureRecognizer *recognizer);
void tryAgain(SpringBoard *self, SEL _cmd, UIView *keypad);
void animateError(SpringBoard *self, SEL _cmd, UIView *keypad, int distance, int first, int sign);
void usePasscode(SpringBoard *self, SEL _cmd);
void useTochID(SpringBoard *self, SEL _cmd);
void unlockPendix(SpringBoard *self, SEL _cmd, int page);

} // namespace pendix::added
