#include "Thunks.hpp"

#include <cstring>
#include <stdexcept>

#include "Runtime/Objc/ArgumentRegisters.hpp"
#include "Runtime/Objc/ExecutableMemory.hpp"

using sim::Route;

extern "C" {

__attribute__((used, visibility("hidden"))) uint64_t simCheckResult(uint64_t word, const Route *route) {
    sim::checkWord(word, route->shape.result, route->how, route->name.c_str());
    return word;
}

__attribute__((used, visibility("hidden"))) void simCheckArguments(const Route *route,
                                                                   const uint64_t *registers) {
    for (auto [index, width] : route->shape.small)
        sim::checkWord(registers[index], width, route->how, route->name.c_str());
}

void simCheckedEntry();
extern const uint8_t simResultChecker[], simResultCheckerEnd[];

// Both arrive with the route in x17. The second is copied to where the thunks lie; its last word takes the
// address of simCheckResult.
__asm__(R"(
    .text
    .globl simCheckedEntry
    .hidden simCheckedEntry
    .type simCheckedEntry, %function
simCheckedEntry:
    .cfi_startproc
    KEEP_ARGUMENTS
    mov x0, x17
    add x1, sp, #16
    bl simCheckArguments
    TAKE_ARGUMENTS_BACK
    ldr x16, [x17]
    br x16
    .cfi_endproc

    .balign 8
    .globl simResultChecker, simResultCheckerEnd
    .hidden simResultChecker, simResultCheckerEnd
simResultChecker:
    stp x29, x30, [sp, #-32]!
    mov x29, sp
    str x17, [sp, #16]
    ldr x16, [x17]
    blr x16
    ldr x1, [sp, #16]
    ldr x16, 1f
    blr x16
    ldp x29, x30, [sp], #32
    ret
    .balign 8
1:  .quad 0
simResultCheckerEnd:
)");

} // extern "C"

namespace sim {

void *resultChecker() {
    static void *const copy = [] {
        auto size = static_cast<size_t>(simResultCheckerEnd - simResultChecker);
        uint8_t *at = executableMemory(size);
        memcpy(at, simResultChecker, size);
        auto *check = reinterpret_cast<const void *>(&simCheckResult);
        memcpy(at + size - sizeof check, &check, sizeof check);
        readyToRun(at, size);
        return at;
    }();
    return copy;
}

void *checkedResult(Route &route) {
    if (route.shape.usesStack)
        throw std::runtime_error(route.name +
                                 " takes arguments on the stack, so that its result cannot be checked");
    return makeThunk(&route, resultChecker());
}

void *checkedArguments(Route &route) {
    return makeThunk(&route, reinterpret_cast<const void *>(&simCheckedEntry));
}

} // namespace sim
