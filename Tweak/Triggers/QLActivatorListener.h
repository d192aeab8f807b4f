// The panel as an action that any gesture of the gesture launcher can be bound to: it opens and closes the
// panel, whatever `enable` says, and leaves the event unhandled.
#pragma once

#include <Activator/libactivator.h>

@interface QLActivatorListener : NSObject <LAListener>
@end
