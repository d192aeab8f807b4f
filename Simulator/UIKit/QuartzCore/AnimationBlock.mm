#include "AnimationBlock.h"

#include <objc/blocks_runtime.h>

namespace sim {

namespace {
std::vector<std::shared_ptr<AnimationGroup>> &openGroups() {
    static std::vector<std::shared_ptr<AnimationGroup>> groups;
    return groups;
}
} // namespace

AnimationGroup::AnimationGroup(Timing timing, bool touches, Completion completion)
    : timing_(timing), touches_(touches), completion_(Block_copy(completion)) {}

AnimationGroup::~AnimationGroup() {
    if (completion_) Block_release(completion_);
}

void AnimationGroup::remove(bool finished) {
    --running_;
    finished_ = finished_ && finished;
    if (closed_ && running_ == 0) complete();
}

void AnimationGroup::close() {
    closed_ = true;
    if (running_ == 0) complete();
}

void AnimationGroup::complete() {
    if (!completion_) return;
    Completion completion = completion_;
    completion_ = nullptr;
    Clock &clock = Clock::shared();
    clock.schedule(clock.now(), Clock::Phase::animation, [completion, finished = finished_] {
        completion(finished);
        Block_release(completion);
    });
}

std::shared_ptr<AnimationGroup> openAnimationGroup() {
    return openGroups().empty() ? nullptr : openGroups().back();
}

Timing timingWithinOpenBlock(Timing own) {
    if (openGroups().empty()) return own;
    auto outer = openGroups().back();
    if (!outer) {
        own.duration = 0;
    } else if (outer->timing().duration > 0) {
        own.duration = outer->timing().duration;
        own.curve = outer->timing().curve;
    }
    return own;
}

void runAnimations(std::shared_ptr<AnimationGroup> group, void (^animations)(void)) {
    openGroups().push_back(group);
    if (animations) animations();
    openGroups().pop_back();
    if (group) group->close();
}

} // namespace sim
