#include "FontState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/CoreGraphics/CGObjects.h"
#include "UIKit/Views/UIView+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UILabel+Further.h"

#include <UIKit/UILabel.h>
#include <UIKit/UIScreen.h>

#include <algorithm>
#include <cmath>

namespace {

struct LabelState {
    NSString *text = nil;
    UIFont *font = nil;
    UIColor *color = nil;
    NSTextAlignment alignment = NSTextAlignmentLeft;
    NSLineBreakMode lineBreak = NSLineBreakByTruncatingTail;
    NSInteger lines = 1;
    BOOL shrinks = NO;
};

LabelState &state(UILabel *label) {
    return sim::lazyState<LabelState>(label->_labelState, [] {
        constexpr CGFloat kDefaultSize = 17;
        return new LabelState{.font = [[UIFont systemFontOfSize:kDefaultSize] retain],
                              .color = [[UIColor blackColor] retain]};
    });
}

render::TextStyle style(const LabelState &label) {
    auto result = sim::textStyle(label.font);
    result.alignment = static_cast<render::Alignment>(label.alignment);
    result.lineBreak = static_cast<render::LineBreak>(label.lineBreak);
    result.maxLines = static_cast<int>(label.lines);
    return result;
}

// Short plain texts, as most are, without the detour through a buffer of Foundation's.
std::string utf8(NSString *text) {
    constexpr NSUInteger kShort = 64;
    unichar characters[kShort];
    NSUInteger length = [text length];
    if (length > kShort) return [text UTF8String];
    [text getCharacters:characters range:NSMakeRange(0, length)];
    auto isPlain = [](unichar character) { return character > 0 && character < 0x80; };
    if (!std::all_of(characters, characters + length, isPlain)) return [text UTF8String];
    return std::string(characters, characters + length);
}

CGFloat pixelCeil(CGFloat points, CGFloat scale) { return std::ceil(points * scale) / scale; }

} // namespace

@implementation UILabel

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    [self setUserInteractionEnabled:NO];
    [self setContentScaleFactor:[[UIScreen mainScreen] scale]];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    [state(self).text release];
    [state(self).font release];
    [state(self).color release];
    delete &state(self);
    [super dealloc];
}

- (NSString *)text {
    return state(self).text;
}
- (void)setText:(NSString *)text {
    sim::copyInto(state(self).text, text);
}

- (UIFont *)font {
    return state(self).font;
}
- (void)setFont:(UIFont *)font {
    if (!font) return;
    sim::retainInto(state(self).font, font);
}

- (UIColor *)textColor {
    return state(self).color;
}
- (void)setTextColor:(UIColor *)color {
    UIColor *next = [(color ? color : [UIColor blackColor]) retain];
    [state(self).color release];
    state(self).color = next;
}

- (NSTextAlignment)textAlignment {
    return state(self).alignment;
}
- (void)setTextAlignment:(NSTextAlignment)alignment {
    state(self).alignment = alignment;
}

- (NSLineBreakMode)lineBreakMode {
    return state(self).lineBreak;
}
- (void)setLineBreakMode:(NSLineBreakMode)mode {
    state(self).lineBreak = mode;
}

- (NSInteger)numberOfLines {
    return state(self).lines;
}
- (void)setNumberOfLines:(NSInteger)lines {
    state(self).lines = lines;
}

- (BOOL)adjustsFontSizeToFitWidth {
    return state(self).shrinks;
}
- (void)setAdjustsFontSizeToFitWidth:(BOOL)adjusts {
    state(self).shrinks = adjusts;
}

- (CGSize)sizeThatFits:(CGSize)size {
    const auto &mine = state(self);
    if ([mine.text length] == 0) return CGSizeZero;
    CGFloat width = mine.lines == 1 ? 0 : size.width;
    render::Size text = render::measureText(utf8(mine.text), style(mine), width);
    CGFloat scale = [self contentScaleFactor];
    return {pixelCeil(text.width, scale), pixelCeil(text.height, scale)};
}

- (void)appendDrawingsTo:(render::Node &)node {
    const auto &mine = state(self);
    if ([mine.text length] == 0) return;
    render::TextRun run{
        .text = utf8(mine.text), .style = style(mine), .color = {}, .pattern = {}, .box = node.bounds};
    // Text of several lines breaks instead.
    if (mine.shrinks && mine.lines == 1) {
        CGFloat width = render::measureText(run.text, run.style, 0).width;
        if (width > node.bounds.width && width > 0) run.style.size *= node.bounds.width / width;
    }
    const auto &paint = sim::object([mine.color CGColor])->paint;
    run.color = sim::flatColor(paint);
    if (auto *pattern = std::get_if<render::Pattern>(&paint)) run.pattern = *pattern;
    node.drawings.push_back(std::move(run));
}

@end
