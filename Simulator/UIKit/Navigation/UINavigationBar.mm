#include "NavigationState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Pixels.hpp"
#include "UIKit/Text/SystemTexts.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UINavigationController+Further.h"

#include <UIKit/UIApplication.h>
#include <UIKit/UIBackdropView.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr double kSeconds = 0.35;
constexpr CGFloat kNarrowestBack = 60;
constexpr CGFloat kBackMargin = 8, kButtonMargin = 16, kGap = 6;

// What one item puts into the bar.
struct Content {
    UIView *back = nil, *left = nil, *title = nil, *right = nil; // retained by the bar as subviews
    std::vector<UIView *> all() const {
        std::vector<UIView *> result;
        for (UIView *view : {back, left, title, right})
            if (view) result.push_back(view);
        return result;
    }
};

struct BarState {
    UINavigationItem *item = nil, *backItem = nil; // retained
    Content content;
    bool stale = false;              // the content is no longer what the items say
    CGFloat contentWidth = 0;        // for which it was made
    _UIBackdropView *material = nil; // retained by the bar, as the next
    UIView *hairline = nil;
    UIColor *barTint = nil; // retained
    bool translucent = true;
    id target = nil; // not retained
    SEL action = nullptr;
};

BarState &state(UINavigationBar *bar) { return sim::lazyState<BarState>(bar->_navigationBarState); }

_UIBackdropViewSettings *lightMaterial() {
    _UIBackdropViewSettings *settings =
        [_UIBackdropViewSettings settingsForStyle:_UIBackdropViewStyleAdaptiveLight];
    [settings setColorTint:[UIColor colorWithWhite:0.97 alpha:1]];
    [settings setColorTintAlpha:0.82];
    return settings;
}

void place(UIView *view, CGFloat x, CGFloat width, CGRect row) {
    [view setFrame:CGRectMake(x, row.origin.y, width, row.size.height)];
    [view layoutIfNeeded];
}

CGFloat widthOf(UIView *view, CGRect row) { return view ? [view sizeThatFits:row.size].width : 0; }

// In the middle of the bar, or as near to it as the buttons let it.
void placeTitle(UIView *title, CGFloat from, CGFloat to, CGRect row) {
    CGSize size = [title bounds].size;
    CGFloat scale = [title contentScaleFactor];
    size.width = std::min(size.width, std::max<CGFloat>(to - from, 0));
    CGFloat x = std::clamp((row.size.width - size.width) / 2, from, std::max(from, to - size.width));
    CGFloat y = row.origin.y + (row.size.height - size.height) / 2;
    [title setFrame:{{sim::wholePixels(x, scale), sim::wholePixels(y, scale)}, size}];
}

void layOut(const Content &content, CGRect row) {
    CGFloat from = kButtonMargin, to = row.size.width - kButtonMargin;
    if (content.right) {
        CGFloat width = widthOf(content.right, row);
        place(content.right, to - width, width, row);
        to -= width + kGap;
    }
    if (content.left) {
        CGFloat width = widthOf(content.left, row);
        place(content.left, from, width, row);
        from += width + kGap;
    } else if (content.back) {
        // The title gives way to the side for it. What does not fit even so has a shorter name.
        CGFloat title = content.title ? [content.title bounds].size.width : 0;
        CGFloat room = std::max<CGFloat>(to - title - kGap - kBackMargin, 0);
        if (widthOf(content.back, row) > room)
            [static_cast<UINavigationItemButtonView *>(content.back) shorten];
        CGFloat width = std::min(widthOf(content.back, row), std::max(room, kNarrowestBack));
        place(content.back, kBackMargin, width, row);
        from = kBackMargin + width + kGap;
    }
    if (content.title) placeTitle(content.title, from, to, row);
}

NSString *backTitle(UINavigationItem *item) {
    if (NSString *own = [[item backBarButtonItem] title]) return own;
    return [[item title] length] ? [item title] : [NSString stringWithUTF8String:sim::systemTexts().back];
}

Content makeContent(UINavigationBar *bar) {
    auto &mine = state(bar);
    Content content;
    UINavigationItem *item = mine.item;
    if (mine.backItem && ![item hidesBackButton] && ![item leftBarButtonItem]) {
        auto *back =
            [[[UINavigationItemButtonView alloc] initWithTitle:backTitle(mine.backItem)] autorelease];
        [back addTarget:mine.target action:mine.action forControlEvents:UIControlEventTouchUpInside];
        content.back = back;
    }
    for (auto [slot, button] : {std::pair(&content.left, [item leftBarButtonItem]),
                                std::pair(&content.right, [item rightBarButtonItem])})
        if (button) *slot = [[[UINavigationButton alloc] initWithBarButtonItem:button] autorelease];
    if ([item titleView]) {
        content.title = [item titleView];
    } else if ([[item title] length]) {
        content.title = [[[UINavigationItemView alloc] initWithTitle:[item title]] autorelease];
    }
    for (UIView *view : content.all()) [bar addSubview:view];
    return content;
}

void removeContent(const Content &content) {
    for (UIView *view : content.all()) [view removeFromSuperview];
}

// The old content leaves and the new comes in from the other side, both fading.
void exchange(UINavigationBar *bar, const Content &old, const Content &fresh, int direction) {
    CGFloat way = [bar bounds].size.width / 2 * direction;
    std::vector<UIView *> leaving = old.all(), coming = fresh.all();
    std::erase_if(leaving, [&](UIView *view) { return std::count(coming.begin(), coming.end(), view); });
    for (UIView *view : coming) {
        CGRect frame = [view frame];
        [view setAlpha:0];
        [view setFrame:CGRectOffset(frame, view == fresh.title ? way : 0, 0)];
        [UIView animateWithDuration:kSeconds
                         animations:^{
                             [view setAlpha:1];
                             [view setFrame:frame];
                         }];
    }
    for (UIView *view : leaving) {
        [view setUserInteractionEnabled:NO];
        [UIView animateWithDuration:kSeconds
            animations:^{
                [view setAlpha:0];
                if (view == old.title) [view setFrame:CGRectOffset([view frame], -way, 0)];
            }
            completion:^(BOOL) {
                [view setAlpha:1];
                [view setUserInteractionEnabled:YES];
                // A title view may have come back in the meantime.
                std::vector<UIView *> shown = state(bar).content.all();
                if (!std::count(shown.begin(), shown.end(), view)) [view removeFromSuperview];
            }];
    }
}

} // namespace

namespace sim {

CGFloat navigationBarHeight() {
    UIInterfaceOrientation orientation = [[UIApplication sharedApplication] statusBarOrientation];
    bool landscape = orientation == UIInterfaceOrientationLandscapeLeft ||
                     orientation == UIInterfaceOrientationLandscapeRight;
    return landscape && !device().pad ? 32 : 44;
}

} // namespace sim

@implementation UINavigationBar

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    auto &mine = state(self);
    mine.material = [[[_UIBackdropView alloc] initWithFrame:[self bounds]
                                    autosizesToFitSuperview:NO
                                                   settings:lightMaterial()] autorelease];
    [mine.material setUserInteractionEnabled:NO];
    [self addSubview:mine.material];
    mine.hairline = [[UIView new] autorelease];
    [mine.hairline setBackgroundColor:[UIColor colorWithWhite:0 alpha:0.3]];
    [self addSubview:mine.hairline];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    sim::setBar(mine.item, nil);
    [mine.item release];
    [mine.backItem release];
    [mine.barTint release];
    delete &mine;
    _navigationBarState = nullptr;
    [super dealloc];
}

- (UINavigationItem *)topItem {
    return state(self).item;
}
- (UINavigationItem *)backItem {
    return state(self).backItem;
}

- (BOOL)isTranslucent {
    return state(self).translucent;
}
- (void)setTranslucent:(BOOL)translucent {
    state(self).translucent = translucent;
    [state(self).material setBackgroundColor:translucent ? nil : [UIColor colorWithWhite:0.97 alpha:1]];
}

- (UIColor *)barTintColor {
    return state(self).barTint;
}
- (void)setBarTintColor:(UIColor *)color {
    sim::retainInto(state(self).barTint, color);
    [state(self).material setBackgroundColor:[color colorWithAlphaComponent:0.85]];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    auto &mine = state(self);
    CGRect bounds = [self bounds];
    CGFloat hair = 1 / sim::device().scale;
    [mine.hairline setFrame:CGRectMake(0, bounds.size.height - hair, bounds.size.width, hair)];
    // A title that had to be shortened may have room now.
    if (std::exchange(mine.contentWidth, bounds.size.width) != bounds.size.width) mine.stale = true;
    if (std::exchange(mine.stale, false)) {
        removeContent(mine.content);
        mine.content = makeContent(self);
    }
    layOut(mine.content, bounds);
}

// What lies behind the bar reaches up behind the status bar.
- (void)setFrame:(CGRect)frame {
    [super setFrame:frame];
    [state(self).material
        setFrame:CGRectMake(0, -frame.origin.y, frame.size.width, frame.origin.y + frame.size.height)];
}

@end

@implementation UINavigationBar (Simulator)

- (void)itemHasChanged {
    state(self).stale = true;
    [self setNeedsLayout];
}

- (void)setBackTarget:(id)target action:(SEL)action {
    state(self).target = target;
    state(self).action = action;
}

- (void)showItem:(UINavigationItem *)item back:(UINavigationItem *)back direction:(int)direction {
    auto &mine = state(self);
    Content old = mine.content;
    sim::setBar(mine.item, nil);
    [item retain];
    [back retain];
    [mine.item release];
    [mine.backItem release];
    mine.item = item;
    mine.backItem = back;
    sim::setBar(item, self);
    bool animated = direction != 0 && [self window];
    if (!animated) return [self itemHasChanged];
    mine.content = {};
    mine.stale = true;
    [UIView performWithoutAnimation:^{ [self layoutIfNeeded]; }];
    exchange(self, old, mine.content, direction);
}

@end
