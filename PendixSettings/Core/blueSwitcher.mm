#include "PendixSettings/Core/blueSwitcher.h"

#include "PendixSettings/Core/Pattern.h"
#include "Tweak/Core/Accessibility/Aids.h"

namespace {

// The largest size, from the user's down to the usual one, in which all of the text stands on two lines
// within that height.
void fitOnTwoLines(UILabel *label, CGFloat height) {
    constexpr CGFloat kUsual = 17, kStep = 1, kMargin = 2, kAnyHeight = 1000;
    UIFont *font = label.font;
    CGRect frame = label.frame;
    label.numberOfLines = 0;
    for (CGFloat size = font.pointSize; size > kUsual; size -= kStep) {
        label.font = [UIFont fontWithName:font.fontName size:size];
        const CGSize needed = [label sizeThatFits:CGSizeMake(frame.size.width, kAnyHeight)];
        if (needed.height <= height - 2 * kMargin && needed.height < 3 * label.font.lineHeight) break;
    }
    label.numberOfLines = 2;
    frame.origin.y = 0;
    frame.size.height = height;
    label.frame = frame;
}

} // namespace

@implementation blueSwitcher

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)identifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:identifier specifier:specifier];
    if (self) [(UISwitch *)self.control setOnTintColor:pendix::pane::pattern()];
    return self;
}

// Larger text would be cut off beside the switch.
- (void)layoutSubviews {
    [super layoutSubviews];
    if (pendix::textScale() <= 1) return;
    for (UIView *view in self.contentView.subviews)
        if ([view isKindOfClass:[UILabel class]] && [[(UILabel *)view text] length])
            fitOnTwoLines((UILabel *)view, self.bounds.size.height);
}

@end
