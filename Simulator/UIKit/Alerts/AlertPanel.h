// What is seen of an alert.
#pragma once

#include <UIKit/UIAlertView.h>
#include <UIKit/UIWindow.h>

// Dims everything below it, and lets nothing through.
@interface AlertWindow : UIWindow
@end

@interface UIAlertView (Panel)
- (void)buttonWasPressed:(NSInteger)index;
@end

// 270 points wide, centred in its window. Two buttons stand side by side when their titles fit, others one
// below the other with the cancel button last.
@interface AlertPanel : UIView {
@public
    void *_panelState;
}
- (instancetype)initWithTitle:(NSString *)title
                      message:(NSString *)message
                      buttons:(NSArray *)titles
                       cancel:(NSInteger)cancel;
// Hears of presses; not retained.
- (void)setTarget:(UIAlertView *)alert;
@end

namespace sim {

// The alert that waits for an answer on top of all others; nil when there is none.
UIAlertView *topmostAlert();

} // namespace sim
