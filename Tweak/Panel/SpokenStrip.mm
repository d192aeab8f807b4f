// The strip for those who listen: a container of the items that are seen whole, and three fingers on it.
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/Accessibility/Wording.h"
#include "Tweak/Core/Geometry/StripPages.hpp"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/NewUIScrollView.h"
#include "Tweak/Panel/SpokenPanel.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

#include <UIKit/UIKit.h>

namespace {

pendix::StripExtent extentOf(UIScrollView *strip) {
    UIView *first = [pendix::itemViews() firstObject];
    return {.offset = static_cast<pendix::Real>(strip.contentOffset.x),
            .width = static_cast<pendix::Real>(strip.frame.size.width),
            .content = static_cast<pendix::Real>(strip.contentSize.width),
            .gap = static_cast<pendix::Real>(first.frame.origin.x),
            .paging = static_cast<bool>(strip.pagingEnabled)};
}

// From left to right, or the text that says that there is nothing.
NSArray *spokenParts(UIScrollView *strip) {
    NSMutableArray *parts = [NSMutableArray array];
    const auto extent = extentOf(strip);
    for (UIView *view in strip.subviews) {
        const CGRect frame = view.frame;
        if ([view isKindOfClass:[UILabel class]]) [parts addObject:view];
        if ([view.layer.name length] == 0 || pendix::itemState::isClosing(view)) continue;
        if (isSeen(extent, frame.origin.x, frame.size.width)) [parts addObject:view];
    }
    return parts;
}

BOOL isFocused(UIView *item) { return [pendix::elementOf(item) accessibilityElementIsFocused]; }

} // namespace

@implementation NewUIScrollView (Spoken)

// Behind a face or a question.
- (BOOL)accessibilityElementsHidden {
    return self.alpha == 0 || !self.userInteractionEnabled;
}

- (NSArray *)spokenElements {
    NSMutableArray *elements = [NSMutableArray array];
    if (self.accessibilityElementsHidden) return elements;
    for (UIView *part in spokenParts(self))
        [elements addObject:[part.layer.name length] ? pendix::elementOf(part) : part];
    return elements;
}

// Asked first, so that the elements have their texts when they are looked at.
- (NSInteger)accessibilityElementCount {
    if (!self.accessibilityElementsHidden)
        for (UIView *part in spokenParts(self))
            if ([part.layer.name length]) pendix::describe(part);
    return static_cast<NSInteger>([[self spokenElements] count]);
}

- (id)accessibilityElementAtIndex:(NSInteger)index {
    NSArray *elements = [self spokenElements];
    const NSUInteger place = static_cast<NSUInteger>(index);
    return place < [elements count] ? [elements objectAtIndex:place] : nil;
}

- (NSInteger)indexOfAccessibilityElement:(id)element {
    return static_cast<NSInteger>([[self spokenElements] indexOfObject:element]);
}

// Left and right turn the pages; up and down take the application off that has the focus, like a swipe, on
// every version.
- (BOOL)accessibilityScroll:(UIAccessibilityScrollDirection)direction {
    const auto extent = extentOf(self);
    switch (direction) {
    case UIAccessibilityScrollDirectionLeft:
    case UIAccessibilityScrollDirectionNext:
        return [self scrollTo:nextPage(extent)];
    case UIAccessibilityScrollDirectionRight:
    case UIAccessibilityScrollDirectionPrevious:
        return [self scrollTo:previousPage(extent)];
    default:
        return [self takeOffFocused];
    }
}

- (BOOL)scrollTo:(CGFloat)x {
    if (x == self.contentOffset.x) return NO;
    self.contentOffset = CGPointMake(x, 0);
    [self contentDidChange];
    const pendix::StripPage page = stripPage(extentOf(self));
    pendix::announcePage(pendix::filledIn(pendix::Translator(@"spoken_page"), pendix::digits(page.number),
                                          pendix::digits(page.count)));
    return YES;
}

- (BOOL)takeOffFocused {
    for (UIView *item in pendix::itemViews()) {
        if (!isFocused(item)) continue;
        [pendix::Spring closeIcon:item];
        return YES;
    }
    return NO;
}

@end
