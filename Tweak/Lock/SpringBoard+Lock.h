// What the lock's keys, buttons and events set off; added to the home screen's application.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

@interface SpringBoard (PendixLock)
// Leaves the ask face for the keypad or the Touch ID face.
- (void)unlockTap:(UIButton *)button;
// The keypad's button: takes back the last digit; without one closes the panel.
- (void)dismisPendixUIorDelete:(UIButton *)button;
// A digit key. The fourth digit sets off the comparison.
- (void)tapNumber:(UITapGestureRecognizer *)recognizer;
// After a wrong code: says so, empties the dots and shakes them.
- (void)tryAgain:(UIView *)keypad;
// One move of the shake and, when it is done, those that follow from it.
- (void)animateError:(UIView *)keypad duration:(int)distance first:(int)left sign:(int)sign;
// From the Touch ID face to the keypad, and back.
- (void)usePasscode;
- (void)useTochID;
// Takes the lock away and shows the list. `page` is the tag of the face that was passed: keypad or Touch ID.
- (void)unlockPendix:(int)page;
@end
