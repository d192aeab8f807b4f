// Calls that must not leave the simulated device: each has the result that it has there, and becomes an
// event.
#import <Foundation/Foundation.h>

#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Process/Interposed.hpp"
#include "Runtime/Time/Clock.hpp"
#include "Support.hpp"

#include <AudioToolbox/AudioServices.h>
#include <Darwin/sysctl.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <unistd.h>

using support::events;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ShellCommands, OnlyRestartTheHomeScreen) {
    int requests = 0;
    sim::onRespringRequest([&] { ++requests; });
    for (const char *command :
         {"killall SpringBoard", " killall -9  SpringBoard ", "/usr/bin/killall -HUP SpringBoard"}) {
        EXPECT_EQ(system(command), 0) << command;
        EXPECT_THAT(events(), ElementsAre("respring")) << command;
    }
    EXPECT_EQ(requests, 3);
    for (const char *command : {"killall Preferences", "SpringBoard", "true", "", "killall SpringBoard; true",
                                "killall Preferences SpringBoard"}) {
        EXPECT_EQ(system(command), 127 << 8) << command;
        EXPECT_THAT(events(), ElementsAre(testing::StartsWith("warning"))) << command;
    }
    EXPECT_NE(system(nullptr), 0);
    EXPECT_EQ(requests, 3);
}

TEST(Signals, ToOtherProcessesStayInTheSimulation) {
    pid_t parent = getppid();
    EXPECT_EQ(kill(parent, SIGKILL), -1);
    EXPECT_EQ(errno, ESRCH);
    EXPECT_THAT(events(), ElementsAre("signal number=9 pid=" + std::to_string(parent)));
    sim::onSignal([](int process, int) { return process == 123; });
    EXPECT_EQ(kill(123, SIGTERM), 0);
    EXPECT_EQ(kill(124, SIGTERM), -1);
    events();
    EXPECT_EQ(kill(123, 0), 0);
    EXPECT_EQ(kill(124, 0), -1);
    EXPECT_THAT(events(), IsEmpty());
}

TEST(Signals, ToTheProcessItselfAreReal) {
    EXPECT_EQ(kill(getpid(), 0), 0);
    EXPECT_EXIT(kill(getpid(), SIGKILL), testing::KilledBySignal(SIGKILL), "");
    EXPECT_THAT(events(), IsEmpty());
}

TEST(SystemSettings, NameTheMachine) {
    sim::device().machine = "iPhone7,2";
    char buffer[32] = "untouched";
    size_t size = 0;
    EXPECT_EQ(sysctlbyname("hw.machine", nullptr, &size, nullptr, 0), 0);
    EXPECT_EQ(size, 10u);
    EXPECT_EQ(sysctlbyname("hw.machine", buffer, &size, nullptr, 0), 0);
    EXPECT_STREQ(buffer, "iPhone7,2");
    size = sizeof buffer;
    EXPECT_EQ(sysctlbyname("hw.machine", buffer, &size, nullptr, 0), 0);
    EXPECT_EQ(size, 10u);
    size = 9;
    EXPECT_EQ(sysctlbyname("hw.machine", buffer, &size, nullptr, 0), -1);
    EXPECT_EQ(errno, ENOMEM);
    size = sizeof buffer;
    EXPECT_EQ(sysctlbyname("hw.nonsense", buffer, &size, nullptr, 0), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(sysctlbyname("hw.machine", nullptr, nullptr, buffer, 5), -1);
    EXPECT_EQ(errno, EPERM);
}

TEST(SystemLog, HoldsWholeLinesWithoutThePrefix) {
    NSLog(@"<X> %@ %d %5.2f %s%%", @"é", 7, 2.5, "c");
    NSLog(@"ends\n");
    NSLog(@"%@", nil);
    NSLog(@"");
    EXPECT_THAT(events(),
                ElementsAre("log text=<X> é 7  2.50 c%", "log text=ends", "log text=(null)", "log text="));
}

TEST(Sounds, AreEvents) {
    AudioServicesPlaySystemSound(1104);
    EXPECT_THAT(events(), ElementsAre("sound id=1104"));
}

TEST(Events, CarryTheTimeSinceTheirEpoch) {
    sim::Clock::shared().advance(5 * sim::kSecond);
    sim::setEventEpoch(2 * sim::kSecond);
    std::vector<std::string> heard;
    sim::onEvent([&](const sim::Value &event) { heard.push_back(event["kind"].string()); });
    sim::recordEvent("a", sim::Object{{"x", 1}});
    sim::recordWarning("w");
    sim::onEvent(nullptr);
    auto list = sim::takeEvents();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0]["t"].number(), 3.0);
    EXPECT_EQ(list[0]["x"].integer(), 1);
    EXPECT_EQ(list[1]["text"].string(), "w");
    EXPECT_THAT(heard, ElementsAre("a", "warning"));
    EXPECT_THAT(sim::takeEvents(), IsEmpty());
}
