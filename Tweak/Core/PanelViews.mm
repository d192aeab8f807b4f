#include "Tweak/Core/PanelViews.h"

#include "Tweak/Core/Geometry/BadgeLayout.hpp"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"

namespace pendix {

namespace {

void letGo(UIView *view) {
    if ([view isKindOfClass:[UIControl class]])
        [(UIControl *)view removeTarget:nil action:nullptr forControlEvents:UIControlEventTouchUpInside];
}

} // namespace

UIView *subviewWithTag(UIView *parent, NSInteger tag) {
    for (UIView *view in parent.subviews)
        if (view.tag == tag) return view;
    return nil;
}

UIView *overlayView(NSInteger tag) { return subviewWithTag(window, tag); }
UIView *panelView() { return overlayView(tags::panel); }
UIView *contentView() { return subviewWithTag(panelView(), tags::content); }
UIView *pageDotsView() { return subviewWithTag(contentView(), tags::pageDots); }

UIScrollView *strip() {
    for (UIView *view in contentView().subviews)
        if ([view isKindOfClass:[UIScrollView class]]) return (UIScrollView *)view;
    return nil;
}

NSArray *itemViews() {
    NSMutableArray *items = [NSMutableArray array];
    for (UIView *view in strip().subviews)
        if ([view.layer.name length] != 0) [items addObject:view];
    return items;
}

CGFloat panelBadgeHeight() { return badgeHeightOr(badgeHeight); }

void letGoOfButtons(UIView *view) {
    letGo(view);
    for (UIView *part in view.subviews) letGo(part);
}

void setHeight(UIView *view, CGFloat height) {
    CGRect frame = view.frame;
    frame.size.height = height;
    view.frame = frame;
}

void setY(UIView *view, CGFloat y) {
    CGRect frame = view.frame;
    frame.origin.y = y;
    view.frame = frame;
}

} // namespace pendix
