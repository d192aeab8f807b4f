// What an application shows: a plain page with a title and a list, in the colour of the application's icon.
#pragma once

#include "Applications.h"
#include "Render/DisplayList.hpp"

#include <UIKit/UIKit.h>

namespace sim {

// Adds the page to a node whose bounds are the screen.
void drawApplicationScreen(render::Node &node, SBApplication *application);

} // namespace sim

@interface ApplicationScreenView : UIView {
@public
    SBApplication *_application; // lives as long as the process
}
@end
