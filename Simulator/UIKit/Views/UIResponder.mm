#include "ViewState.h"

#include <UIKit/UIResponder.h>
#include <UIKit/UITouch.h>

@implementation UIResponder

- (UIResponder *)nextResponder {
    return nil;
}
- (BOOL)canBecomeFirstResponder {
    return NO;
}
- (BOOL)becomeFirstResponder {
    return NO;
}
- (BOOL)resignFirstResponder {
    return YES;
}
- (BOOL)isFirstResponder {
    return NO;
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
