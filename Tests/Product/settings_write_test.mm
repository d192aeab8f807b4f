// What is stored survives whatever happens to a write: the process is killed, the disk is full, the file was
// broken before. A regression shows as settings that are all lost.
#include "Tweak/Core/Settings.h"

#include "Runtime/Files/Sandbox.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "SpringBoard/Sandbox.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr char kFile[] = "/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist";
constexpr int kApplications = 30;

class SettingsWrite : public testing::Test {
protected:
    SettingsWrite() { std::filesystem::create_directories(sandbox.path(kFile).parent_path()); }
    void put(const std::string &text) { std::ofstream(sandbox.path(kFile)) << text; }
    NSString *code() { return pendix::textSetting(@"password"); }

    harness::Sandbox sandbox;
};

// A file of some size, as after months of use.
void fill() {
    NSMutableDictionary *settings = [NSMutableDictionary dictionary];
    for (int i = 0; i < kApplications; ++i)
        [settings setObject:[NSDictionary dictionaryWithObject:@"x" forKey:@"hide_perapp"]
                     forKey:[NSString stringWithFormat:@"org.example.%d", i]];
    [settings setObject:@"1111" forKey:@"password"];
    pendix::writeSettings(settings);
}

// Runs `work` in a process of its own that stops before its first step. The test's process watches it.
pid_t start(const std::function<void()> &work) {
    pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return child;
}

// Kills the process at its `number`th step into or out of the kernel. false when it ended before that.
bool killAtCall(pid_t child, int number) {
    int status = 0;
    for (int i = 0; i < number; ++i) {
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        waitpid(child, &status, 0);
        if (WIFEXITED(status)) return false;
    }
    syscall(SYS_kill, child, SIGKILL); // the device's own kill() reaches no process of this machine
    waitpid(child, &status, 0);
    return true;
}

// The process lives on for a while after a write. The allocator and the locks make a call more or less from
// one run to the next, so that the last calls of a run are not the same ones of another.
void liveOn() {
    for (int i = 0; i < 10; ++i) syscall(SYS_getppid);
}

TEST_F(SettingsWrite, OfAKilledProcessLeavesTheOldFileOrTheNewOne) {
    int olds = 0, news = 0;
    for (int call = 1;; ++call) {
        fill();
        pid_t child = start([] {
            @autoreleasepool {
                pendix::writeSetting(@"password", @"2222");
            }
            liveOn();
        });
        bool killed = killAtCall(child, call);
        NSDictionary *settings = pendix::readSettings();
        ASSERT_EQ([settings count], kApplications + 1u) << "killed at call " << call;
        ++([code() isEqual:@"2222"] ? news : olds);
        if (!killed) break;
        ASSERT_LT(call, 10'000) << "the write never ends";
    }
    RecordProperty("old", olds);
    RecordProperty("new", news);
    EXPECT_GT(olds, 5) << "it was never killed before the end of the write";
    EXPECT_GE(news, 2) << "it was never killed after it";
}

// The kernel ends the process in the middle of the new file, at every few bytes.
TEST_F(SettingsWrite, OfAProcessThatDiesWithinTheFileLeavesTheOldOne) {
    fill();
    const rlim_t length = std::filesystem::file_size(sandbox.path(kFile));
    ASSERT_GT(length, 1000u);
    for (rlim_t bytes = 0; bytes < length; bytes += 97) {
        pid_t child = fork();
        if (child == 0) {
            rlimit limit{bytes, bytes}, none{0, 0};
            setrlimit(RLIMIT_CORE, &none);
            setrlimit(RLIMIT_FSIZE, &limit);
            signal(SIGXFSZ, SIG_DFL);
            @autoreleasepool {
                pendix::writeSetting(@"password", @"2222");
            }
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status)) << "it was not stopped at byte " << bytes;
        ASSERT_EQ([pendix::readSettings() count], kApplications + 1u) << bytes;
        EXPECT_TRUE([code() isEqual:@"1111"]) << bytes;
    }
}

TEST_F(SettingsWrite, WithoutSpaceLeavesTheOldFile) {
    fill();
    sim::failWrites("/var/mobile", ENOSPC);
    pendix::writeSetting(@"password", @"2222");
    EXPECT_TRUE([code() isEqual:@"1111"]);
    sim::failWrites("", 0);
    pendix::writeSetting(@"password", @"2222");
    EXPECT_TRUE([code() isEqual:@"2222"]);
    EXPECT_EQ([pendix::readSettings() count], kApplications + 1u);
}

TEST_F(SettingsWrite, StartsAnewFromAFileThatCannotBeRead) {
    for (const char *broken : {"", "{ enable = YES; ", "( enable )", "bplist00", "\xff\xfe\xff"}) {
        put(broken);
        pendix::writeSetting(@"light", [NSNumber numberWithBool:YES]);
        EXPECT_EQ([pendix::readSettings() count], 1u) << broken;
        EXPECT_TRUE(pendix::isOn(@"light")) << broken;
    }
}

TEST_F(SettingsWrite, ChangesNothingElse) {
    put("{ enable = YES; password = \"0042\"; \"org.example.1\" = { hide_perapp = YES; }; odd = ( 1, { a = "
        "b; } ); }");
    pendix::writeSetting(@"enable", [NSNumber numberWithBool:NO]);
    pendix::writeSetting(@"password", nil);
    NSDictionary *settings = pendix::readSettings();
    EXPECT_EQ([settings count], 4u);
    EXPECT_FALSE(pendix::isOn(@"enable"));
    EXPECT_TRUE([code() isEqual:@"0042"]);
    EXPECT_TRUE(pendix::hide_per(@"org.example.1"));
    EXPECT_TRUE([[[settings objectForKey:@"odd"] lastObject] isKindOfClass:[NSDictionary class]]);
}

TEST_F(SettingsWrite, NumbersAreNoCode) {
    put("{ password = 1234; }");
    EXPECT_TRUE([code() isEqual:@"1234"]) << "in this form of the file everything is text";
    pendix::writeSetting(@"password", [NSNumber numberWithInt:1234]);
    EXPECT_EQ(code(), nil);
}

} // namespace
