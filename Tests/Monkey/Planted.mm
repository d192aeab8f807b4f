// An extension with a fault: it sends an unknown message when the device has been turned the third time.
#import <Foundation/Foundation.h>

// Declared, so that the message can be sent, and implemented nowhere.
@protocol Fault
- (void)plantedFault;
@end

@interface Planted : NSObject
@end

@implementation Planted

+ (void)load {
    @autoreleasepool {
        [[self new] performSelector:@selector(observe) withObject:nil afterDelay:0];
    }
}

- (void)observe {
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(turned:)
                                                 name:@"UIDeviceOrientationDidChangeNotification"
                                               object:nil];
}

- (void)turned:(NSNotification *)notification {
    (void)notification;
    static int turns = -1; // the first one tells how the device is held
    if (++turns == 3) [self performSelector:@selector(fail) withObject:nil afterDelay:0];
}

- (void)fail {
    [static_cast<id<Fault>>(static_cast<id>(self)) plantedFault];
}

@end
