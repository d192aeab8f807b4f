// Where the passcode screen's parts stand, in points of the screen held in portrait.
#pragma once

#include "Render/Geometry.hpp"

namespace sim {

struct PasscodeLayout {
    render::Size screen;
    double key = 75; // the diameter of a key
    double across = 0, down = 0;
    double left = 0, top = 0;             // of the first key
    double title = 0, dots = 0;           // their tops
    double buttons = 0;                   // the top of the row below the keys
    static constexpr double kButton = 44; // its height

    // 0 to 9; 0 stands alone in the last row.
    render::Rect keyFrame(int digit) const {
        int place = digit ? digit - 1 : 10;
        return {left + place % 3 * across, top + place / 3 * down, key, key};
    }
};

PasscodeLayout passcodeLayout(render::Size screen, bool pad);

} // namespace sim
