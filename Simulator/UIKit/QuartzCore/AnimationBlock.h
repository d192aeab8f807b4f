// The animation blocks of UIView: what they collect while they are open, and when their completion runs.
#pragma once

#include "LayerState.h"

namespace sim {

// The animations that one block started. Its completion runs when the last of them is over, with NO when one
// was replaced, removed or lost its window before its time.
class AnimationGroup : public std::enable_shared_from_this<AnimationGroup> {
public:
    using Completion = void (^)(BOOL);

    // `touches`: whether the views that it moves go on taking them.
    AnimationGroup(Timing timing, bool touches, Completion completion);
    ~AnimationGroup();

    const Timing &timing() const { return timing_; }
    bool allowsTouches() const { return touches_; }
    void add() { ++running_; }
    void remove(bool finished);
    // The block has been run: without an animation the completion is due at once.
    void close();

private:
    void complete();

    Timing timing_;
    bool touches_;
    Completion completion_;
    size_t running_ = 0;
    bool finished_ = true;
    bool closed_ = false;
};

// The innermost open block; null when there is none or animations are switched off.
std::shared_ptr<AnimationGroup> openAnimationGroup();

// What a block that is started now goes by: within another it takes that one's duration and curve; while
// animations are switched off it takes no time.
Timing timingWithinOpenBlock(Timing own);

// Runs `animations` with a block open; a null group runs them without animation.
void runAnimations(std::shared_ptr<AnimationGroup> group, void (^animations)(void));

} // namespace sim
