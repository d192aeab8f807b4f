// One application on the strip.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

namespace pendix {

namespace {

NSString *const kClock = @"com.apple.mobiletimer";

constexpr CGFloat kMarkOrigin = 4;
constexpr CFTimeInterval kLongPress = 0.1; // seconds

UIImageView *addIcon(PanelBuild &build, const PanelApplication &application, UIView *itemView) {
    const CGFloat inset = cellInset(build.layout);
    SBIconImageView *source = [application.iconView _iconImageView];
    CGSize size = source.frame.size;
    CGRect frame = CGRectMake(0, 0, size.width - inset, size.height - inset);
    UIImageView *icon = [[[UIImageView alloc] initWithFrame:frame] autorelease];
    icon.tag = tags::itemIcon;
    icon.image = [source contentsImage];
    [itemView addSubview:icon];
    return icon;
}

void addName(PanelBuild &build, NSString *name, UIView *itemView, UIView *icon) {
    const Real step = cellFrame(build.layout, 1).x - cellFrame(build.layout, 0).x;
    UILabel *label = panelLabel(CGRectZero, name, build.names.font, build.scheme.ink);
    placeName(label, build.names, CGRectGetMaxY(icon.frame), itemView.frame.size.width, step);
    [itemView addSubview:label];
}

// Without size until editing begins.
void addCloseMark(PanelBuild &build, UIView *itemView) {
    UIImageView *mark = [[UIImageView alloc] initWithFrame:CGRectMake(kMarkOrigin, kMarkOrigin, 0, 0)];
    mark.tag = tags::closeMark;
    mark.image = build.closeImage;
    mark.tintColor = build.scheme.ink;
    mark.backgroundColor = build.scheme.paper;
    mark.layer.cornerRadius = panelBadgeHeight() / 2;
    mark.userInteractionEnabled = YES;
    UITapGestureRecognizer *tap = [[UITapGestureRecognizer alloc] initWithTarget:build.springBoard
                                                                          action:@selector(close:)];
    [mark addGestureRecognizer:tap];
    [tap release];
    [itemView addSubview:mark];
    [mark release];
}

void addSwipe(PanelBuild &build, UIView *itemView) {
    UIPanGestureRecognizer *pan = [[UIPanGestureRecognizer alloc] initWithTarget:build.springBoard
                                                                          action:@selector(swipeToClose:)];
    swipeController *delegate = [swipeController new];
    pan.delegate = delegate;
    // A recogniser does not retain its delegate; the item's layer keeps this one for as long as it lives.
    itemState::keepDelegate(itemView, delegate);
    [itemView addGestureRecognizer:pan];
    [delegate release];
    [pan release];
}

void addGestures(PanelBuild &build, UIView *itemView) {
    if (!build.closeMarks) addSwipe(build, itemView);
    UITapGestureRecognizer *tap = [[UITapGestureRecognizer alloc] initWithTarget:build.springBoard
                                                                          action:@selector(tapPressEvent:)];
    UILongPressGestureRecognizer *press =
        [[UILongPressGestureRecognizer alloc] initWithTarget:build.springBoard
                                                      action:@selector(longPressEvent:)];
    press.minimumPressDuration = kLongPress;
    [press requireGestureRecognizerToFail:tap];
    [itemView addGestureRecognizer:tap];
    [itemView addGestureRecognizer:press];
    [tap release];
    [press release];
}

} // namespace

void addItem(PanelBuild &build, const PanelApplication &application, int index) {
    CGRect frame = toCGRect(cellFrame(build.layout, index));
    frame.size.height += build.names.more;
    UIView *itemView = [[UIView alloc] initWithFrame:frame];
    itemView.layer.name = application.identifier;
    itemView.backgroundColor = [UIColor clearColor];
    itemView.userInteractionEnabled = YES;

    UIImageView *icon = addIcon(build, application, itemView);
    CGRect iconFrame = icon.frame;
    if (build.cards) makeCard(build, application, itemView, icon);
    addName(build, [application.application displayName], itemView, icon);
    addCloseMark(build, itemView);
    if ([application.identifier isEqualToString:kClock]) drawClock(itemView, icon);
    addGestures(build, itemView);
    addBadge(build, application, itemView, iconFrame);
    if (build.cards) [itemView bringSubviewToFront:[itemView viewWithTag:tags::itemCardIcon]];

    [build.strip addSubview:itemView];
    [itemView release];
}

UILabel *panelLabel(CGRect frame, NSString *text, UIFont *font, UIColor *ink) {
    UILabel *label = [[[UILabel alloc] initWithFrame:frame] autorelease];
    label.text = text;
    label.textAlignment = NSTextAlignmentCenter;
    label.font = font;
    label.textColor = ink;
    return label;
}

} // namespace pendix
