#include "Tweak/Panel/PromptButton.h"

namespace {

constexpr CGFloat kAlpha = 0.1, kPressedAlpha = 0.3;

} // namespace

@implementation promptButton

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) self.backgroundColor = [UIColor colorWithWhite:0 alpha:kAlpha];
    return self;
}

- (void)setHighlighted:(BOOL)highlighted {
    [super setHighlighted:highlighted];
    self.backgroundColor = [UIColor colorWithWhite:0 alpha:highlighted ? kPressedAlpha : kAlpha];
}

@end
