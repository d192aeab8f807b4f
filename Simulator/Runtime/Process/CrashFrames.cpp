#include "CrashFrames.hpp"

#include <climits>
#include <cstring>
#include <execinfo.h>
#include <link.h>
#include <unistd.h>
#include <utility>

namespace sim {

namespace {

constexpr int kMostFrames = 100;

char programPath[PATH_MAX];

struct OtherCode {
    uintptr_t begin, size;
    char path[PATH_MAX];
};
constexpr size_t kMostOthers = 8;
OtherCode others[kMostOthers];
size_t otherCount = 0;

struct Module {
    uintptr_t address; // to be found
    uintptr_t base = 0;
    const char *path = nullptr;
};

// The list's lock is the loader's own and can be taken again by the thread that holds it.
Module findModule(uintptr_t address) {
    Module module{address};
    for (size_t i = 0; i < otherCount; ++i)
        if (address - others[i].begin < others[i].size) return {address, others[i].begin, others[i].path};
    dl_iterate_phdr(
        [](dl_phdr_info *info, size_t, void *argument) {
            auto &wanted = *static_cast<Module *>(argument);
            for (int i = 0; i < info->dlpi_phnum; ++i) {
                const auto &part = info->dlpi_phdr[i];
                uintptr_t begin = info->dlpi_addr + part.p_vaddr;
                if (part.p_type != PT_LOAD || wanted.address - begin >= part.p_memsz) continue;
                wanted.base = info->dlpi_addr;
                wanted.path = info->dlpi_name[0] ? info->dlpi_name : programPath;
                return 1;
            }
            return 0;
        },
        &module);
    return module;
}

void writeFrame(CrashWriter &out, uintptr_t address) {
    Module module = findModule(address);
    out.put("frame ")
        .put(module.path ? module.path : "?")
        .put("+0x")
        .putHexadecimal(address - module.base)
        .put("\n");
}

// After a call to nowhere the unwinder finds no frame to begin with: makes the context that of the call's
// return.
uintptr_t returnFromNowhere(ucontext_t &context) {
#ifdef __aarch64__
    return context.uc_mcontext.pc = context.uc_mcontext.regs[30];
#else
    auto &registers = context.uc_mcontext.gregs;
    auto caller = *reinterpret_cast<greg_t *>(registers[REG_RSP]);
    registers[REG_RIP] = caller;
    registers[REG_RSP] += sizeof caller;
    return static_cast<uintptr_t>(caller);
#endif
}

uintptr_t placeOf(const ucontext_t &context) {
#ifdef __aarch64__
    return context.uc_mcontext.pc;
#else
    return static_cast<uintptr_t>(context.uc_mcontext.gregs[REG_RIP]);
#endif
}

#ifdef __aarch64__
// A device's code has no tables for the unwinder, but every function of it keeps the chain of frames, and so
// does the code here. The caller of a function that calls none, and so has no frame, is left out.
void writeCallers(CrashWriter &out, const ucontext_t &context) {
    constexpr uintptr_t kLargestFrame = 1 << 20;
    uintptr_t frame = context.uc_mcontext.regs[29], below = context.uc_mcontext.sp;
    for (int i = 0; i < kMostFrames && frame >= below && frame - below < kLargestFrame && frame % 8 == 0;
         ++i) {
        auto [next, caller] = *reinterpret_cast<const std::pair<uintptr_t, uintptr_t> *>(frame);
        if (!caller) break;
        writeFrame(out, caller - 1);
        below = frame + 1;
        frame = next;
    }
}
#endif

} // namespace

CrashWriter &CrashWriter::put(const char *text) {
    size_t length = strlen(text);
    while (length) {
        ssize_t count = write(descriptor_, text, length);
        if (count <= 0) break;
        text += count;
        length -= static_cast<size_t>(count);
    }
    return *this;
}

CrashWriter &CrashWriter::putHexadecimal(uintptr_t number) {
    char digits[2 * sizeof number + 1];
    char *first = digits + sizeof digits - 1;
    *first = '\0';
    do *--first = "0123456789abcdef"[number % 16];
    while (number /= 16);
    return put(first);
}

void addCodeForCrashes(const std::string &path, const void *begin, size_t size) {
    if (otherCount == kMostOthers || path.size() >= sizeof OtherCode::path) return;
    OtherCode &other = others[otherCount];
    other.begin = reinterpret_cast<uintptr_t>(begin);
    other.size = size;
    memcpy(other.path, path.c_str(), path.size() + 1);
    ++otherCount;
}

void prepareFrames() {
    ssize_t length = readlink("/proc/self/exe", programPath, sizeof programPath - 1);
    programPath[length > 0 ? length : 0] = '\0';
    void *frame;
    backtrace(&frame, 1); // loads the unwinder
}

void writeFrames(CrashWriter &out, ucontext_t &context) {
    uintptr_t here = placeOf(context);
    writeFrame(out, here);
    if (!findModule(here).path) {
        here = returnFromNowhere(context);
        writeFrame(out, here - 1);
    }
#ifdef __aarch64__
    writeCallers(out, context);
#else
    void *frames[kMostFrames];
    int count = backtrace(frames, kMostFrames), at = 0;
    // The handler's own frames come first.
    while (at < count && reinterpret_cast<uintptr_t>(frames[at]) != here) ++at;
    for (++at; at < count; ++at) writeFrame(out, reinterpret_cast<uintptr_t>(frames[at]) - 1);
#endif
}

} // namespace sim
