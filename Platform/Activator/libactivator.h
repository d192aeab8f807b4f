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
- (void)activator:(LAActivator *)activator receiveEvent:(LAEvent *)event;
- (void)activator:(LAActivator *)activator abortEvent:(LAEvent *)event;
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
- (void)unregisterListenerWithName:(NSString *)name;
- (BOOL)hasListenerWithName:(NSString *)name;
// Nothing happens when no listener has that name.
- (void)sendEvent:(LAEvent *)event toListenerWithName:(NSString *)name;
// "springboard", "application" or "lockscreen".
@property (nonatomic, readonly) NSString *currentEventMode;
@end
