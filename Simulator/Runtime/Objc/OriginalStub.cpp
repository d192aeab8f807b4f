#include "OriginalStub.hpp"

#include "ArgumentRegisters.hpp"
#include "ExecutableMemory.hpp"

#include <map>
#include <memory>

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
    KEEP_ARGUMENTS
    mov x0, x17
    bl simNoteOriginal
    TAKE_ARGUMENTS_BACK
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

std::map<void *, std::unique_ptr<Stub>> &stubsByThunk() {
    static auto &stubs = *new std::map<void *, std::unique_ptr<Stub>>;
    return stubs;
}

} // namespace

void *behindStubs(void *implementation) {
    auto stub = stubsByThunk().find(implementation);
    return stub == stubsByThunk().end() ? implementation : behindStubs(stub->second->target);
}

void *makeStub(void *target, std::function<void()> note) {
    auto stub = std::make_unique<Stub>(Stub{target, std::move(note)});
    void *thunk = makeThunk(stub.get(), reinterpret_cast<const void *>(&simOriginalEntry));
    stubsByThunk()[thunk] = std::move(stub);
    return thunk;
}

} // namespace sim
