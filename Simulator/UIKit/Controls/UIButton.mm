#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Pixels.hpp"
#include "UIControl+Further.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIControl.h>
#include <UIKit/UIGestureRecognizerSubclass.h>

#include <algorithm>
#include <map>

// A button lays its title out anew when the title's looks change.
@interface UIButtonLabel : UILabel
@end

@implementation UIButtonLabel
- (void)setFont:(UIFont *)font {
    [super setFont:font];
    [[self superview] setNeedsLayout];
}
@end

namespace {

constexpr CGFloat kFontSize = 18;
// What a system button's title fades to under a finger, at once and without animation; inferred.
constexpr CGFloat kHighlightedAlpha = 0.2;
// What sizing a button to its title leaves above and below together, and its least width; inferred.
constexpr CGFloat kHeightAroundTitle = 12;
constexpr CGFloat kLeastWidth = 30;

struct ButtonState {
    UIButtonType type = UIButtonTypeCustom;
    UILabel *label = nil; // retained
    // By state; retained.
    std::map<UIControlState, NSString *> titles;
    std::map<UIControlState, UIColor *> colors;
};

ButtonState &buttonState(UIButton *button) { return sim::lazyState<ButtonState>(button->_buttonState); }

// What is set for the state, else for the normal one; nil when neither is.
template <typename Object>
Object *valueFor(const std::map<UIControlState, Object *> &table, UIControlState state) {
    auto found = table.find(state);
    if (found == table.end()) found = table.find(UIControlStateNormal);
    return found == table.end() ? nil : found->second;
}

template <typename Object>
void store(std::map<UIControlState, Object *> &table, UIControlState state, Object *retained) {
    Object *&slot = table[state];
    [slot release];
    slot = retained;
    if (!retained) table.erase(state);
}

UIColor *titleColor(UIButton *button, UIControlState state) {
    if (UIColor *set = valueFor(buttonState(button).colors, state)) return set;
    if (buttonState(button).type != UIButtonTypeSystem) return [UIColor whiteColor];
    bool disabled = state & UIControlStateDisabled;
    return disabled ? [UIColor colorWithWhite:0.5 alpha:0.5] : [button tintColor];
}

void refreshTitle(UIButton *button) {
    const auto &mine = buttonState(button);
    UIControlState now = [button state];
    [mine.label setText:valueFor(mine.titles, now)];
    [mine.label setTextColor:titleColor(button, now)];
    bool dimmed = mine.type == UIButtonTypeSystem && (now & UIControlStateHighlighted);
    [mine.label setAlpha:dimmed ? kHighlightedAlpha : 1];
    [button setNeedsLayout];
}

} // namespace

@implementation UIButton

+ (instancetype)buttonWithType:(UIButtonType)type {
    UIButton *button = [[[self alloc] initWithFrame:CGRectZero] autorelease];
    buttonState(button).type = type;
    refreshTitle(button);
    return button;
}

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    [self setOpaque:NO];
    UILabel *label = [[UIButtonLabel alloc] initWithFrame:CGRectZero];
    [label setFont:[UIFont systemFontOfSize:kFontSize]];
    [label setTextAlignment:NSTextAlignmentCenter];
    [label setLineBreakMode:NSLineBreakByTruncatingMiddle];
    buttonState(self).label = label;
    [self addSubview:label];
    refreshTitle(self);
    return self;
}

- (void)dealloc {
    auto *mine = &buttonState(self);
    [mine->label release];
    for (auto &[state, title] : mine->titles) [title release];
    for (auto &[state, color] : mine->colors) [color release];
    delete mine;
    _buttonState = nullptr;
    [super dealloc];
}

- (void)setTitle:(NSString *)title forState:(UIControlState)state {
    store(buttonState(self).titles, state, static_cast<NSString *>([title copy]));
    refreshTitle(self);
}
- (NSString *)titleForState:(UIControlState)state {
    return valueFor(buttonState(self).titles, state);
}
- (NSString *)currentTitle {
    return [self titleForState:[self state]];
}

- (void)setTitleColor:(UIColor *)color forState:(UIControlState)state {
    [color retain];
    store(buttonState(self).colors, state, color);
    refreshTitle(self);
}
- (UIColor *)titleColorForState:(UIControlState)state {
    return titleColor(self, state);
}

- (UILabel *)titleLabel {
    return buttonState(self).label;
}

- (void)setHighlighted:(BOOL)highlighted {
    [super setHighlighted:highlighted];
    refreshTitle(self);
}
- (void)setSelected:(BOOL)selected {
    [super setSelected:selected];
    refreshTitle(self);
}
- (void)setEnabled:(BOOL)enabled {
    [super setEnabled:enabled];
    refreshTitle(self);
}

- (void)tintColorDidChange {
    [super tintColorDidChange];
    refreshTitle(self);
}

- (void)layoutSubviews {
    [super layoutSubviews];
    UILabel *label = buttonState(self).label;
    CGRect bounds = [self bounds];
    CGSize size = [label sizeThatFits:bounds.size];
    size.width = std::min(size.width, bounds.size.width);
    size.height = std::min(size.height, bounds.size.height);
    CGFloat scale = [label contentScaleFactor];
    [label setFrame:{{sim::wholePixels(CGRectGetMidX(bounds) - size.width / 2, scale),
                      sim::wholePixels(CGRectGetMidY(bounds) - size.height / 2, scale)},
                     size}];
}

- (CGSize)sizeThatFits:(CGSize)size {
    CGSize title = [buttonState(self).label sizeThatFits:CGSizeZero];
    return {std::max(title.width, kLeastWidth), title.height + kHeightAroundTitle};
}

// One tap with one finger belongs to the button, whatever lies around it.
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer {
    if ([recognizer view] == self || ![self isEnabled]) return YES;
    if (![recognizer isKindOfClass:[UITapGestureRecognizer class]]) return YES;
    auto *tap = static_cast<UITapGestureRecognizer *>(recognizer);
    return [tap numberOfTapsRequired] > 1 || [tap numberOfTouchesRequired] > 1;
}

@end
