// How the user wants the interface to help, asked anew each time. All NO, and every size the usual one, on a
// system that cannot tell: but for VoiceOver and the size of text, aids can be asked for from 8.0 on.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix {

BOOL voiceOverRuns();
BOOL reducesMotion();
BOOL reducesTransparency();
BOOL darkensColors();
BOOL boldensText();

// The size of an application's name on the panel, in points: the system's for captions, so 12 unless the user
// has chosen another.
CGFloat nameSize();
// One of the sizes for those who see badly.
BOOL wantsHugeText();
// What text of the body's size is larger than usual, as a factor; 1 unless the user has chosen another.
CGFloat textScale();

// The font of that name, or the heavier one of its family for who wants bold text.
UIFont *textFont(NSString *name, CGFloat size);

} // namespace pendix
