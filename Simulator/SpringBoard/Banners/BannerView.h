// The banner itself: dark glass over the top of the screen with icon, title and message.
#pragma once

#include "BannerContext.h"

#include <UIKit/UIKit.h>

@interface SBDefaultBannerView : UIView
// As wide as the screen. Anything but a banner's context gives an empty banner.
- (instancetype)initWithContext:(id)context;
@end
