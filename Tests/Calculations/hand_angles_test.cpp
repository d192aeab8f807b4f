// The hands of the clock show the time of day.
#include "Tweak/Core/Geometry/HandAngles.hpp"

#include <gtest/gtest.h>

namespace {

using namespace pendix;

TEST(HandAngles, ShowTheTime) {
    struct {
        float hour, minute, second;
        HandAngles angles; // second, minute, hour
    } const cases[] = {
        {0, 0, 0, {0, 0, 0}},          {10, 20, 30, {180, 123, 310}},    {12, 0, 0, {0, 0, 0}},
        {3, 0, 0, {0, 0, 90}},         {15, 0, 0, {0, 0, 90}},           {6, 30, 0, {0, 180, 195}},
        {11, 59, 0, {0, 354, 359.5f}}, {23, 59, 50, {300, 359, 359.5f}},
    };
    for (const auto &c : cases) {
        HandAngles got = handAngles(c.hour, c.minute, c.second);
        EXPECT_FLOAT_EQ(got.second, c.angles.second) << c.hour << ":" << c.minute;
        EXPECT_FLOAT_EQ(got.minute, c.angles.minute) << c.hour << ":" << c.minute;
        EXPECT_FLOAT_EQ(got.hour, c.angles.hour) << c.hour << ":" << c.minute;
    }
}

} // namespace
