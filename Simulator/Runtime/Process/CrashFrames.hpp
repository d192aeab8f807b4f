// The stack at the moment of a crash. All of it may be called in a signal handler.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/ucontext.h>

namespace sim {

// Puts text into a descriptor, byte by byte buffered by the kernel alone.
class CrashWriter {
public:
    explicit CrashWriter(int descriptor) : descriptor_(descriptor) {}
    CrashWriter &put(const char *text);
    CrashWriter &putHexadecimal(uintptr_t number);

private:
    int descriptor_;
};

// Does beforehand what must not be done in a handler.
void prepareFrames();

// Code that no loader of this machine's knows: its frames are told by that path and offsets from `begin`.
void addCodeForCrashes(const std::string &path, const void *begin, size_t size);

// A line a frame of the code that was interrupted, "frame PATH+0xOFFSET", innermost first. The context is no
// longer one to go on from.
void writeFrames(CrashWriter &out, ucontext_t &context);

} // namespace sim
