#include "Tweak/Core/Accessibility/Motion.h"

#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Support/UIView+Touchable.h"

#include <vector>

namespace pendix {

void change(NSTimeInterval duration, NSArray *appearing, void (^changes)(void), void (^completion)(BOOL)) {
    if (!reducesMotion()) {
        [UIView animateTouchablyFor:duration animations:changes completion:completion];
        return;
    }
    changes();
    std::vector<CGFloat> alphas;
    for (UIView *view in appearing) {
        alphas.push_back(view.alpha);
        view.alpha = 0;
    }
    [UIView animateTouchablyFor:duration
                     animations:^{
                         for (NSUInteger i = 0; i < [appearing count]; ++i)
                             [(UIView *)[appearing objectAtIndex:i] setAlpha:alphas[i]];
                     }
                     completion:completion];
}

} // namespace pendix
