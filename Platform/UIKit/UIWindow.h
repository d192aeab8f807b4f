// Windows and their levels.
#pragma once

#include <UIKit/UIView.h>

@class UIViewController;

typedef CGFloat UIWindowLevel;

extern "C" {
extern const UIWindowLevel UIWindowLevelNormal;    // 0
extern const UIWindowLevel UIWindowLevelStatusBar; // 1000
extern const UIWindowLevel UIWindowLevelAlert;     // 2000
}

@interface UIWindow : UIView {
@public
    void *_windowState;
}
@property (nonatomic) UIWindowLevel windowLevel;
@property (nonatomic, retain) UIViewController *rootViewController;
@property (nonatomic, readonly, getter=isKeyWindow) BOOL keyWindow;
@end
