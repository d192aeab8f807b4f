// Opening an application.
#include "Tweak/Core/State.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

#include <SpringBoard/SBLockScreen.h>

namespace pendix {

void added::tapPressEvent(SpringBoard *self, SEL, UITapGestureRecognizer *recognizer) {
    if (!isShow || isSliding || isEditing || itemState::isClosing(recognizer.view)) return;
    NSString *identifier = recognizer.view.layer.name;
    SBLockScreenManager *lock = [objc_getClass("SBLockScreenManager") sharedInstance];
    [self dismisPendixUI];
    if (![lock isUILocked]) {
        [[UIApplication sharedApplication] launchApplicationWithIdentifier:identifier suspended:NO];
        return;
    }
    [[lock lockScreenViewController] setPasscodeLockVisible:YES
                                                   animated:YES
                                           withUnlockSource:SBUnlockSourceUnknown
                                                 andOptions:nil];
    [openThisApp release];
    openThisApp = [identifier copy];
}

} // namespace pendix
