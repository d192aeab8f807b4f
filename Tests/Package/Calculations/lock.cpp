#include "ReportRect.hpp"
#include "Tweak/Lock/CodeEntry.hpp"
#include "Tweak/Lock/FaceLayout.hpp"
#include "Tweak/Lock/LockRules.hpp"
#include "Tweak/Lock/Shake.hpp"

namespace {

using namespace pendix;

double place(std::optional<int> value) { return value.value_or(-1); }

void entry(results::Report report) {
    for (int digit = 0; digit < 10; ++digit) {
        report("keyOfDigit", keyOfDigit(digit));
        report("digitOfKey", digitOfKey(keyOfDigit(digit)));
    }
    for (int filled = 0; filled <= kCodeLength; ++filled) {
        FilledDots dots = {};
        for (int dot = 0; dot < filled; ++dot) dots[static_cast<std::size_t>(dot)] = true;
        report("dotToFill", place(dotToFill(dots)));
        report("dotToClear", place(dotToClear(dots)));
    }
    for (std::optional<ShakeMove> move = ShakeMove{}; move; move = nextMove(*move))
        report("shake", offset(*move));
}

void rules(results::Report report) {
    for (int bits = 0; bits < 8; ++bits) {
        const bool first = bits & 1, second = bits & 2, third = bits & 4;
        const OpeningFace face = openingFace(first, second, third);
        report("openingFace", face.finger + 2 * face.asks + 4 * face.listens);
        for (Where where : {Where::everyOpening, Where::deviceLocked, Where::displayOff}) {
            report("armedAtOpening", armedAtOpening(where, first, second));
        }
    }
}

void keypad(results::Report report, const FaceInput &input) {
    const KeypadLayout layout = keypadLayout(input);
    report("keypadLayout scale", layout.scale);
    report("keypadLayout height", layout.height);
    results::reportRect(report, "keypadLayout title", layout.title);
    results::reportRect(report, "keypadLayout button", layout.button);
    results::reportRect(report, "keypadLayout fingerButton", layout.fingerButton);
    for (const Rect &dot : layout.dots) results::reportRect(report, "keypadLayout dot", dot);
    for (const Rect &key : layout.keys) results::reportRect(report, "keypadLayout key", key);
}

void others(results::Report report, Real width) {
    const FingerLayout finger = fingerLayout(width);
    for (const Rect &part : {finger.title, finger.glyph, finger.cancel, finger.passcode}) {
        results::reportRect(report, "fingerLayout", part);
    }
    report("fingerLayout height", finger.height);
    const AskLayout ask = askLayout(width, 43.5f);
    results::reportRect(report, "askLayout message", ask.message);
    results::reportRect(report, "askLayout button", ask.button);
    report("askLayout height", ask.height);
}

} // namespace

void results::lock(Report report) {
    entry(report);
    rules(report);
    for (Size screen : {Size{320, 480}, Size{320, 568}, Size{375, 667}, Size{414, 736}, Size{768, 1024}}) {
        const Real width = screen.width * 8 / 10;
        for (int bits = 0; bits < 4; ++bits)
            keypad(report, {width, screen, (bits & 1) != 0, (bits & 2) != 0});
        others(report, width);
    }
}
