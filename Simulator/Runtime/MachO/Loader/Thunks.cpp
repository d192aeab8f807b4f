#include "Thunks.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <sys/mman.h>
#include <utility>

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
    stp x29, x30, [sp, #-224]!
    .cfi_def_cfa_offset 224
    .cfi_offset x29, -224
    .cfi_offset x30, -216
    mov x29, sp
    stp x0, x1, [sp, #16]
    stp x2, x3, [sp, #32]
    stp x4, x5, [sp, #48]
    stp x6, x7, [sp, #64]
    stp x8, x17, [sp, #80]
    stp q0, q1, [sp, #96]
    stp q2, q3, [sp, #128]
    stp q4, q5, [sp, #160]
    stp q6, q7, [sp, #192]
    mov x0, x17
    add x1, sp, #16
    bl simCheckArguments
    ldp x0, x1, [sp, #16]
    ldp x2, x3, [sp, #32]
    ldp x4, x5, [sp, #48]
    ldp x6, x7, [sp, #64]
    ldp x8, x17, [sp, #80]
    ldp q0, q1, [sp, #96]
    ldp q2, q3, [sp, #128]
    ldp q4, q5, [sp, #160]
    ldp q6, q7, [sp, #192]
    ldp x29, x30, [sp], #224
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

namespace {

uint8_t *executable(size_t size) {
    constexpr size_t kChunk = 1 << 16, kAlignment = 16;
    static uint8_t *chunk = nullptr;
    static size_t used = kChunk;
    size = (size + kAlignment - 1) / kAlignment * kAlignment;
    if (used + size > kChunk) {
        void *memory =
            mmap(nullptr, kChunk, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) throw std::runtime_error("no executable memory");
        chunk = static_cast<uint8_t *>(memory);
        used = 0;
    }
    return chunk + std::exchange(used, used + size);
}

void ready(uint8_t *code, size_t size) {
    __builtin___clear_cache(reinterpret_cast<char *>(code), reinterpret_cast<char *>(code + size));
}

void *thunk(Route &route, const void *entry) {
    struct {
        // ldr x17, route; ldr x16, entry; br x16; nop
        uint32_t code[4] = {0x58000091, 0x580000b0, 0xd61f0200, 0xd503201f};
        const void *route, *entry;
    } made{.route = &route, .entry = entry};
    uint8_t *at = executable(sizeof made);
    memcpy(at, &made, sizeof made);
    ready(at, sizeof made);
    return at;
}

} // namespace

void *resultChecker() {
    static void *const copy = [] {
        auto size = static_cast<size_t>(simResultCheckerEnd - simResultChecker);
        uint8_t *at = executable(size);
        memcpy(at, simResultChecker, size);
        auto *check = reinterpret_cast<const void *>(&simCheckResult);
        memcpy(at + size - sizeof check, &check, sizeof check);
        ready(at, size);
        return at;
    }();
    return copy;
}

void *checkedResult(Route &route) {
    if (route.shape.usesStack)
        throw std::runtime_error(route.name +
                                 " takes arguments on the stack, so that its result cannot be checked");
    return thunk(route, resultChecker());
}

void *checkedArguments(Route &route) {
    return thunk(route, reinterpret_cast<const void *>(&simCheckedEntry));
}

} // namespace sim
