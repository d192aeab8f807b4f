// The lock's rows of the hook table; the lock is not built yet, and its methods do nothing.
#include "Tweak/Core/Replacements.h"

namespace pendix {

void added::unlockTap(SpringBoard *, SEL, UIButton *) {}
void added::tapNumber(SpringBoard *, SEL, UITapGestureRecognizer *) {}
void added::tryAgain(SpringBoard *, SEL, UIView *) {}
void added::animateError(SpringBoard *, SEL, UIView *, int, int, int) {}
void added::usePasscode(SpringBoard *, SEL) {}
void added::useTochID(SpringBoard *, SEL) {}
void added::unlockPendix(SpringBoard *, SEL, int) {}

void hooked::setProgress(PKFingerprintGlyphView *self, SEL _cmd, double progress, double duration,
                         NSUInteger index) {
    original::setProgress(self, _cmd, progress, duration, index);
}

decltype(original::setProgress) original::setProgress = nullptr;

} // namespace pendix
