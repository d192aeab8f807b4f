#include "Tweak/Panel/Replacements.h"

#include <cmath>

namespace pendix::added {

float degreesToRadians(SpringBoard *, SEL, float degrees) { return static_cast<float>(degrees * M_PI / 180); }

NSNumber *degreesToNumber(SpringBoard *self, SEL, float degrees) {
    return [NSNumber numberWithFloat:degreesToRadians(self, nullptr, degrees)];
}

} // namespace pendix::added
