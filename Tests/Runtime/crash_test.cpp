// Crashes: the report names the signal and the functions that were under way, and the process dies of that
// signal.
#include "Runtime/Process/Crash.hpp"
#include "Runtime/Values/Symbolise.hpp"
#include "Support.hpp"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>

using support::deathBy;
using testing::ContainsRegex;
using testing::HasSubstr;

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define SANITIZED
#endif
#endif

// Each does something after its call, so that it has a frame.
extern "C" {
__attribute__((noinline)) int crashInnermost(void (*action)()) {
    action();
    return rand();
}
__attribute__((noinline)) int crashMiddle(void (*action)()) { return crashInnermost(action) + 1; }
__attribute__((noinline)) int crashOutermost(void (*action)()) { return crashMiddle(action) + 1; }
}

namespace {

constexpr char kTrace[] = "crashInnermost.*\n.*crashMiddle.*\n.*crashOutermost";

std::string namedTraceOf(void (*action)(), int signal) {
    auto death = deathBy([=] { crashOutermost(action); });
    EXPECT_EQ(death.signal, signal);
    return sim::symbolise(death.report);
}

} // namespace

TEST(Crashes, ByAbortLeaveReasonAndStack) {
    sim::noteCrashReason("first\nsecond " + std::string(2000, 'x'));
    std::string trace = namedTraceOf(abort, SIGABRT);
    EXPECT_THAT(trace, HasSubstr("signal SIGABRT\nreason first second xxx"));
    EXPECT_LT(trace.find_first_of('\n', trace.find("xxx")), 1200u);
    EXPECT_THAT(trace, ContainsRegex(kTrace));
    EXPECT_THAT(trace, HasSubstr("in runtime_tests"));
}

#ifndef SANITIZED
TEST(Crashes, ByAFaultLeaveTheStack) {
    struct {
        void (*action)();
        int signal;
        const char *name;
    } const cases[] = {
        {[] { *reinterpret_cast<volatile int *>(8) = 1; }, SIGSEGV, "signal SIGSEGV\n"},
        {[] { raise(SIGFPE); }, SIGFPE, "signal SIGFPE\n"},
        {[] { __builtin_trap(); }, SIGILL, "signal SIGILL\n"},
        {[] { raise(SIGBUS); }, SIGBUS, "signal SIGBUS\n"},
    };
    for (const auto &[action, signal, name] : cases) {
        std::string trace = namedTraceOf(action, signal);
        EXPECT_THAT(trace, testing::StartsWith(name));
        EXPECT_THAT(trace, ContainsRegex(kTrace));
    }
}

// What a missing previous implementation of a hook looks like.
TEST(Crashes, ByACallToNowhereLeaveTheCallers) {
    std::string trace = namedTraceOf(nullptr, SIGSEGV);
    EXPECT_THAT(trace, ContainsRegex(std::string("frame \\?\\+0x0\n") + kTrace));
}

namespace {
volatile int depth;
int endless(int number) {
    volatile char room[512] = {};
    depth = number;
    return number < 0 ? 0 : endless(depth + 1) + room[number % 512];
}
} // namespace

TEST(Crashes, ByAnEndlessRecursionAreReported) {
    auto death = deathBy([] { endless(0); });
    EXPECT_EQ(death.signal, SIGSEGV);
    EXPECT_THAT(sim::symbolise(death.report), ContainsRegex("endless.*\n.*endless"));
}
#endif

TEST(Symbolise, LeavesWhatItCannotName) {
    for (const char *report : {"", "signal SIGSEGV\n", "frame ?+0x0\n", "frame /no/such/library.so+0x10\n",
                               "reason frame of mind+0x1\n"})
        EXPECT_EQ(sim::symbolise(report), report);
}
