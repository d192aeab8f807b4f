#include "Glass.h"

#include <UIKit/UIBackdropView.h>

#include <objc/runtime.h>

namespace sim {

UIView *makeGlass(CGRect frame, NSInteger style, CGFloat tintAlpha, UIColor *plain) {
    Class material = objc_getClass("_UIBackdropView");
    _UIBackdropViewSettings *settings = [objc_getClass("_UIBackdropViewSettings") settingsForStyle:style];
    if (!material || !settings) {
        UIView *view = [[[UIView alloc] initWithFrame:frame] autorelease];
        [view setBackgroundColor:plain];
        return view;
    }
    [settings setGrayscaleTintAlpha:0];
    [settings setColorTintAlpha:tintAlpha];
    return [[[material alloc] initWithFrame:frame autosizesToFitSuperview:YES settings:settings] autorelease];
}

} // namespace sim
