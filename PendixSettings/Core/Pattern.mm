#include "PendixSettings/Core/Pattern.h"
#include "Tweak/Core/Names.h"

#include <UIKit/UIImage.h>

namespace pendix::pane {

UIColor *pattern() {
    UIImage *tile = [UIImage imageWithContentsOfFile:names::supportFile(@"background.png")];
    return tile ? [UIColor colorWithPatternImage:tile] : nil;
}

} // namespace pendix::pane
