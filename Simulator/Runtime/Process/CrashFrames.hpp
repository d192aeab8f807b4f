// The stack trace of a crash. All but prepareFrames() is async-signal-safe.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/ucontext.h>

namespace sim {

// Writes text to a descriptor, unbuffered.
class CrashWriter {
public:
    explicit CrashWriter(int descriptor) : descriptor_(descriptor) {}
    CrashWriter &put(const char *text);
    CrashWriter &putHexadecimal(uintptr_t number);

private:
    int descriptor_;
};

// Does in advance what is not async-signal-safe.
void prepareFrames();

// Code that no loader of this machine's knows: its frames are told by that path and offsets from `begin`.
void addCodeForCrashes(const std::string &path, const void *begin, size_t size);

// A line a frame of the code that was interrupted, "frame PATH+0xOFFSET", innermost first. Unwinding consumes
// the context: it cannot be resumed.
void writeFrames(CrashWriter &out, ucontext_t &context);

} // namespace sim
