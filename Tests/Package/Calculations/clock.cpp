#include "Results.hpp"
#include "Tweak/Core/Geometry/HandAngles.hpp"

void results::clock(Report report) {
    for (float hour : {0.0f, 5.0f, 11.0f, 12.0f, 23.0f}) {
        for (float minute : {0.0f, 17.0f, 59.0f}) {
            for (float second : {0.0f, 7.0f, 59.0f}) {
                const pendix::HandAngles angles = pendix::handAngles(hour, minute, second);
                report("handAngles second", angles.second);
                report("handAngles minute", angles.minute);
                report("handAngles hour", angles.hour);
            }
        }
    }
}
