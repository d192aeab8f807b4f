#include "PendixSettings/Core/Pattern.h"

#include <UIKit/UIImage.h>

namespace pendix::pane {

UIColor *pattern() {
    UIImage *tile = [UIImage imageWithContentsOfFile:@"/Library/Application Support/Pendix/background.png"];
    return tile ? [UIColor colorWithPatternImage:tile] : nil;
}

} // namespace pendix::pane
