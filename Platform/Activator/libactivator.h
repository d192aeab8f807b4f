// The gesture launcher: events are assigned to listeners, which extensions register.
#pragma once

#include <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@class LAActivator, UIImage;

@interface LAEvent : NSObject {
@public
    void *_activatorEventState;
}
@property (nonatomic, readonly) NSString *name;
@property (nonatomic, readonly) NSString *mode;
@property (nonatomic, getter=isHandled) BOOL handled;
@end

@protocol LAListener <NSObject>
@optional
// The event assigned to the listener. The first form goes before the second; one that sets the event handled
// keeps the system from acting on it as well.
- (void)activator:(LAActivator *)activator receiveEvent:(LAEvent *)event forListenerName:(NSString *)name;
- (void)activator:(LAActivator *)activator receiveEvent:(LAEvent *)event;
// The event became part of a longer one.
- (void)activator:(LAActivator *)activator abortEvent:(LAEvent *)event;
// A press of the home button: who shows something closes it.
- (void)activator:(LAActivator *)activator receiveDeactivateEvent:(LAEvent *)event;
// Another listener took its event: who shows something closes it.
- (void)activator:(LAActivator *)activator otherListenerDidHandleEvent:(LAEvent *)event;
- (UIImage *)activator:(LAActivator *)activator
    requiresIconForListenerName:(NSString *)name
                          scale:(CGFloat)scale;
- (UIImage *)activator:(LAActivator *)activator
    requiresSmallIconForListenerName:(NSString *)name
                               scale:(CGFloat)scale;
- (NSString *)activator:(LAActivator *)activator requiresLocalizedGroupForListenerName:(NSString *)name;
- (NSString *)activator:(LAActivator *)activator requiresLocalizedTitleForListenerName:(NSString *)name;
- (NSString *)activator:(LAActivator *)activator requiresLocalizedDescriptionForListenerName:(NSString *)name;
- (NSArray *)activator:(LAActivator *)activator
    requiresCompatibleEventModesForListenerWithName:(NSString *)name;
@end

@interface LAActivator : NSObject {
@public
    void *_activatorState;
}
+ (instancetype)sharedInstance;
// The listener is retained.
- (void)registerListener:(id<LAListener>)listener forName:(NSString *)name;
@end
