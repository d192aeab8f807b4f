// The method-replacement engine of the simulated device, behind the name by which extensions call it.
#import <Foundation/Foundation.h>

#include "Methods.hpp"
#include "OriginalStub.hpp"
#include "Runtime/Process/Events.hpp"

#include <Substrate/CydiaSubstrate.h>
#include <objc/runtime.h>

namespace {

// The previous implementation as handed back: running it records an event.
IMP observed(Class target, SEL selector, IMP previous) {
    sim::Object fields{{"class", class_getName(target)}, {"selector", sel_getName(selector)}};
    return reinterpret_cast<IMP>(sim::makeOriginalStub(reinterpret_cast<void *>(previous),
                                                       [fields] { sim::recordEvent("original", fields); }));
}

} // namespace

__attribute__((visibility("default"))) void MSHookMessageEx(Class target, SEL selector, IMP replacement,
                                                            IMP *original) {
    if (original) *original = nullptr;
    if (!target || !selector) return;
    if (!class_getInstanceMethod(target, selector)) {
        sim::recordWarning(std::string("hook on a method that does not exist: ") + class_getName(target) +
                           " " + sel_getName(selector));
        return;
    }
    IMP previous = sim::replaceMethod(target, selector, replacement);
    if (original) *original = observed(target, selector, previous);
}
