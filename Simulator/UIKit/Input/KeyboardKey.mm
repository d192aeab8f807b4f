#include "KeyboardKey.h"
#include "Keyboard.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"

namespace {

constexpr CGFloat kDigitSize = 28, kLettersSize = 10, kOtherSize = 22;

struct KeyState {
    NSString *text = nil; // retained
    bool pad = false, plain = false;
    UILabel *label = nil, *letters = nil; // retained by the key
};

KeyState &state(UIKeyboardKey *key) { return sim::lazyState<KeyState>(key->_keyState); }

UIColor *restingColor(const KeyState &key) {
    if (key.plain) return [UIColor colorWithRed:0.82 green:0.835 blue:0.86 alpha:1];
    bool grey = [key.text length] == 0 && !key.pad;
    return grey ? [UIColor colorWithRed:0.67 green:0.7 blue:0.75 alpha:1] : [UIColor whiteColor];
}

UILabel *makeLabel(UIKeyboardKey *key, NSString *text, CGFloat size) {
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    [label setFont:[UIFont fontWithName:size == kDigitSize ? @"HelveticaNeue-Light" : @"HelveticaNeue"
                                   size:size]];
    [label setTextAlignment:NSTextAlignmentCenter];
    [label setText:text];
    [key addSubview:label];
    return label;
}

} // namespace

namespace sim {

UIKeyboardKey *makeKey(const KeyLook &look, bool pad) {
    UIKeyboardKey *key = [[[UIKeyboardKey alloc] initWithFrame:CGRectZero] autorelease];
    auto &mine = ::state(key);
    mine.text = [[NSString stringWithUTF8String:look.text] copy];
    mine.pad = pad;
    mine.plain = pad && look.text[0] == 0;
    [key setBackgroundColor:restingColor(mine)];
    if (!pad) [[key layer] setCornerRadius:5];
    if (look.text[0]) mine.label = makeLabel(key, mine.text, pad ? kDigitSize : kOtherSize);
    if (pad && look.letters[0])
        mine.letters = makeLabel(key, [NSString stringWithUTF8String:look.letters], kLettersSize);
    [key addTarget:key action:@selector(type) forControlEvents:UIControlEventTouchUpInside];
    return key;
}

} // namespace sim

@implementation UIKeyboardKey

- (void)dealloc {
    [state(self).text release];
    delete &state(self);
    [super dealloc];
}

- (NSString *)title {
    return state(self).text;
}

- (void)type {
    if ([state(self).text length]) {
        sim::typeText(state(self).text);
    } else {
        sim::typeDelete();
    }
}

- (void)setHighlighted:(BOOL)highlighted {
    [super setHighlighted:highlighted];
    UIColor *pressed = state(self).plain ? [UIColor whiteColor] : [UIColor colorWithWhite:0.72 alpha:1];
    [self setBackgroundColor:highlighted ? pressed : restingColor(state(self))];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    auto &mine = state(self);
    CGRect bounds = [self bounds];
    CGFloat shift = mine.letters ? 5 : 0;
    [mine.label setFrame:CGRectOffset(bounds, 0, -shift)];
    [mine.letters setFrame:CGRectMake(0, CGRectGetMidY(bounds) + 8, bounds.size.width, 14)];
}

// The arrow with a cross that stands for deleting.
- (void)appendDrawingsTo:(render::Node &)node {
    using Verb = render::PathElement::Verb;
    if ([state(self).text length]) return;
    double x = node.bounds.width / 2 - 11.5, y = node.bounds.height / 2 - 8.5;
    auto at = [&](double dx, double dy) { return render::Point{x + dx, y + dy}; };
    render::Rgba black{0, 0, 0, 1};
    render::Path arrow{{{Verb::move, {at(0, 8.5)}},
                        {Verb::line, {at(7.5, 0.5)}},
                        {Verb::line, {at(22.5, 0.5)}},
                        {Verb::line, {at(22.5, 16.5)}},
                        {Verb::line, {at(7.5, 16.5)}},
                        {Verb::close, {}}}};
    render::Path cross{{{Verb::move, {at(10.5, 5)}},
                        {Verb::line, {at(17.5, 12)}},
                        {Verb::move, {at(17.5, 5)}},
                        {Verb::line, {at(10.5, 12)}}}};
    for (const auto &path : {arrow, cross})
        node.drawings.push_back(render::Shape{.path = path, .fill = {}, .stroke = black, .strokeWidth = 1.2});
}

@end
