// The hands of a clock, in degrees from twelve.
#pragma once

namespace pendix {

struct HandAngles {
    float second = 0, minute = 0, hour = 0;
    bool operator==(const HandAngles &) const = default;
};

// `hour` from 0 to 23. The minute hand moves with the seconds, the hour hand with the minutes.
HandAngles handAngles(float hour, float minute, float second);

} // namespace pendix
