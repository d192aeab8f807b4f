#include "Results.hpp"
#include "Tweak/StatusBar/PulseStep.hpp"

void results::pulse(Report report) {
    pendix::PulseStep step;
    for (int tick = 0; tick < 200; ++tick) {
        step = pendix::nextPulseStep(step.alpha, step.step);
        report("nextPulseStep alpha", step.alpha);
        report("nextPulseStep step", step.step);
    }
}
