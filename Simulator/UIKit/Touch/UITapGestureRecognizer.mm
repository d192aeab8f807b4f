#include "GestureArbiter.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIGestureRecognizer+Further.h"
#include "UIGestureRecognizerSubclass+Further.h"
#include "UIKit/Views/UIResponder+Further.h"

#include <algorithm>

namespace {

// The system's own limits, as far as they are known: a finger that stays longer, wanders farther or comes
// back later is not tapping. Inferred.
constexpr double kLongestPress = 0.75;
constexpr double kLongestPause = 0.35;
constexpr CGFloat kFarthest = 45;

struct TapState {
    NSUInteger tapsRequired = 1, touchesRequired = 1;
    NSUInteger taps = 0;    // made so far
    size_t mostDown = 0;    // fingers at once in the tap under way
    CGPoint place = {0, 0}; // where the fingers of the tap under way came down
    CGPoint first = {0, 0}; // and those of the first tap
};

TapState &tapState(UITapGestureRecognizer *recognizer) {
    return sim::lazyState<TapState>(recognizer->_tapState);
}

} // namespace

@implementation UITapGestureRecognizer

- (void)dealloc {
    delete &tapState(self);
    [super dealloc];
}

- (NSUInteger)numberOfTapsRequired {
    return tapState(self).tapsRequired;
}
- (void)setNumberOfTapsRequired:(NSUInteger)taps {
    tapState(self).tapsRequired = std::max<NSUInteger>(taps, 1);
}

- (NSUInteger)numberOfTouchesRequired {
    return tapState(self).touchesRequired;
}
- (void)setNumberOfTouchesRequired:(NSUInteger)touches {
    tapState(self).touchesRequired = std::max<NSUInteger>(touches, 1);
}

- (NSUInteger)numberOfTouches {
    bool done = [self state] == UIGestureRecognizerStateRecognized;
    return done ? tapState(self).touchesRequired : [super numberOfTouches];
}

- (void)failAfter:(double)seconds {
    UITapGestureRecognizer *me = self;
    sim::setTimer(self, seconds, [me] { [me setState:UIGestureRecognizerStateFailed]; });
}

- (void)reset {
    auto &mine = tapState(self);
    mine.taps = mine.mostDown = 0;
    [super reset];
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    auto &mine = tapState(self);
    size_t down = sim::touchesDown(self);
    CGPoint place = sim::state(self).location;
    if (down == 1) [self failAfter:kLongestPress];
    if (down == 1 && mine.taps == 0) mine.first = place;
    mine.place = place;
    mine.mostDown = std::max(mine.mostDown, down);
    bool elsewhere = mine.taps > 0 && down == 1 && sim::distance(place, mine.first) > kFarthest;
    if (down > mine.touchesRequired || elsewhere) [self setState:UIGestureRecognizerStateFailed];
}

- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    auto &mine = tapState(self);
    // While fingers come and go their middle jumps.
    if (sim::touchesDown(self) != mine.mostDown) return;
    if (sim::distance(sim::state(self).location, mine.place) > kFarthest)
        [self setState:UIGestureRecognizerStateFailed];
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    auto &mine = tapState(self);
    if (sim::touchesDown(self) > 0) return;
    if (mine.mostDown < mine.touchesRequired) return [self setState:UIGestureRecognizerStateFailed];
    mine.mostDown = 0;
    if (++mine.taps == mine.tapsRequired) return [self setState:UIGestureRecognizerStateRecognized];
    [self failAfter:kLongestPause];
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:UIGestureRecognizerStateFailed];
}

// One tap leaves it open whether a second follows.
- (BOOL)canPreventGestureRecognizer:(UIGestureRecognizer *)other {
    if (![other isKindOfClass:[UITapGestureRecognizer class]])
        return [super canPreventGestureRecognizer:other];
    return [self numberOfTapsRequired] >= [static_cast<UITapGestureRecognizer *>(other) numberOfTapsRequired];
}

@end
