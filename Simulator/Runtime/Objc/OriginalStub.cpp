#include "OriginalStub.hpp"

#include <cstdint>
#include <cstring>
#include <map>
#include <stdexcept>
#include <sys/mman.h>

namespace {

// The assembly below reads `target` at offset 0.
struct Stub {
    void *target;
    std::function<void()> note;
};

} // namespace

extern "C" {

__attribute__((used, visibility("hidden"))) void simNoteOriginal(void *stub) {
    static_cast<Stub *>(stub)->note();
}
void simOriginalEntry();

#ifdef __aarch64__
// Arrives with the stub in x17.
__asm__(R"(
    .text
    .globl simOriginalEntry
    .hidden simOriginalEntry
    .type simOriginalEntry, %function
simOriginalEntry:
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
    bl simNoteOriginal
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
)");
#else
// Arrives with the stub in r11 and the caller's stack: seven pushes and the stub's own make it aligned again.
__asm__(R"(
    .text
    .globl simOriginalEntry
    .hidden simOriginalEntry
simOriginalEntry:
    push %rax
    push %rdi
    push %rsi
    push %rdx
    push %rcx
    push %r8
    push %r9
    sub $144, %rsp
    movups %xmm0, (%rsp)
    movups %xmm1, 16(%rsp)
    movups %xmm2, 32(%rsp)
    movups %xmm3, 48(%rsp)
    movups %xmm4, 64(%rsp)
    movups %xmm5, 80(%rsp)
    movups %xmm6, 96(%rsp)
    movups %xmm7, 112(%rsp)
    mov %r11, 128(%rsp)
    mov %r11, %rdi
    call simNoteOriginal
    mov 128(%rsp), %r11
    movups (%rsp), %xmm0
    movups 16(%rsp), %xmm1
    movups 32(%rsp), %xmm2
    movups 48(%rsp), %xmm3
    movups 64(%rsp), %xmm4
    movups 80(%rsp), %xmm5
    movups 96(%rsp), %xmm6
    movups 112(%rsp), %xmm7
    add $144, %rsp
    pop %r9
    pop %r8
    pop %rcx
    pop %rdx
    pop %rsi
    pop %rdi
    pop %rax
    jmp *(%r11)
)");
#endif

} // extern "C"

namespace sim {

namespace {

constexpr size_t kThunkSize = 32;
constexpr size_t kPageSize = 4096;

uint8_t *nextThunk() {
    static uint8_t *page = nullptr;
    static size_t used = kPageSize;
    if (used + kThunkSize > kPageSize) {
        void *memory =
            mmap(nullptr, kPageSize, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) throw std::runtime_error("no executable memory for a stub");
        page = static_cast<uint8_t *>(memory);
        used = 0;
    }
    uint8_t *thunk = page + used;
    used += kThunkSize;
    return thunk;
}

uint8_t *put(uint8_t *at, std::initializer_list<uint8_t> bytes, const void *address) {
    for (uint8_t byte : bytes) *at++ = byte;
    memcpy(at, &address, sizeof address);
    return at + sizeof address;
}

void writeThunk(uint8_t *thunk, const Stub *stub) {
    const auto *entry = reinterpret_cast<const void *>(&simOriginalEntry);
#ifdef __aarch64__
    // ldr x17, stub; ldr x16, entry; br x16; nop
    const uint32_t code[] = {0x58000091, 0x580000b0, 0xd61f0200, 0xd503201f};
    memcpy(thunk, code, sizeof code);
    put(put(thunk + sizeof code, {}, stub), {}, entry);
#else
    // mov r11, stub; mov r10, entry; jmp r10
    uint8_t *at = put(put(thunk, {0x49, 0xbb}, stub), {0x49, 0xba}, entry);
    const uint8_t jump[] = {0x41, 0xff, 0xe2};
    memcpy(at, jump, sizeof jump);
#endif
}

std::map<void *, Stub> &stubsByThunk() {
    static auto &stubs = *new std::map<void *, Stub>; // the thunks hold their addresses
    return stubs;
}

} // namespace

void *behindStubs(void *implementation) {
    auto stub = stubsByThunk().find(implementation);
    return stub == stubsByThunk().end() ? implementation : behindStubs(stub->second.target);
}

void *makeStub(void *target, std::function<void()> note) {
    uint8_t *thunk = nextThunk();
    Stub &stub = stubsByThunk()[thunk] = Stub{target, std::move(note)};
    writeThunk(thunk, &stub);
    __builtin___clear_cache(reinterpret_cast<char *>(thunk), reinterpret_cast<char *>(thunk + kThunkSize));
    return thunk;
}

} // namespace sim
