#include "Tweak/Core/Geometry/HandAngles.hpp"

namespace pendix {

HandAngles handAngles(float hour, float minute, float second) {
    if (hour >= 12) hour -= 12;
    return {second * 6, minute * 6 + second / 10, hour * 30 + minute * 0.5f};
}

} // namespace pendix
