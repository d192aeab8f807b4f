// The fingerprint sensor is observed once however often that is asked for, and its matching is left as it was
// found: others look for fingers as well.
#include "Tweak/Core/State.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Start/HookTable.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

#include <BiometricKit/BiometricKit.h>

namespace {

class FingerMonitor : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        harness::boot(harness::profile("iPhone 6", sim::Version{8, 1}), harness::applications(), [] {
            pendix::createBadgeList();
            pendix::installHooks();
        });
        monitor = [objc_getClass("SBUIBiometricEventMonitor") sharedInstance];
        [monitor _setMatchingEnabled:GetParam()];
    }

    harness::Sandbox sandbox;
    SBUIBiometricEventMonitor *monitor = nil;
};

TEST_P(FingerMonitor, LeavesTheSensorAsItWasFound) {
    pendix::stopFingerMonitor();
    EXPECT_EQ([monitor isMatchingEnabled], GetParam()) << "stopped without having been started";
    for (int round = 0; round < 2; ++round) {
        pendix::startFingerMonitor();
        pendix::startFingerMonitor();
        EXPECT_TRUE([monitor isMatchingEnabled]);
        pendix::stopFingerMonitor();
        EXPECT_EQ([monitor isMatchingEnabled], GetParam());
        [monitor _setMatchingEnabled:YES];
        pendix::stopFingerMonitor();
        EXPECT_TRUE([monitor isMatchingEnabled]) << "a second stop touches nothing";
        [monitor _setMatchingEnabled:GetParam()];
    }
}

INSTANTIATE_TEST_SUITE_P(Matching, FingerMonitor, testing::Bool(),
                         [](const auto &info) { return info.param ? "On" : "Off"; });

} // namespace
