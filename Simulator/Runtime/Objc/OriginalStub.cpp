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

} // extern "C"

namespace sim {

namespace {

// mov r11, stub; mov r10, entry; jmp r10
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
    uint8_t *at = put(thunk, {0x49, 0xbb}, &stub);
    at = put(at, {0x49, 0xba}, reinterpret_cast<const void *>(&simOriginalEntry));
    const uint8_t jump[] = {0x41, 0xff, 0xe2};
    memcpy(at, jump, sizeof jump);
    return thunk;
}

} // namespace sim
