#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Pixels.hpp"
#include "UIKit/Accessibility/DefaultSpeech.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UISegmentedControl+Further.h"

#include <UIKit/UIDevice.h>
#include <UIKit/UISegmentedControl.h>
#include <UIKit/UITouch.h>

#include <algorithm>
#include <cmath>
#include <vector>

@interface UISegment : UIView {
@public
    UILabel *_label; // retained by the segment
}
@end

@implementation UISegment

- (sim::Speech)defaultSpeech {
    auto *control = static_cast<UISegmentedControl *>([self superview]);
    auto segments = sim::subviews(control);
    auto place = std::find(segments.begin(), segments.end(), self) - segments.begin();
    UIAccessibilityTraits traits = UIAccessibilityTraitButton;
    if (place == [control selectedSegmentIndex]) traits |= UIAccessibilityTraitSelected;
    if (![control isEnabled]) traits |= UIAccessibilityTraitNotEnabled;
    return {.element = YES, .label = [_label text], .traits = traits};
}

@end

namespace {

constexpr CGFloat kHeight = 29, kRadius = 4, kFontSize = 13, kPadding = 10;

struct SegmentedState {
    std::vector<UISegment *> segments; // retained by the control
    NSInteger selected = UISegmentedControlNoSegment;
    NSInteger pressed = UISegmentedControlNoSegment;
};

SegmentedState &state(UISegmentedControl *control) {
    return sim::lazyState<SegmentedState>(control->_segmentedControlState);
}

void refresh(UISegmentedControl *control) {
    auto &mine = state(control);
    UIColor *tint = [control tintColor];
    [[control layer] setBorderColor:[tint CGColor]];
    for (size_t i = 0; i < mine.segments.size(); ++i) {
        bool selected = static_cast<NSInteger>(i) == mine.selected;
        bool pressed = static_cast<NSInteger>(i) == mine.pressed && !selected;
        UISegment *segment = mine.segments[i];
        [segment setBackgroundColor:selected ? tint : pressed ? [tint colorWithAlphaComponent:0.15] : nil];
        [segment->_label setTextColor:selected ? [UIColor whiteColor] : tint];
        [[segment layer] setBorderColor:[tint CGColor]];
    }
}

NSInteger segmentAt(UISegmentedControl *control, CGPoint point) {
    auto count = static_cast<NSInteger>(state(control).segments.size());
    CGFloat width = [control bounds].size.width;
    if (count == 0 || width <= 0) return UISegmentedControlNoSegment;
    auto index = static_cast<NSInteger>(std::floor(point.x / width * static_cast<CGFloat>(count)));
    return std::clamp<NSInteger>(index, 0, count - 1);
}

} // namespace

@implementation UISegmentedControl

- (instancetype)initWithItems:(NSArray *)items {
    if (!(self = [self initWithFrame:CGRectZero])) return nil;
    [self setOpaque:NO];
    [self setClipsToBounds:YES];
    [[self layer] setCornerRadius:kRadius];
    [[self layer] setBorderWidth:1];
    for (NSString *title in items) {
        UISegment *segment = [[[UISegment alloc] initWithFrame:CGRectZero] autorelease];
        [segment setUserInteractionEnabled:NO];
        UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
        [label setFont:[UIFont systemFontOfSize:kFontSize]];
        [label setTextAlignment:NSTextAlignmentCenter];
        [label setText:title];
        [segment addSubview:label];
        segment->_label = label;
        [self addSubview:segment];
        state(self).segments.push_back(segment);
    }
    [self sizeToFit];
    refresh(self);
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (NSUInteger)numberOfSegments {
    return state(self).segments.size();
}
- (NSString *)titleForSegmentAtIndex:(NSUInteger)index {
    auto &segments = state(self).segments;
    return index < segments.size() ? [segments[index]->_label text] : nil;
}

- (NSInteger)selectedSegmentIndex {
    return state(self).selected;
}
- (void)setSelectedSegmentIndex:(NSInteger)index {
    bool exists = index >= 0 && index < static_cast<NSInteger>(state(self).segments.size());
    state(self).selected = exists ? index : static_cast<NSInteger>(UISegmentedControlNoSegment);
    refresh(self);
}

- (CGSize)sizeThatFits:(CGSize)size {
    CGFloat widest = 0;
    for (UISegment *segment : state(self).segments)
        widest = std::max(widest, [segment->_label sizeThatFits:CGSizeZero].width);
    return {(widest + 2 * kPadding) * static_cast<CGFloat>(state(self).segments.size()), kHeight};
}

- (void)layoutSubviews {
    [super layoutSubviews];
    auto &segments = state(self).segments;
    CGSize size = [self bounds].size;
    CGFloat scale = [self contentScaleFactor], each = size.width / static_cast<CGFloat>(segments.size());
    auto edge = [&](size_t i) { return sim::wholePixels(each * static_cast<CGFloat>(i), scale); };
    for (size_t i = 0; i < segments.size(); ++i) {
        [segments[i] setFrame:CGRectMake(edge(i), 0, edge(i + 1) - edge(i), size.height)];
        [segments[i]->_label setFrame:[segments[i] bounds]];
    }
}

// The lines between segments.
- (void)appendDrawingsTo:(render::Node &)node {
    auto count = state(self).segments.size();
    render::Rgba tint = sim::flatColor(sim::object([[self tintColor] CGColor])->paint);
    for (size_t i = 1; i < count; ++i)
        node.drawings.push_back(render::Shape{
            .path = render::Path::rect(
                {std::round(node.bounds.width * double(i) / double(count)) - 0.5, 0, 1, node.bounds.height}),
            .fill = tint,
            .stroke = {}});
}

- (void)tintColorDidChange {
    [super tintColorDidChange];
    refresh(self);
}

- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    state(self).pressed = segmentAt(self, [touch locationInView:self]);
    refresh(self);
    return YES;
}

- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    NSInteger pressed = state(self).pressed, lifted = segmentAt(self, [touch locationInView:self]);
    state(self).pressed = UISegmentedControlNoSegment;
    bool changes = pressed == lifted && pressed != state(self).selected;
    if (changes) state(self).selected = pressed;
    refresh(self);
    if (changes) [self sendActionsForControlEvents:UIControlEventValueChanged];
}

- (void)cancelTrackingWithEvent:(UIEvent *)event {
    state(self).pressed = UISegmentedControlNoSegment;
    refresh(self);
}

@end
