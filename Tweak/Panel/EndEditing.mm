#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/CloseMarks.h"
#include "Tweak/Panel/Panel.h"

namespace pendix {

void endEditing() {
    constexpr float kShrinking = 0.4f; // seconds
    const float duration = animationDuration(kShrinking);
    for (UIView *item in itemViews()) hideCloseMark(item, duration);
    isEditing = NO;
    focusOnPanel();
}

} // namespace pendix
