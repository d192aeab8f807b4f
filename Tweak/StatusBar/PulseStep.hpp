// The arithmetic of the pulse: the indicator's alpha falls and rises between two bounds.
#pragma once

namespace pendix {

struct PulseStep {
    // In seconds; a breath from dim to dim takes about two and a half.
    static constexpr double interval = 0.07;
    static constexpr float low = 0.1f, high = 1.0f;
    static constexpr float startAlpha = 1.0f, startStep = -0.05f;

    float alpha = startAlpha; // handed to the view
    float step = startStep;   // signed
};

// The step after one that left the view at `viewAlpha`, which is what the view kept of the alpha it was
// handed. At a bound or beyond the direction turns first. A pulse that starts at 1.0 therefore rises once,
// to 1.05.
PulseStep nextPulseStep(float viewAlpha, float step);

} // namespace pendix
