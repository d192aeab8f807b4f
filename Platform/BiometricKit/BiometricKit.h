// The fingerprint sensor as the home screen sees it.
#pragma once

#import <Foundation/Foundation.h>

@interface SBUIBiometricEventMonitor : NSObject {
@public
    void *_monitorState;
}
+ (instancetype)sharedInstance;
// Observers are not retained.
- (void)addObserver:(id)observer;
- (void)removeObserver:(id)observer;
- (void)_startMatching;
- (void)_setMatchingEnabled:(BOOL)enabled;
- (BOOL)isMatchingEnabled;
@end

// What tells the failures 5, 7 and 8 from one another, and 9 from 10, is not known.
enum {
    SBUIBiometricEventFingerUp = 0,
    SBUIBiometricEventFingerDown = 1,
    SBUIBiometricEventFingerHeld = 2,
    SBUIBiometricEventMatched = 3,
    SBUIBiometricEventMaybeMatched = 4,
    SBUIBiometricEventFailure5 = 5,
    SBUIBiometricEventDisabled = 6,
    SBUIBiometricEventFailure7 = 7,
    SBUIBiometricEventFailure8 = 8,
    SBUIBiometricEventNotMatched9 = 9,
    SBUIBiometricEventNotMatched10 = 10
};

@protocol SBUIBiometricEventObserver
- (void)biometricEventMonitor:(SBUIBiometricEventMonitor *)monitor handleBiometricEvent:(NSUInteger)event;
@end

@interface BiometricKit : NSObject {
@public
    void *_biometricState;
}
+ (instancetype)manager;
// The event monitor.
@property (nonatomic, assign) id delegate;
- (void)cancel;
@end
