#include "PendixSettings/Core/PaneState.h"

namespace pendix::pane {

void measure(UIView *view) {
    CGSize size = view.frame.size;
    width = static_cast<float>(size.width);
    height = static_cast<float>(size.height);
    keep(color, view.backgroundColor);
}

} // namespace pendix::pane
