// One card of the switcher: a small picture of the screen, above icon and name.
#pragma once

#include <SpringBoard/SBApplication.h>
#include <UIKit/UIKit.h>

@class SBAppSwitcherCardView;

@protocol SBAppSwitcherCardDelegate <NSObject>
- (void)cardTapped:(SBAppSwitcherCardView *)card;
- (void)cardThrownUp:(SBAppSwitcherCardView *)card;
@end

@interface SBAppSwitcherCardView : UIView {
@public
    void *_cardState;
}
// As large as the picture; icon and name hang below. nil stands for the home screen, whose card cannot be
// thrown away. The delegate is not retained.
- (instancetype)initWithApplication:(SBApplication *)application
                              scale:(CGFloat)scale
                           delegate:(id<SBAppSwitcherCardDelegate>)delegate;
- (SBApplication *)application;
@end
