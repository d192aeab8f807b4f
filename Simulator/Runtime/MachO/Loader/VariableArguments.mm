#import <Foundation/Foundation.h>

#include "VariableArguments.hpp"

#include "Checks.hpp"

#include <DeclaredNames.hpp> // made from the headers, see CMakeLists.txt
#include <objc/message.h>

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <vector>

extern "C" {

void simFormatEntry();
void simArrayEntry();
void simAlertEntry();

// Each hands over where the caller's stack begins, in the next register that is free.
__asm__(R"(
    .text
    .macro WITH_STACK name, register, function
    .globl \name
    .hidden \name
    .type \name, %function
\name:
    .cfi_startproc
    mov \register, sp
    b \function
    .cfi_endproc
    .endm

    WITH_STACK simLogEntry, x1, simLog
    WITH_STACK simFormatEntry, x3, simFormat
    WITH_STACK simArrayEntry, x3, simArray
    WITH_STACK simAlertEntry, x7, simAlert
)");

} // extern "C"

namespace {

// A list whose registers are used up: the rest lies on the stack.
struct StackList {
    explicit StackList(void *stack) {
        struct {
            void *stack, *integersEnd, *floatsEnd;
            int integers, floats;
        } words = {stack, nullptr, nullptr, 0, 0};
        static_assert(sizeof words == sizeof list);
        memcpy(&list, &words, sizeof words);
    }
    va_list list;
};

} // namespace

extern "C" {

#define ENTERED __attribute__((used, visibility("hidden")))

ENTERED void simLog(NSString *format, void *stack) { NSLogv(format, StackList(stack).list); }

ENTERED id simFormat(id self, SEL, NSString *format, void *stack) {
    return [[[self alloc] initWithFormat:format arguments:StackList(stack).list] autorelease];
}

ENTERED id simArray(id self, SEL, id first, id *stack) {
    std::vector<id> all;
    if (first) all.push_back(first);
    for (; first && *stack; ++stack) all.push_back(*stack);
    return [self arrayWithObjects:all.data() count:all.size()];
}

ENTERED id simAlert(id self, SEL _cmd, id title, id message, id delegate, id cancel, id first, id *stack) {
    constexpr size_t kMost = 4;
    id more[kMost] = {};
    for (size_t i = 0; first && stack[i]; ++i) {
        if (i == kMost) sim::refuseCall("an alert with more buttons than are passed on");
        more[i] = stack[i];
    }
    using Call = id (*)(id, SEL, id, id, id, id, id, ...);
    auto call = reinterpret_cast<Call>(objc_msg_lookup(self, _cmd));
    return call(self, _cmd, title, message, delegate, cancel, first, more[0], more[1], more[2], more[3], nil);
}

} // extern "C"

namespace sim {

namespace {

template <size_t Size>
bool contains(const std::string_view (&sorted)[Size], std::string_view name) {
    return std::ranges::binary_search(sorted, name);
}

struct Translated {
    std::string_view selector;
    void (*entry)();
};

constexpr Translated kTranslated[] = {
    {"stringWithFormat:", simFormatEntry},
    {"arrayWithObjects:", simArrayEntry},
    {"initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:", simAlertEntry},
};

} // namespace

bool hasVariableArguments(std::string_view selector) { return contains(kVariadicSelectors, selector); }
bool isVariadicFunction(std::string_view name) { return contains(kVariadicFunctions, name); }
bool givesTruth(std::string_view function) { return contains(kTruthFunctions, function); }

void *variableArgumentsEntry(std::string_view selector) {
    for (const auto &[name, entry] : kTranslated)
        if (name == selector) return reinterpret_cast<void *>(entry);
    return nullptr;
}

} // namespace sim
