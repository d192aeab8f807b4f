// The chain along which touches and other events travel.
#pragma once

#include <UIKit/UIGeometry.h>

@class UIEvent;

@interface UIResponder : NSObject {
@public
    void *_responderState;
}
- (BOOL)becomeFirstResponder;
- (UIResponder *)nextResponder;
@end
