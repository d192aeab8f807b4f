#include "FirstResponder.h"
#include "ViewState.h"

#include "UIKit/Accessibility/Forgetting.h"
#include "UIResponder+Further.h"

#include <UIKit/UIResponder.h>
#include <UIKit/UITouch.h>

namespace {
UIResponder *first = nil; // not retained: one that goes resigns
}

namespace sim {
UIResponder *firstResponder() { return first; }
} // namespace sim

@implementation UIResponder

- (void)dealloc {
    if (self == first) first = nil;
    sim::forgetAccessibility(self);
    [super dealloc];
}

- (UIResponder *)nextResponder {
    return nil;
}
- (BOOL)canBecomeFirstResponder {
    return NO;
}
- (BOOL)becomeFirstResponder {
    if (self == first) return YES;
    if (![self canBecomeFirstResponder] || (first && ![first resignFirstResponder])) return NO;
    first = self;
    return YES;
}
- (BOOL)resignFirstResponder {
    if (self == first) first = nil;
    return YES;
}
- (BOOL)isFirstResponder {
    return self == first;
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    [[self nextResponder] touchesBegan:touches withEvent:event];
}
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    [[self nextResponder] touchesMoved:touches withEvent:event];
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    [[self nextResponder] touchesEnded:touches withEvent:event];
}
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [[self nextResponder] touchesCancelled:touches withEvent:event];
}

@end
