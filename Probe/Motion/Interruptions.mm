// What becomes of an animation that another one, or something else, cuts short after half its second.
#include "Probe/Motion/Motion.h"
#include "Probe/PendixProbe.h"

namespace probe {

namespace {

constexpr NSTimeInterval kMiddle = 0.5, kShortlyAfter = 0.05;

void fade(UIView *view, CGFloat alpha, UIViewAnimationOptions options, void (^completion)(BOOL)) {
    [UIView animateWithDuration:1
                          delay:0
                        options:UIViewAnimationOptionCurveLinear | options
                     animations:^{ view.alpha = alpha; }
                     completion:completion];
}

// The completion's argument, and after how many seconds it came.
NSArray *ending(CFTimeInterval start, BOOL finished) {
    const id parts[] = {flag(finished), number(CACurrentMediaTime() - start)};
    return [NSArray arrayWithObjects:parts count:2];
}

void cutShort(const char *name, void (^cut)(UIView *)) {
    UIView *view = newStage();
    CFTimeInterval start = CACurrentMediaTime();
    fade(view, 0, 0, ^(BOOL finished) { answerLater(name, ending(start, finished)); });
    after(kMiddle, ^{ cut(view); });
}

void byNewer() {
    cutShort("animation.replaced.ending", ^(UIView *view) { fade(view, 1, 0, nil); });
}

void byRemoval() {
    cutShort("animation.removed_view.ending", ^(UIView *view) { [view removeFromSuperview]; });
}

void byHiding() {
    cutShort("animation.hidden_view.ending", ^(UIView *view) { view.hidden = YES; });
}

void bySetting() {
    cutShort("animation.set_meanwhile.ending", ^(UIView *view) { view.alpha = 0.8; });
}

void byRemovingAnimations() {
    cutShort("animation.removed_animations.ending", ^(UIView *view) { [view.layer removeAllAnimations]; });
}

// The opacity on the screen shortly after a newer animation, back to 1, has taken over at about 0.5.
void newerStart(const char *name, UIViewAnimationOptions options) {
    UIView *view = newStage();
    fade(view, 0, 0, nil);
    after(kMiddle, ^{
        fade(view, 1, options, nil);
        after(kShortlyAfter, ^{ answerLater(name, number([[view.layer presentationLayer] opacity])); });
    });
}

void newerFromModel() { newerStart("animation.replaced.shows", 0); }

void newerFromCurrent() {
    newerStart("animation.replaced.shows_from_current", UIViewAnimationOptionBeginFromCurrentState);
}

} // namespace

std::span<const Motion> interruptionMotions() {
    static const Motion all[] = {{"animation.replaced.ending", byNewer},
                                 {"animation.removed_view.ending", byRemoval},
                                 {"animation.hidden_view.ending", byHiding},
                                 {"animation.set_meanwhile.ending", bySetting},
                                 {"animation.removed_animations.ending", byRemovingAnimations},
                                 {"animation.replaced.shows", newerFromModel},
                                 {"animation.replaced.shows_from_current", newerFromCurrent}};
    return all;
}

} // namespace probe
