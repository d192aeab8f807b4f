#include "Fingers.h"

#include "UIKit/Application/ApplicationState.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Touch/TouchInput.h"

#include <objc/runtime.h>

namespace harness {

namespace {

constexpr int kFinger = 0;

UIView *find(UIView *view, Class wanted, NSString *text) {
    bool said = !text || ([view respondsToSelector:@selector(text)] &&
                          [text isEqual:[static_cast<UILabel *>(view) text]]);
    if ([view isKindOfClass:wanted] && said) return view;
    for (UIView *subview in [view subviews])
        if (UIView *found = find(subview, wanted, text)) return found;
    return nil;
}

} // namespace

void tap(CGPoint point) {
    sim::touchBegan(kFinger, point);
    wait(0.1);
    sim::touchEnded(kFinger);
    wait(0.5);
}

void swipe(CGPoint from, CGFloat dx, CGFloat dy) {
    constexpr int kSamples = 9;
    sim::touchBegan(kFinger, from);
    for (int i = 1; i <= kSamples; ++i) {
        wait(1.0 / 60);
        sim::touchMoved(kFinger, CGPointMake(from.x + dx * i / kSamples, from.y + dy * i / kSamples));
    }
    sim::touchEnded(kFinger);
    wait(2);
}

CGPoint middle(UIView *view) {
    CGRect frame = [view convertRect:[view bounds] toView:nil];
    UIWindow *window = [view window];
    return {CGRectGetMidX(frame) + [window frame].origin.x, CGRectGetMidY(frame) + [window frame].origin.y};
}

UIView *findView(const char *className, NSString *text) {
    for (UIWindow *window : sim::displayedWindows())
        if (UIView *found = find(window, objc_getClass(className), text)) return found;
    return nil;
}

} // namespace harness
