// Stands in front of every source of a build that holds planted faults: which fault is on, and which were
// passed.
//
// A process asks for both once, in its environment or, where that has been cleared, in that of the process
// that started it: MUTANT is the number of the fault that is on, MUTANTS_PASSED a file with a byte for each,
// which becomes 1 when its place is passed. It reads by system calls, for the calls of the C library may be
// those of a simulated device, and includes nothing that declares names of its own.
#pragma once

// The switches make values of what were constants, and a fault may be what a compiler warns of.
#pragma clang diagnostic ignored "-Weverything"
#pragma clang diagnostic ignored "-Wc++11-narrowing"
#pragma clang diagnostic ignored "-Winvalid-constexpr"

#include <sys/syscall.h>

extern "C" long syscall(long number, ...) noexcept;

namespace mutation {

struct Switch {
    int on = -1;
    long count = 0;
    unsigned char *passed = nullptr;

    Switch() {
        static char text[1 << 16];
        if (!read("/proc/self/environ", text)) return;
        const char *number = value(text, "MUTANT=");
        const char *file = value(text, "MUTANTS_PASSED=");
        if (!number && !file) {
            char parent[32] = "/proc/";
            append(parent, syscall(SYS_getppid));
            if (!read(parent, text)) return;
            number = value(text, "MUTANT=");
            file = value(text, "MUTANTS_PASSED=");
        }
        if (number) on = toNumber(number);
        if (!file) return;
        long descriptor = syscall(SYS_openat, kNoFolder, file, kReadWrite, 0);
        if (descriptor < 0) return;
        count = syscall(SYS_lseek, descriptor, 0L, kEnd);
        long place = syscall(SYS_mmap, 0L, count, kReadAndWrite, kShared, descriptor, 0L);
        if (place > 0) passed = reinterpret_cast<unsigned char *>(place);
        syscall(SYS_close, descriptor);
    }

private:
    // Of openat, lseek and mmap. Paths are whole.
    static constexpr long kNoFolder = -100, kReadWrite = 2, kEnd = 2, kReadAndWrite = 1 | 2, kShared = 1;

    template <unsigned long size>
    static bool read(const char *path, char (&text)[size]) {
        long descriptor = syscall(SYS_openat, kNoFolder, path, 0L, 0L);
        if (descriptor < 0) return false;
        unsigned long length = 0;
        while (length + 2 < size) {
            long got = syscall(SYS_read, descriptor, text + length, size - 2 - length);
            if (got <= 0) break;
            length += static_cast<unsigned long>(got);
        }
        syscall(SYS_close, descriptor);
        text[length] = text[length + 1] = 0;
        return true;
    }

    // Each entry ends with a zero, the last one with two.
    static const char *value(const char *text, const char *name) {
        while (*text) {
            const char *at = text, *wanted = name;
            while (*wanted && *at == *wanted) ++at, ++wanted;
            if (!*wanted) return at;
            while (*text++) {}
        }
        return nullptr;
    }

    static int toNumber(const char *digits) {
        int result = 0;
        while (*digits >= '0' && *digits <= '9') result = result * 10 + (*digits++ - '0');
        return result;
    }

    static void append(char *path, long number) {
        char digits[20];
        int count = 0;
        do digits[count++] = static_cast<char>('0' + number % 10);
        while (number /= 10);
        while (*path) ++path;
        while (count) *path++ = digits[--count];
        for (const char *rest = "/environ"; (*path++ = *rest++);) {}
    }
};

inline Switch &state() {
    static Switch state;
    return state;
}

inline void pass(long number) {
    Switch &here = state();
    if (__builtin_expect(here.passed != nullptr, 0) && number < here.count) here.passed[number] = 1;
}

// Whether that fault is on.
inline bool on(int number) {
    pass(number);
    return state().on == number;
}

// The same in the definition of a constant, which every process comes to: its place is passed where it is
// used.
inline bool defined(int number) { return state().on == number; }

// Such a use.
template <typename... Numbers>
void pass(long first, Numbers... others) {
    pass(first);
    (pass(others), ...);
}

} // namespace mutation
