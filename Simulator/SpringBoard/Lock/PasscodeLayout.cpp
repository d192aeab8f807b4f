#include "PasscodeLayout.hpp"

#include <algorithm>

namespace sim {

PasscodeLayout passcodeLayout(render::Size screen, bool pad) {
    constexpr double kShort = 500, kTallest = 667, kTitleAbove = 72, kDotsAbove = 36;
    constexpr double kGap = 15, kTightGap = 8, kAcrossGap = 20, kWideAcrossGap = 28, kButtonsBelow = 6;
    PasscodeLayout result;
    result.screen = screen;
    if (pad) result.key = 82;
    result.across = result.key + (screen.width >= 375 ? kWideAcrossGap : kAcrossGap);
    result.down = result.key + (screen.height < kShort ? kTightGap : kGap);
    double width = 2 * result.across + result.key, height = 3 * result.down + result.key;
    result.left = (screen.width - width) / 2;
    // On a phone the keys stand in the thumb's reach, on a tablet in the middle.
    double below = 0.12 * std::min(screen.height, kTallest);
    result.top = pad ? (screen.height - height) / 2 + 40 : screen.height - below - height;
    result.title = result.top - kTitleAbove;
    result.dots = result.top - kDotsAbove;
    result.buttons = result.top + height + (screen.height < kShort ? 0 : kButtonsBelow);
    return result;
}

} // namespace sim
