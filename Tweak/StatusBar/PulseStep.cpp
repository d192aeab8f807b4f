#include "Tweak/StatusBar/PulseStep.hpp"

namespace pendix {

PulseStep nextPulseStep(float viewAlpha, float step) {
    if (viewAlpha <= PulseStep::low || viewAlpha >= PulseStep::high) step = -step;
    return {viewAlpha + step, step};
}

} // namespace pendix
