#include "Crash.hpp"

#include "CrashFrames.hpp"
#include "Runtime/Values/Sanitizer.hpp"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <sys/ucontext.h>

// Everything from reportCrash() on runs in a signal handler: no allocation, no stdio.

namespace sim {

namespace {

#ifdef WATCHED_BY_SANITIZER
constexpr int kSignals[] = {SIGABRT};
#else
constexpr int kSignals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
#endif

constexpr size_t kLongestReason = 1000;
constexpr size_t kStackSize = 256 << 10;
alignas(16) char alternateStack[kStackSize];

int reportDescriptor = -1;
char reason[kLongestReason + 1];

void reportCrash(int number, siginfo_t *, void *context) {
    CrashWriter out(reportDescriptor);
    const char *name = sigabbrev_np(number);
    out.put("signal SIG").put(name ? name : "?").put("\n");
    if (reason[0]) out.put("reason ").put(reason).put("\n");
    writeFrames(out, *static_cast<ucontext_t *>(context));
    signal(number, SIG_DFL);
    raise(number);
}

} // namespace

void installCrashHandler(int descriptor) {
    reportDescriptor = descriptor;
    prepareFrames();
    stack_t stack{.ss_sp = alternateStack, .ss_flags = 0, .ss_size = kStackSize};
    sigaltstack(&stack, nullptr);
    struct sigaction action {};
    action.sa_sigaction = reportCrash;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | static_cast<int>(SA_RESETHAND);
    for (int number : kSignals) sigaction(number, &action, nullptr);
}

void noteCrashReason(std::string_view text) {
    text = text.substr(0, kLongestReason);
    std::replace_copy(text.begin(), text.end(), reason, '\n', ' ');
    reason[text.size()] = '\0';
}

} // namespace sim
