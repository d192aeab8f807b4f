#pragma once

#include <cstddef>
#include <cstdint>

namespace sim {

/// Memory for `size` bytes of code (64 KiB at most), aligned to 16 and never given back. Throws
/// std::runtime_error when the system has none.
uint8_t *executableMemory(size_t size);

/// To be called when the code there is written and before it runs.
void readyToRun(uint8_t *code, size_t size);

/// Code that goes to `entry` with every argument as it came and `what` in x17 (aarch64) or r11 (x86-64).
void *makeThunk(const void *what, const void *entry);

} // namespace sim
