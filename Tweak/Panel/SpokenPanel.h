// The panel for those who listen: what of it is found, in which order, and what can be done with it.
#pragma once

#include <UIKit/UIView.h>

namespace pendix {

// The panel is there for VoiceOver, and nothing else on the screen; or it is gone, and the focus goes back to
// the indicator.
void takeOverSpeech(BOOL shown);

// The panel has opened: VoiceOver begins with the first thing of it.
void focusOnOpenPanel();
// An application has gone whose place was at that x: VoiceOver goes on with the one that took its place, or
// the last one. Nothing while others are still on their way off.
void focusNear(CGFloat x);

// What stands for an item: its close mark while those are shown, else the item view.
UIView *elementOf(UIView *item);
// Gives that element its texts and actions.
void describe(UIView *item);

} // namespace pendix
