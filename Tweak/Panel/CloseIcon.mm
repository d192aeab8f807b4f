// Taking one application off the panel: it collapses, the others close up, and it is quit or its badge is
// cleared.
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/Applications.h"
#include "Tweak/Core/Geometry/StripClosing.hpp"
#include "Tweak/Core/Geometry/StripLayout.hpp"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Scheme.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Panel/CloseMarks.h"
#include "Tweak/Panel/Drags.h"
#include "Tweak/Panel/ItemCollapse.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/NewUIScrollView.h"
#include "Tweak/Panel/PanelBuild.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpokenPanel.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

constexpr float kStep = 0.3f;     // seconds; collapsing, closing up and the empty text
constexpr float kMarkFade = 0.5f; // seconds

// The place on the strip that the item leaves free: a drag took it above or below.
Rect restingFrame(UIView *item) {
    Rect frame = toRect(item.frame);
    frame.y = itemState::restingY(item);
    return frame;
}

std::vector<Rect> restingFrames(NSArray *items) {
    std::vector<Rect> result;
    for (UIView *item in items) result.push_back(restingFrame(item));
    return result;
}

// One that a finger holds above or below its place stays so.
void moveTo(UIView *item, const Rect &place) {
    CGRect frame = toCGRect(place);
    frame.origin.y += item.frame.origin.y - restingFrame(item).y;
    item.frame = frame;
}

void closeUp(const Rect &removed, int index, int rows) {
    NSArray *items = itemViews();
    std::vector<Rect> moved =
        framesAfterClosing(restingFrames(items), removed, index, strip().frame.size.width, rows);
    for (NSUInteger i = 0; i < [items count]; ++i) moveTo([items objectAtIndex:i], moved[i]);
}

void updateDots() {
    UIView *dots = pageDotsView();
    for (UIView *dot in dots.subviews)
        if (dot.tag >= pages) [dot removeFromSuperview];
    if (pages != 0) placeDots(dots, dots.superview.frame.size.width);
}

void updateContent(int rows) {
    BOOL paging = isOn(keys::paging);
    NewUIScrollView *scroller = (NewUIScrollView *)strip();
    std::vector<Rect> cells = restingFrames(itemViews());
    pages = paging ? pageCount(static_cast<int>(cells.size()), rows) : 0;
    if (paging) updateDots();
    CGSize size = scroller.contentSize;
    size.width = contentWidthAfterClosing(cells, paging, rows, scroller.frame.size.width);
    scroller.contentSize = size;
    [scroller contentDidChange];
}

void clearBadge(NSString *identifier) {
    [applicationOf(identifier) setBadge:nil];
    [[UIApplication sharedApplication] cancelAllLocalNotifications];
    UIView *mark = subviewWithTag(iconViewOf(identifier), tags::iconMark);
    [UIView animateWithDuration:animationDuration(kMarkFade) animations:^{ mark.alpha = 1.0; }];
}

BOOL anyStays() {
    for (UIView *item in itemViews())
        if (!itemState::isClosing(item)) return YES;
    return NO;
}

BOOL hasEmptyText() {
    for (UIView *view in strip().subviews)
        if ([view isKindOfClass:[UILabel class]]) return YES;
    return NO;
}

void showEmptyText(BOOL running) {
    if (!strip() || [itemViews() count] != 0 || hasEmptyText()) return;
    UILabel *label = addEmptyText(strip(), running, currentScheme().ink);
    indicatorFollowsBadges(readSettings());
    label.alpha = 0;
    [UIView animateWithDuration:animationDuration(kStep) animations:^{ label.alpha = 1.0; }];
}

void finishClosing(NSString *identifier, int rows) {
    updateContent(rows);
    BOOL running = isOn(keys::runningMode);
    if (!running) {
        clearBadge(identifier);
    } else if (!okay) {
        quit(identifier);
    }
    if (running) okay = NO;
    showEmptyText(running);
}

void removeFromStrip(UIView *item, NSString *identifier) {
    const int rows = numberOfRows();
    if (item.superview != strip()) {
        // The panel went meanwhile; what was asked for is done all the same.
        finishClosing(identifier, rows);
        return;
    }
    // Its place now, not when it was asked for: another that went meanwhile may have moved it.
    const Rect removed = restingFrame(item);
    const int index = static_cast<int>([itemViews() indexOfObject:item]);
    item.frame = CGRectMake(removed.x, removed.y, 0, 0);
    [item removeFromSuperview];
    [UIView animateWithDuration:animationDuration(kStep)
        animations:^{ closeUp(removed, index, rows); }
        completion:^(BOOL) {
            finishClosing(identifier, rows);
            focusNear(removed.x);
        }];
}

} // namespace

void added::closeIcon(SpringBoard *, SEL, UIView *item) {
    endDrag(item);
    if (!item.superview || itemState::isClosing(item)) return;
    itemState::setClosing(item);
    if (!anyStays()) isEditing = NO;
    NSString *identifier = [[item.layer.name copy] autorelease];
    // Quitting is not reading: a badge that is still there stays listed.
    if (!carriesBadge(identifier) || !isOn(keys::runningMode)) [datas removeObject:identifier];
    separateShadow(item);
    [UIView animateWithDuration:animationDuration(kStep)
        animations:^{ shrinkToCentre(item); }
        completion:^(BOOL) { removeFromStrip(item, identifier); }];
}

void added::close(SpringBoard *self, SEL, UITapGestureRecognizer *recognizer) {
    if (isShow) [self closeIcon:recognizer.view.superview];
}

} // namespace pendix
