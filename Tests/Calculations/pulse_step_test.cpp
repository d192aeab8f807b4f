// The pulse breathes: it goes all the way down and all the way up, for ever, whatever a view does with an
// alpha above one. A regression shows as an indicator that sticks at full strength or fades away.
#include "Tweak/StatusBar/PulseStep.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

using pendix::PulseStep;

// What a view keeps of the alpha it is handed.
float keepAll(float alpha) { return alpha; }
float clampToOne(float alpha) { return std::clamp(alpha, 0.0f, 1.0f); }

// The view's alpha after each of `ticks` steps of a fresh pulse.
std::vector<float> breathe(float (*keep)(float), int ticks) {
    std::vector<float> alphas;
    PulseStep pulse;
    float shown = PulseStep::startAlpha;
    for (int i = 0; i < ticks; ++i) {
        pulse = pendix::nextPulseStep(shown, pulse.step);
        shown = keep(pulse.alpha);
        alphas.push_back(shown);
    }
    return alphas;
}

class Pulse : public testing::TestWithParam<float (*)(float)> {};

TEST_P(Pulse, RisesOnceAtTheStart) {
    auto alphas = breathe(GetParam(), 2);
    EXPECT_FLOAT_EQ(alphas[0], GetParam()(1.05f));
    EXPECT_LT(alphas[1], alphas[0]);
}

TEST_P(Pulse, TurnsAtBothBoundsForEver) {
    auto alphas = breathe(GetParam(), 100'000);
    std::vector<size_t> bottoms;
    for (size_t i = 1; i + 1 < alphas.size(); ++i) {
        ASSERT_GT(alphas[i], 0.04f) << "tick " << i << ": faded away";
        ASSERT_LT(alphas[i], 1.06f) << "tick " << i;
        if (alphas[i] < alphas[i - 1] && alphas[i] < alphas[i + 1]) bottoms.push_back(i);
    }
    ASSERT_GT(bottoms.size(), 2000u);
    for (size_t i = 1; i < bottoms.size(); ++i) {
        // 0.07 s a tick: one breath takes 2.5 to 2.7 s.
        EXPECT_GE(bottoms[i] - bottoms[i - 1], 36u);
        EXPECT_LE(bottoms[i] - bottoms[i - 1], 38u);
    }
}

INSTANTIATE_TEST_SUITE_P(Views, Pulse, testing::Values(keepAll, clampToOne));

} // namespace
