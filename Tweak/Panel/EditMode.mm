// The long press: close marks, and the question whether to clear everything.
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/CloseMarks.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Question.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

namespace pendix {

void added::longPressEvent(SpringBoard *self, SEL, UILongPressGestureRecognizer *recognizer) {
    if (!isShow || sliding || recognizer.state != UIGestureRecognizerStateBegan) return;
    if (itemState::isClosing(recognizer.view)) return;
    if (isOn(keys::closeMarks)) isEditing = !isEditing;
    constexpr float kGrowing = 0.4f; // seconds
    const float duration = animationDuration(kGrowing);
    for (UIView *item in itemViews()) {
        if (isEditing) {
            showCloseMark(item, duration);
        } else {
            hideCloseMark(item, duration);
        }
    }
    if (isEditing) {
        focusOnPanel();
    } else {
        ask(self, duration);
    }
}

} // namespace pendix
