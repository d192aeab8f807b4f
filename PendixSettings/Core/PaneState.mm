#include "PendixSettings/Core/PaneState.h"

namespace pendix::pane {

float width = 0, height = 0;
UIColor *color = nil;

NSString *wtf = nil;
NSString *const kIndeterminate = @"Indeterminate", *const kIcon = @"Icon";
UIColor *ciccia = nil;

BOOL whereShowed = NO, showed = NO;
NSMutableDictionary *pendingSettings = nil;
NSInteger changeStep = 0;
NSMutableArray *newCodes = nil;

void measure(UIView *view) {
    CGSize size = view.frame.size;
    width = static_cast<float>(size.width);
    height = static_cast<float>(size.height);
    keep(color, view.backgroundColor);
}

} // namespace pendix::pane
