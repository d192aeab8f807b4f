// The question whether to clear everything, over the strip in a panel that is so much higher meanwhile.
#pragma once

#include <SpringBoard/SpringBoard.h>

namespace pendix {

// Asks, over `duration` seconds. Fingers that are down are taken from the strip, and it takes no touches
// until the question is gone.
void ask(SpringBoard *springBoard, float duration);

} // namespace pendix
