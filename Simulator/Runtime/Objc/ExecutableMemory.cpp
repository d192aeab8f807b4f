#include "ExecutableMemory.hpp"

#include <cstring>
#include <stdexcept>
#include <sys/mman.h>
#include <utility>

namespace sim {

uint8_t *executableMemory(size_t size) {
    constexpr size_t kChunk = 1 << 16, kAlignment = 16;
    static uint8_t *chunk = nullptr;
    static size_t used = kChunk;
    size = (size + kAlignment - 1) / kAlignment * kAlignment;
    if (size > kChunk) throw std::runtime_error("too much code for one piece of executable memory");
    if (used + size > kChunk) {
        void *memory =
            mmap(nullptr, kChunk, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) throw std::runtime_error("no executable memory");
        chunk = static_cast<uint8_t *>(memory);
        used = 0;
    }
    return chunk + std::exchange(used, used + size);
}

void readyToRun(uint8_t *code, size_t size) {
    __builtin___clear_cache(reinterpret_cast<char *>(code), reinterpret_cast<char *>(code + size));
}

namespace {

#ifdef __aarch64__
struct Thunk {
    // ldr x17, what; ldr x16, entry; br x16; nop
    uint32_t code[4] = {0x58000091, 0x580000b0, 0xd61f0200, 0xd503201f};
    const void *what, *entry;
};
#else
struct [[gnu::packed]] Thunk {
    uint8_t loadWhat[2] = {0x49, 0xbb}; // mov r11, what
    const void *what;
    uint8_t loadEntry[2] = {0x49, 0xba}; // mov r10, entry
    const void *entry;
    uint8_t jump[3] = {0x41, 0xff, 0xe2}; // jmp r10
};
#endif

} // namespace

void *makeThunk(const void *what, const void *entry) {
    const Thunk thunk{.what = what, .entry = entry};
    uint8_t *at = executableMemory(sizeof thunk);
    memcpy(at, &thunk, sizeof thunk);
    readyToRun(at, sizeof thunk);
    return at;
}

} // namespace sim
