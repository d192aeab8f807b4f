// Turns what the fingerprint sensor says into the glyph's states and, on a match, into unlocking the panel.
#pragma once

#include <BiometricKit/BiometricKit.h>
#include <PassKit/PKGlyphView.h>

@interface PendixTouchIDController : NSObject <SBUIBiometricEventObserver> {
    BOOL isMonitoring;
    BOOL previousMatchingSetting; // the monitor's, before it was turned on here
}
// The Touch ID face's glyph; nil while there is no such face, or the system has no such glyph.
- (PKGlyphView *)fingerPrint;
- (void)resetFinger;
- (void)scan;
// Shows the match, then unlocks the panel.
- (void)done;
// Says so in place of the face's title.
- (void)fail:(NSString *)message;
// Each does nothing when monitoring is already on, or off.
- (void)startMonitoring;
- (void)stopMonitoring;
+ (instancetype)sharedInstance;
@end
