// Objects that nothing else keeps.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix::pane {

// `object` lives as long as the view; nothing for nil. For what a view calls back without retaining it: the
// page may be left under it by a finger that lay on the way back.
inline void keepWith(UIView *view, id object) { [view.layer setValue:object forKey:@"keptObject"]; }

} // namespace pendix::pane
