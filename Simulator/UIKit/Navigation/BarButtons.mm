#include "NavigationState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Pixels.hpp"
#include "UIKit/Accessibility/DefaultSpeech.h"
#include "UIKit/Text/SystemTexts.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIImageView.h>
#include <UIKit/UILabel.h>

#include <algorithm>

namespace {

constexpr CGFloat kFontSize = 17;
constexpr CGFloat kHighlightedAlpha = 0.2;
// The chevron's own size, and how far the text stands from it.
constexpr CGSize kChevron = {12.5, 20.5};
constexpr CGFloat kTextAfterChevron = 19;

struct ButtonState {
    UIBarButtonItem *item = nil; // retained
    UILabel *label = nil;        // retained, as the next
    UIImageView *picture = nil;
};

ButtonState &state(UINavigationButton *button) {
    return sim::lazyState<ButtonState>(button->_navigationButtonState);
}

UILabel *makeLabel(NSString *text) {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    [label setFont:[UIFont systemFontOfSize:kFontSize]];
    [label setText:text];
    [label sizeToFit];
    return label;
}

void centre(UIView *view, CGFloat x, CGRect bounds) {
    CGSize size = [view bounds].size;
    CGFloat scale = [view contentScaleFactor];
    [view setFrame:{{x, sim::wholePixels((bounds.size.height - size.height) / 2, scale)}, size}];
}

} // namespace

@implementation UINavigationButton

- (instancetype)initWithBarButtonItem:(UIBarButtonItem *)item {
    if (!(self = [super initWithFrame:CGRectZero])) return nil;
    auto &mine = state(self);
    mine.item = [item retain];
    [self setOpaque:NO];
    [self setEnabled:[item isEnabled]];
    if (UIImage *image = [item image]) {
        bool original = [image renderingMode] == UIImageRenderingModeAlwaysOriginal;
        if (!original) image = [image imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
        mine.picture = [[UIImageView alloc] initWithImage:image];
        [self addSubview:mine.picture];
    } else {
        mine.label = makeLabel([item title]);
        [self addSubview:mine.label];
    }
    [self tintColorDidChange];
    [self addTarget:self action:@selector(sendItemsAction) forControlEvents:UIControlEventTouchUpInside];
    return self;
}

- (void)dealloc {
    [state(self).item release];
    [state(self).label release];
    [state(self).picture release];
    delete &state(self);
    [super dealloc];
}

- (NSString *)title {
    return [state(self).item title];
}

- (sim::Speech)defaultSpeech {
    NSString *given = [state(self).item accessibilityLabel];
    return {.element = YES,
            .label = given ? given : [self title],
            .traits = UIAccessibilityTraitButton |
                      ([self isEnabled] ? UIAccessibilityTraitNone : UIAccessibilityTraitNotEnabled)};
}

- (void)sendItemsAction {
    UIBarButtonItem *item = [[state(self).item retain] autorelease];
    if ([item action]) [[item target] performSelector:[item action] withObject:item];
}

- (void)tintColorDidChange {
    [super tintColorDidChange];
    [state(self).label
        setTextColor:[self isEnabled] ? [self tintColor] : [UIColor colorWithWhite:0.6 alpha:1]];
}

- (void)setHighlighted:(BOOL)highlighted {
    [super setHighlighted:highlighted];
    UIView *content = state(self).label ? state(self).label : static_cast<UIView *>(state(self).picture);
    [content setAlpha:highlighted ? kHighlightedAlpha : 1];
}

- (CGSize)sizeThatFits:(CGSize)size {
    UIView *content = state(self).label ? state(self).label : static_cast<UIView *>(state(self).picture);
    return {[content bounds].size.width, size.height};
}

- (void)layoutSubviews {
    [super layoutSubviews];
    UIView *content = state(self).label ? state(self).label : static_cast<UIView *>(state(self).picture);
    centre(content, ([self bounds].size.width - [content bounds].size.width) / 2, [self bounds]);
}

@end

namespace {

struct BackState {
    UILabel *label = nil; // retained
};

BackState &state(UINavigationItemButtonView *view) {
    return sim::lazyState<BackState>(view->_backButtonState);
}

} // namespace

@implementation UINavigationItemButtonView

- (instancetype)initWithTitle:(NSString *)title {
    if (!(self = [super initWithFrame:CGRectZero])) return nil;
    state(self).label = makeLabel(title);
    [self setOpaque:NO];
    [self addSubview:state(self).label];
    [self tintColorDidChange];
    return self;
}

- (void)dealloc {
    [state(self).label release];
    delete &state(self);
    [super dealloc];
}

- (NSString *)title {
    return [state(self).label text];
}

- (void)shorten {
    [state(self).label setText:[NSString stringWithUTF8String:sim::systemTexts().back]];
    [state(self).label sizeToFit];
}

- (void)tintColorDidChange {
    [super tintColorDidChange];
    [state(self).label setTextColor:[self tintColor]];
}

- (void)setHighlighted:(BOOL)highlighted {
    [super setHighlighted:highlighted];
    [self setAlpha:highlighted ? kHighlightedAlpha : 1];
}

- (CGSize)sizeThatFits:(CGSize)size {
    return {kTextAfterChevron + [state(self).label bounds].size.width, size.height};
}

- (void)layoutSubviews {
    [super layoutSubviews];
    UILabel *label = state(self).label;
    CGFloat room = [self bounds].size.width - kTextAfterChevron;
    CGRect frame = [label frame];
    frame.size.width = std::min([label sizeThatFits:CGSizeZero].width, std::max<CGFloat>(room, 0));
    [label setFrame:frame];
    centre(label, kTextAfterChevron, [self bounds]);
}

- (void)appendDrawingsTo:(render::Node &)node {
    using Verb = render::PathElement::Verb;
    constexpr double kStroke = 3;
    double middle = node.bounds.height / 2, half = kChevron.height / 2 - 1;
    double tip = kStroke / 2 + 0.5, right = tip + half;
    render::Path path{{{Verb::move, {{right, middle - half}}},
                       {Verb::line, {{tip, middle}}},
                       {Verb::line, {{right, middle + half}}}}};
    node.drawings.push_back(
        render::Shape{.path = path,
                      .fill = {},
                      .stroke = sim::flatColor(sim::object([[self tintColor] CGColor])->paint),
                      .strokeWidth = kStroke});
}

@end

@implementation UINavigationItemView

- (instancetype)initWithTitle:(NSString *)title {
    UILabel *label = makeLabel(title);
    if ((self = [super initWithFrame:[label bounds]])) {
        [self setUserInteractionEnabled:NO];
        [self setOpaque:NO];
        [label setFont:[UIFont boldSystemFontOfSize:kFontSize]];
        [label sizeToFit];
        [self setFrame:[label bounds]];
        [label setTextAlignment:NSTextAlignmentCenter];
        [label setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
        [self addSubview:label];
    }
    [label release];
    return self;
}

@end
