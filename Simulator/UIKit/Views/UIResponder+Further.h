// What the platform has beyond <UIKit/UIResponder.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIResponder.h>

@interface UIResponder (Further)
- (BOOL)resignFirstResponder;
- (BOOL)isFirstResponder;
- (BOOL)canBecomeFirstResponder;
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event;
@end
