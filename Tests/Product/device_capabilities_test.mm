// Which devices have a fingerprint sensor and which a big screen, by the models that were sold with iOS 7 and
// 8 and one that came later.
#include "Tweak/Core/SpringBoard+Device.h"
#include "Tweak/Start/HookTable.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

namespace {

struct Model {
    const char *machine;
    bool sensor, bigScreen;
};

TEST(DeviceCapabilities, AreKnownByTheModel) {
    harness::Sandbox sandbox;
    harness::boot(harness::profile("iPhone 5"), harness::applications(), [] { pendix::installHooks(); });
    SpringBoard *springBoard = (SpringBoard *)[UIApplication sharedApplication];
    const Model phones[] = {
        {"iPhone3,1", false, false}, {"iPhone3,2", false, false}, {"iPhone3,3", false, false},
        {"iPhone4,1", false, false}, {"iPhone5,1", false, false}, {"iPhone5,2", false, false},
        {"iPhone5,3", false, false}, {"iPhone5,4", false, false}, {"iPhone6,1", true, false},
        {"iPhone6,2", true, false},  {"iPhone7,1", true, true},   {"iPhone7,2", true, true},
        {"iPod5,1", false, false},   {"iPhone8,1", false, false}, {"iPhone6,11", false, false},
        {"iPad2,1", false, false},   {"iPad3,6", false, false},   {"iPad4,1", false, false},
        {"iPad4,4", false, false},   {"iPad4,6", false, false},   {"iPad4,7", true, false},
        {"iPad4,8", true, false},    {"iPad4,9", true, false},    {"iPad5,1", false, false},
        {"iPad5,3", true, false},    {"iPad5,4", true, false},    {"", false, false},
    };
    for (bool pad : {false, true})
        for (const Model &model : phones) {
            sim::device().machine = model.machine;
            sim::device().pad = pad;
            EXPECT_EQ([springBoard hasTouchID], model.sensor) << model.machine;
            EXPECT_EQ([springBoard hasBigScreen], model.bigScreen || pad) << model.machine;
        }
}

} // namespace
