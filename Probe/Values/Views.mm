// What views and layers answer without being seen.
#include "Probe/Question.h"

#include <UIKit/UIKit.h>

namespace probe {

namespace {

UIView *newView(CGFloat width, CGFloat height) {
    return [[[UIView alloc] initWithFrame:CGRectMake(0, 0, width, height)] autorelease];
}

id alphaAfter(CGFloat alpha) {
    UIView *view = newView(20, 20);
    view.alpha = alpha;
    return number(view.alpha);
}

id alphaAbove() { return alphaAfter(1.05); }

id alphaBelow() { return alphaAfter(-0.5); }

id opacityAbove() {
    CALayer *layer = [CALayer layer];
    layer.opacity = 1.05f;
    return number(layer.opacity);
}

// Which of two views that cover each other takes the touch: the later one, or the one that is drawn in front.
id raised() {
    UIView *container = newView(20, 20), *front = newView(20, 20), *later = newView(20, 20);
    [container addSubview:front];
    [container addSubview:later];
    front.layer.zPosition = 10;
    return [container hitTest:CGPointMake(10, 10) withEvent:nil] == front ? @"in front" : @"later";
}

// The faintest hundredth of alpha at which a view takes touches.
id faintest() {
    UIView *container = newView(20, 20), *view = newView(20, 20);
    [container addSubview:view];
    for (int alpha = 0; alpha <= 100; ++alpha) {
        view.alpha = alpha / CGFloat(100);
        if ([container hitTest:CGPointMake(10, 10) withEvent:nil] == view) return number(alpha);
    }
    return absent();
}

// Whether a view that stands out of its superview, which does not clip, takes touches there.
id outside() {
    UIView *container = newView(20, 20), *view = newView(60, 20);
    [container addSubview:view];
    return flag([container hitTest:CGPointMake(40, 10) withEvent:nil] == view);
}

id turnedFrame() {
    UIView *view = newView(100, 50);
    view.transform = CGAffineTransformMakeScale(2, 2);
    return rectangle(view.frame);
}

// The frame of a view that is set while it is scaled by two.
id frameSetWhileScaled() {
    UIView *view = newView(100, 50);
    view.transform = CGAffineTransformMakeScale(2, 2);
    view.frame = CGRectMake(0, 0, 40, 40);
    return rectangle(view.bounds);
}

id tagged() {
    UIView *container = newView(20, 20), *deep = newView(20, 20), *holder = newView(20, 20),
           *near = newView(20, 20);
    deep.tag = near.tag = 7;
    [container addSubview:holder];
    [holder addSubview:deep];
    [container addSubview:near];
    return [container viewWithTag:7] == deep ? @"depth first" : @"breadth first";
}

id autoresized() {
    UIView *container = newView(100, 100), *view = newView(20, 20);
    view.frame = CGRectMake(10, 10, 20, 20);
    view.autoresizingMask = UIViewAutoresizingFlexibleLeftMargin | UIViewAutoresizingFlexibleWidth;
    [container addSubview:view];
    container.frame = CGRectMake(0, 0, 160, 100);
    return rectangle(view.frame);
}

// What is behind the tag of a window's own view: the extension finds its views by tags -1 and above.
id windowTag() { return number([[UIApplication sharedApplication] keyWindow].tag); }

} // namespace

std::span<const Question> viewQuestions() {
    static const Question all[] = {{"view.alpha.above_one", alphaAbove},
                                   {"view.alpha.below_zero", alphaBelow},
                                   {"layer.opacity.above_one", opacityAbove},
                                   {"view.touches.raised_layer", raised},
                                   {"view.touches.faintest_hundredth", faintest},
                                   {"view.touches.outside_superview", outside},
                                   {"view.frame.scaled", turnedFrame},
                                   {"view.frame.set_while_scaled", frameSetWhileScaled},
                                   {"view.tags.order", tagged},
                                   {"view.autoresized.frame", autoresized},
                                   {"window.key.tag", windowTag}};
    return all;
}

} // namespace probe
