// Changes that move, for those who want none of it.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix {

// Animates the change as animateTouchablyFor: does. Where motion is reduced the change is done at once, and
// the views of `appearing` fade in over that time where they then stand.
void change(NSTimeInterval duration, NSArray *appearing, void (^changes)(void),
            void (^completion)(BOOL finished));

} // namespace pendix
