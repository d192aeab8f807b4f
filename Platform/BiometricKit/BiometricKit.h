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
- (void)_stopMatching;
- (void)_setMatchingEnabled:(BOOL)enabled;
- (BOOL)isMatchingEnabled;
- (BOOL)hasEnrolledIdentities;
@end

// Events: 0 finger up, 1 finger down, 2 held, 3 matched, 4 maybe matched, 9 and 10 not matched.
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
// Starts matching; 0 for success.
- (int)match:(id)identities;
- (int)match:(id)identities withOptions:(id)options;
- (void)cancel;
@end
