// The fingerprint sensor for the panel's other parts, and the pace of the glyph's drawing.
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/State.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Lock/PendixTouchIDController.h"
#include "Tweak/Lock/Replacements.h"

namespace pendix {

void startFingerMonitor() { [[PendixTouchIDController sharedInstance] startMonitoring]; }
void stopFingerMonitor() { [[PendixTouchIDController sharedInstance] stopMonitoring]; }

// Only while the panel waits for a finger: glyphs elsewhere keep their pace.
void hooked::setProgress(PKFingerprintGlyphView *self, SEL _cmd, double progress, double duration,
                         NSUInteger index) {
    constexpr float kGlyphDrawing = 0.5f; // seconds
    if (isShow && requireFinger) duration = animationDuration(kGlyphDrawing);
    original::setProgress(self, _cmd, progress, duration, index);
}

} // namespace pendix
