// What the platform has beyond <Activator/libactivator.h>: used by the simulator and its tests only.
#pragma once

#include <Activator/libactivator.h>

@interface LAActivator (Further)
- (void)unregisterListenerWithName:(NSString *)name;
- (BOOL)hasListenerWithName:(NSString *)name;
- (id<LAListener>)listenerForName:(NSString *)name;
@property (nonatomic, readonly) NSArray *availableListenerNames; // sorted
// YES for a listener that names no modes.
- (BOOL)listenerWithName:(NSString *)name isCompatibleWithEventMode:(NSString *)mode;
- (NSString *)localizedTitleForListenerName:(NSString *)name;
- (NSString *)localizedDescriptionForListenerName:(NSString *)name;
// Nothing happens when no listener has that name, or it does not go with the event's mode.
- (void)sendEvent:(LAEvent *)event toListenerWithName:(NSString *)name;
// "springboard", "application" or "lockscreen".
@property (nonatomic, readonly) NSString *currentEventMode;
@end
