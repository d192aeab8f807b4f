// The pane's alerts. Titles and messages are given by their keys; the delegate is not retained.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix::pane {

// With a single button.
void showNote(NSString *title, NSString *message, id delegate);

// Offers a restart of the home screen. The delegate hands the button on to answerRestart, which restarts for
// the one that is not "cancel".
void offerRestart(id delegate);
void answerRestart(NSInteger button);

} // namespace pendix::pane
