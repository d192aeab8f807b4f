#include "Tweak/Lock/FaceLayout.hpp"

#include <algorithm>

namespace pendix {

namespace {

constexpr Real kTop = 10, kTitleHeight = 30;
constexpr Real kButtonHeight = 45, kBetweenButtons = 1;

constexpr Real kDotsBelowTitle = 10, kDotSize = 10, kDotStep = 18, kDotsLeftOfCentre = 32;
constexpr Real kKeysBelowDots = 15, kButtonBelowKeys = 15;
constexpr int kColumns = 3;
constexpr Real kRows = 4;

constexpr Real kGlyphBelowTitle = 10, kGlyphSide = 65, kButtonsBelowGlyph = 20;
constexpr Real kButtonBelowMessage = 10;

struct KeySize {
    Real side, gap;
    Real rowStep() const { return side + gap / 2; }
    Real height() const { return (kRows - 1) * rowStep() + side; }
};

constexpr Real kRoomAroundKeys =
    kTop + kTitleHeight + kDotsBelowTitle + kDotSize + kKeysBelowDots + kButtonBelowKeys + kButtonHeight;

// A turned screen leaves the panel what is below the status bar and a margin, less a little at the lower
// edge.
Real keyScale(const FaceInput &input, const KeySize &full) {
    constexpr Real kPanelTop = 30, kBelowPanel = 5;
    if (!input.landscape) return 1;
    const Real room = input.screen.width - kPanelTop - kBelowPanel - kRoomAroundKeys;
    return std::clamp<Real>(room / full.height(), 0, 1);
}

KeySize fullKeySize(Real screenHeight) {
    constexpr Real kSmallScreen = 568;
    return screenHeight <= kSmallScreen ? KeySize{55, 20} : KeySize{65, 25};
}

Rect halfButton(Real width, Real y, bool right) {
    const Real half = (width - kBetweenButtons) / 2;
    return {right ? half + kBetweenButtons : 0, y, half, kButtonHeight};
}

void placeKeys(KeypadLayout &layout, const KeySize &size, Real width, Real top) {
    const Real left = width / 2 - (size.gap + size.side + size.side / 2);
    for (int digit = 0; digit < 10; ++digit) {
        const int row = digit == 0 ? 3 : (digit - 1) / kColumns;
        const int column = digit == 0 ? 1 : (digit - 1) % kColumns;
        layout.keys[static_cast<std::size_t>(digit)] = {
            left + static_cast<Real>(column) * (size.side + size.gap),
            top + static_cast<Real>(row) * size.rowStep(), size.side, size.side};
    }
}

} // namespace

KeypadLayout keypadLayout(const FaceInput &input) {
    KeypadLayout layout;
    const KeySize full = fullKeySize(input.screen.height);
    layout.scale = keyScale(input, full);
    const KeySize size = {full.side * layout.scale, full.gap * layout.scale};

    layout.title = {0, kTop, input.width, kTitleHeight};
    const Real dotsTop = kTop + kTitleHeight + kDotsBelowTitle;
    for (int dot = 0; dot < kCodeLength; ++dot)
        layout.dots[static_cast<std::size_t>(dot)] = {input.width / 2 - kDotsLeftOfCentre +
                                                          static_cast<Real>(dot) * kDotStep,
                                                      dotsTop, kDotSize, kDotSize};
    const Real keysTop = dotsTop + kDotSize + kKeysBelowDots;
    placeKeys(layout, size, input.width, keysTop);

    const Real buttonTop = keysTop + size.height() + kButtonBelowKeys;
    layout.button = {0, buttonTop, input.width, kButtonHeight};
    if (input.sensor) {
        layout.button = halfButton(input.width, buttonTop, false);
        layout.fingerButton = halfButton(input.width, buttonTop, true);
    }
    layout.height = buttonTop + kButtonHeight;
    return layout;
}

FingerLayout fingerLayout(Real width) {
    const Real glyphTop = kTop + kTitleHeight + kGlyphBelowTitle;
    const Real buttonTop = glyphTop + kGlyphSide + kButtonsBelowGlyph;
    return {{0, kTop, width, kTitleHeight},
            {(width - kGlyphSide) / 2, glyphTop, kGlyphSide, kGlyphSide},
            halfButton(width, buttonTop, false),
            halfButton(width, buttonTop, true),
            buttonTop + kButtonHeight};
}

AskLayout askLayout(Real width, Real textHeight) {
    const Real messageHeight = std::max(textHeight, kTitleHeight);
    const Real buttonTop = kTop + messageHeight + kButtonBelowMessage;
    return {{0, kTop, width, messageHeight}, {0, buttonTop, width, kButtonHeight}, buttonTop + kButtonHeight};
}

} // namespace pendix
