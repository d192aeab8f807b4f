// Alerts: a title, a message and buttons.
#pragma once

#include <UIKit/UIView.h>

@class UIAlertView;

@protocol UIAlertViewDelegate <NSObject>
@optional
- (void)alertView:(UIAlertView *)alertView clickedButtonAtIndex:(NSInteger)index;
- (void)alertViewCancel:(UIAlertView *)alertView;
- (void)willPresentAlertView:(UIAlertView *)alertView;
- (void)didPresentAlertView:(UIAlertView *)alertView;
- (void)alertView:(UIAlertView *)alertView willDismissWithButtonIndex:(NSInteger)index;
- (void)alertView:(UIAlertView *)alertView didDismissWithButtonIndex:(NSInteger)index;
@end

// A panel above everything else of the application. Kept while it is shown; the delegate is not retained.
// With a cancel button that one has index 0 and the others follow. A further alert waits below the last one
// shown.
@interface UIAlertView : UIView {
@public
    void *_alertViewState;
}
- (instancetype)initWithTitle:(NSString *)title
                      message:(NSString *)message
                     delegate:(id)delegate
            cancelButtonTitle:(NSString *)cancelButtonTitle
            otherButtonTitles:(NSString *)otherButtonTitles, ...;
@property (nonatomic, assign) id delegate;
@property (nonatomic, copy) NSString *title;
@property (nonatomic, copy) NSString *message;
@property (nonatomic, readonly, getter=isVisible) BOOL visible;
- (void)show;
@end
