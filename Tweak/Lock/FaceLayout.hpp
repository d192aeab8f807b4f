// Where everything stands on the three lock faces. Plain numbers in points, in the face's own coordinates; a
// face is as wide as the panel and as high as `height`.
#pragma once

#include "Tweak/Core/Geometry/Rect.hpp"
#include "Tweak/Lock/CodeEntry.hpp"

#include <array>

namespace pendix {

struct FaceInput {
    Real width = 0; // the panel's
    Size screen;    // portrait, whichever way it is held
    bool landscape = false;
    bool sensor = false; // a second button leads to Touch ID
};

struct KeypadLayout {
    Real scale = 1; // of the keys; less than 1 where a turned screen is too low for them
    Rect title;
    std::array<Rect, kCodeLength> dots;
    std::array<Rect, 10> keys; // by digit
    Rect button;               // cancel or delete
    Rect fingerButton;         // without size where there is no sensor
    Real height = 0;
};

// Keys keep their size upright: 55 points, or 65 on a screen higher than 568.
KeypadLayout keypadLayout(const FaceInput &input);

struct FingerLayout {
    Rect title, glyph, cancel, passcode;
    Real height = 0;
};
FingerLayout fingerLayout(Real width);

struct AskLayout {
    Rect message, button;
    Real height = 0;
};
// `textHeight` is what the message takes at that width.
AskLayout askLayout(Real width, Real textHeight);

} // namespace pendix
