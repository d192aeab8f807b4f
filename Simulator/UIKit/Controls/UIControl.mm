#include "Runtime/Objc/LazyState.hpp"
#include "UIControl+Further.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIControl.h>
#include <UIKit/UITouch.h>

#include <utility>
#include <vector>

namespace {

// A finger that came down on a control may stray this far outside before it counts as outside.
constexpr CGFloat kSlop = 70;

struct Row {
    id target; // not retained; nil: whoever in the responder chain answers
    SEL action;
    UIControlEvents events;
};

struct ControlState {
    bool enabled = true, highlighted = false, selected = false;
    bool tracking = false, inside = false;
    std::vector<Row> rows;
};

ControlState &controlState(UIControl *control) {
    return sim::lazyState<ControlState>(control->_controlState);
}

void setFlag(UIControl *control, bool ControlState::*flag, bool value) {
    if (std::exchange(controlState(control).*flag, value) != value) [control setNeedsLayout];
}

// A row that stands for several of the events is sent once.
void send(UIControl *control, UIControlEvents events, UIEvent *event) {
    [[control retain] autorelease];
    for (const Row &row : std::vector(controlState(control).rows))
        if (row.events & events) [control sendAction:row.action to:row.target forEvent:event];
}

void setInside(UIControl *control, bool inside) {
    controlState(control).inside = inside;
    [control setHighlighted:inside];
}

} // namespace

@implementation UIControl

- (void)dealloc {
    delete &controlState(self);
    _controlState = nullptr;
    [super dealloc];
}

- (BOOL)isEnabled {
    return controlState(self).enabled;
}
- (void)setEnabled:(BOOL)enabled {
    setFlag(self, &ControlState::enabled, enabled);
    if (!enabled && controlState(self).tracking) [self stopTrackingWithEvent:nil];
}

- (BOOL)isHighlighted {
    return controlState(self).highlighted;
}
- (void)setHighlighted:(BOOL)highlighted {
    setFlag(self, &ControlState::highlighted, highlighted);
}

- (BOOL)isSelected {
    return controlState(self).selected;
}
- (void)setSelected:(BOOL)selected {
    setFlag(self, &ControlState::selected, selected);
}

- (BOOL)isTracking {
    return controlState(self).tracking;
}
- (BOOL)isTouchInside {
    return controlState(self).inside;
}

- (UIControlState)state {
    UIControlState result = UIControlStateNormal;
    if ([self isHighlighted]) result |= UIControlStateHighlighted;
    if (![self isEnabled]) result |= UIControlStateDisabled;
    if ([self isSelected]) result |= UIControlStateSelected;
    return result;
}

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
    if (!action) return;
    for (Row &row : controlState(self).rows) {
        if (row.target != target || !sel_isEqual(row.action, action)) continue;
        row.events |= events;
        return;
    }
    controlState(self).rows.push_back({target, action, events});
}

- (void)removeTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
    auto &rows = controlState(self).rows;
    for (Row &row : rows)
        if ((!target || row.target == target) && (!action || sel_isEqual(row.action, action)))
            row.events &= ~events;
    std::erase_if(rows, [](const Row &row) { return row.events == 0; });
}

- (void)sendActionsForControlEvents:(UIControlEvents)events {
    send(self, events, nil);
}

- (void)sendAction:(SEL)action to:(id)target forEvent:(UIEvent *)event {
    id receiver = target;
    for (UIResponder *next = self; !receiver && next; next = [next nextResponder])
        if ([next respondsToSelector:action]) receiver = next;
    [receiver performSelector:action withObject:self withObject:event];
}

- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    return YES;
}
- (BOOL)continueTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    return YES;
}
- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
}
- (void)cancelTrackingWithEvent:(UIEvent *)event {
}

- (void)stopTrackingWithEvent:(UIEvent *)event {
    controlState(self).tracking = false;
    setInside(self, false);
    [self cancelTrackingWithEvent:event];
    send(self, UIControlEventTouchCancel, event);
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    UITouch *touch = [touches anyObject];
    if (![self isEnabled] || [self isTracking]) return;
    setInside(self, true);
    bool tracks = [self beginTrackingWithTouch:touch withEvent:event];
    controlState(self).tracking = tracks;
    if (!tracks) return setInside(self, false);
    UIControlEvents events = UIControlEventTouchDown;
    if ([touch tapCount] > 1) events |= UIControlEventTouchDownRepeat;
    send(self, events, event);
}

- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    UITouch *touch = [touches anyObject];
    if (![self isTracking]) return;
    bool inside =
        CGRectContainsPoint(CGRectInset([self bounds], -kSlop, -kSlop), [touch locationInView:self]);
    bool was = [self isTouchInside];
    setInside(self, inside);
    if (![self continueTrackingWithTouch:touch withEvent:event]) {
        controlState(self).tracking = false;
        return setInside(self, false);
    }
    UIControlEvents events = inside ? UIControlEventTouchDragInside : UIControlEventTouchDragOutside;
    if (inside != was) events |= inside ? UIControlEventTouchDragEnter : UIControlEventTouchDragExit;
    send(self, events, event);
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    if (![self isTracking]) return;
    bool inside = [self isTouchInside];
    controlState(self).tracking = false;
    setInside(self, false);
    [self endTrackingWithTouch:[touches anyObject] withEvent:event];
    send(self, inside ? UIControlEventTouchUpInside : UIControlEventTouchUpOutside, event);
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    if ([self isTracking]) [self stopTrackingWithEvent:event];
}

@end
