// The lock in front of the panel, as the panel's building sees it.
#pragma once

#include "Tweak/Core/Scheme.h"

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIView.h>

namespace pendix {

// At each opening: decides by the setting `where` whether this one must pass the lock. Nothing that was
// entered before counts any more.
void armLock();

// The display goes off: arms the lock where the setting `where` says so, and then takes back what was
// entered.
void armLockInTheDark();

// Whether this opening must pass it: armed, the lock is on and there is a passcode.
BOOL isLocked();

struct LockFacesInput {
    SpringBoard *springBoard; // target of keys and buttons
    UIView *content, *strip, *dots;
    Scheme scheme;
    CGFloat width; // the panel's
    int count;     // applications behind the lock
    BOOL running;  // running applications, not badged ones
};

// Builds the faces over the strip, which goes clear, and returns the panel's height for the one that shows.
CGFloat addLockFaces(const LockFacesInput &input);

// The title of the face that shows, which VoiceOver begins with; nil while the list does.
UIView *spokenFaceTitle();

// The screen has been turned while the panel is shown: the faces, and the panel while one of them shows, fit
// it again. Does nothing without a lock.
void fitLockFaces();

// The fingerprint sensor. Stopping does nothing while none is started.
void startFingerMonitor();
void stopFingerMonitor();

} // namespace pendix

// What the lock asks for; the panel answers.
namespace pendix {

// The shown panel shows something else: VoiceOver goes on with the first thing of it. Nothing while the panel
// is not shown.
void focusOnPanel();

} // namespace pendix

@interface SpringBoard (PendixLockedPanel)
// Closes the panel back into the indicator; does nothing while it is not shown.
- (void)dismisPendixUI;
@end
