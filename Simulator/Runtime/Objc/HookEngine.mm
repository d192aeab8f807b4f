// The method-replacement engine of the simulated device, behind the name by which extensions call it.
#import <Foundation/Foundation.h>

#include "HookCounts.hpp"
#include "MethodFaults.hpp"
#include "Methods.hpp"
#include "OriginalStub.hpp"
#include "Runtime/Process/Events.hpp"

#include <Substrate/CydiaSubstrate.h>
#include <objc/runtime.h>

#include <algorithm>
#include <array>
#include <deque>
#include <utility>

namespace {

constexpr size_t kMostWatched = 3;

struct Hook {
    const char *className, *selector;
    sim::Object event;
    unsigned state = 0; // when the replacement was entered last
    std::array<uint64_t, 1 << kMostWatched> entered{}, previous{};
};

// The stubs keep references to them.
std::deque<Hook> &hooks() {
    static auto &list = *new std::deque<Hook>;
    return list;
}

std::vector<const signed char *> &watched() {
    static auto &variables = *new std::vector<const signed char *>;
    return variables;
}

unsigned stateNow() {
    unsigned state = 0;
    for (size_t i = 0; i < watched().size(); ++i)
        if (*watched()[i]) state |= 1U << i;
    return state;
}

IMP stub(IMP target, std::function<void()> note) {
    return reinterpret_cast<IMP>(sim::makeStub(reinterpret_cast<void *>(target), std::move(note)));
}

IMP countedReplacement(Hook &hook, IMP replacement) {
    return stub(replacement, [&hook] {
        hook.state = stateNow();
        ++hook.entered[hook.state];
    });
}

// The previous implementation as handed back: running it records an event.
IMP observedPrevious(Hook &hook, IMP previous) {
    return stub(previous, [&hook] {
        ++hook.previous[hook.state];
        sim::recordEvent("original", hook.event);
    });
}

} // namespace

namespace sim {

void watchAtHooks(std::vector<const signed char *> variables) {
    variables.resize(std::min(variables.size(), kMostWatched));
    watched() = std::move(variables);
}

std::vector<HookCount> takeHookCounts() {
    std::vector<HookCount> ran;
    for (Hook &hook : hooks())
        for (unsigned state = 0; state < hook.entered.size(); ++state) {
            uint64_t entered = std::exchange(hook.entered[state], 0);
            uint64_t previous = std::exchange(hook.previous[state], 0);
            if (entered || previous) ran.push_back({hook.className, hook.selector, state, entered, previous});
        }
    return ran;
}

} // namespace sim

__attribute__((visibility("default"))) void MSHookMessageEx(Class target, SEL selector, IMP replacement,
                                                            IMP *original) {
    if (original) *original = nullptr;
    if (!target || !selector) return;
    if (sim::isMethodHidden(target, selector) || !class_getInstanceMethod(target, selector)) {
        sim::recordWarning(std::string("hook on a method that does not exist: ") + class_getName(target) +
                           " " + sel_getName(selector));
        return;
    }
    const char *className = class_getName(target), *name = sel_getName(selector);
    Hook &hook =
        hooks().emplace_back(Hook{className, name, sim::Object{{"class", className}, {"selector", name}}});
    IMP previous = sim::replaceMethod(target, selector, countedReplacement(hook, replacement));
    if (original) *original = observedPrevious(hook, previous);
}
