// What an interface tells those who do not see it, or see it otherwise: the informal protocol of elements,
// the notifications, and what the user has set. The names from 8.0 must be asked for: methods by
// respondsToSelector:, functions and constants by dlsym(), which gives a null pointer before.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include <stdint.h>

@class UIView;

typedef uint64_t UIAccessibilityTraits;
typedef uint32_t UIAccessibilityNotifications;

// Which way the fingers go: with "left" and "up" what comes next is shown.
typedef NSInteger UIAccessibilityScrollDirection;
enum {
    UIAccessibilityScrollDirectionRight = 1,
    UIAccessibilityScrollDirectionLeft = 2,
    UIAccessibilityScrollDirectionUp = 3,
    UIAccessibilityScrollDirectionDown = 4,
    UIAccessibilityScrollDirectionNext = 5,
    UIAccessibilityScrollDirectionPrevious = 6
};

extern "C" {
// Bits, to be combined with |.
extern const UIAccessibilityTraits UIAccessibilityTraitNone;
extern const UIAccessibilityTraits UIAccessibilityTraitButton;
extern const UIAccessibilityTraits UIAccessibilityTraitLink;
extern const UIAccessibilityTraits UIAccessibilityTraitImage;
extern const UIAccessibilityTraits UIAccessibilityTraitSelected;
extern const UIAccessibilityTraits UIAccessibilityTraitPlaysSound;
extern const UIAccessibilityTraits UIAccessibilityTraitKeyboardKey;
extern const UIAccessibilityTraits UIAccessibilityTraitStaticText;
extern const UIAccessibilityTraits UIAccessibilityTraitSummaryElement;
extern const UIAccessibilityTraits UIAccessibilityTraitNotEnabled;
extern const UIAccessibilityTraits UIAccessibilityTraitUpdatesFrequently;
extern const UIAccessibilityTraits UIAccessibilityTraitSearchField;
extern const UIAccessibilityTraits UIAccessibilityTraitStartsMediaSession;
extern const UIAccessibilityTraits UIAccessibilityTraitAdjustable;
extern const UIAccessibilityTraits UIAccessibilityTraitAllowsDirectInteraction;
extern const UIAccessibilityTraits UIAccessibilityTraitCausesPageTurn;
extern const UIAccessibilityTraits UIAccessibilityTraitHeader;

// With the element or view that takes the focus, a text to be said instead, or nil for the first element.
extern const UIAccessibilityNotifications UIAccessibilityScreenChangedNotification;
extern const UIAccessibilityNotifications UIAccessibilityLayoutChangedNotification;
// With the text to be said.
extern const UIAccessibilityNotifications UIAccessibilityAnnouncementNotification;
// With a text that tells the new place: "Page 2 of 3".
extern const UIAccessibilityNotifications UIAccessibilityPageScrolledNotification;

void UIAccessibilityPostNotification(UIAccessibilityNotifications notification, id argument);

// A rectangle of the view as accessibilityFrame wants it, where the view is now.
CGRect UIAccessibilityConvertFrameToScreenCoordinates(CGRect rect, UIView *view);

BOOL UIAccessibilityIsVoiceOverRunning(void);
// Posted to the default centre when that changes, without an object.
extern NSString *const UIAccessibilityVoiceOverStatusChanged;

// From 8.0 on.
BOOL UIAccessibilityIsReduceMotionEnabled(void);
BOOL UIAccessibilityIsReduceTransparencyEnabled(void);
BOOL UIAccessibilityDarkerSystemColorsEnabled(void);
BOOL UIAccessibilityIsBoldTextEnabled(void);
extern NSString *const UIAccessibilityReduceMotionStatusDidChangeNotification;
extern NSString *const UIAccessibilityReduceTransparencyStatusDidChangeNotification;
extern NSString *const UIAccessibilityDarkerSystemColorsStatusDidChangeNotification;
extern NSString *const UIAccessibilityBoldTextStatusDidChangeNotification;
}

// Every object answers these; what a view or a control answers unless told otherwise stands with its class.
@interface NSObject (UIAccessibility)
@property (nonatomic) BOOL isAccessibilityElement;
@property (nonatomic, copy) NSString *accessibilityLabel;
@property (nonatomic, copy) NSString *accessibilityHint;
@property (nonatomic, copy) NSString *accessibilityValue;
@property (nonatomic) UIAccessibilityTraits accessibilityTraits;
// Of the screen, in points. A view's is where it is seen.
@property (nonatomic) CGRect accessibilityFrame;
// Where a double tap touches: the frame's middle unless set.
@property (nonatomic) CGPoint accessibilityActivationPoint;
// "en-US"; nil is the user's.
@property (nonatomic, retain) NSString *accessibilityLanguage;
// Nothing that the object holds is an element.
@property (nonatomic) BOOL accessibilityElementsHidden;
// Nothing that the view's siblings hold is an element.
@property (nonatomic) BOOL accessibilityViewIsModal;
// What it holds is visited together.
@property (nonatomic) BOOL shouldGroupAccessibilityChildren;
@end

// A container lists its elements itself; a view that does not is walked through.
@interface NSObject (UIAccessibilityContainer)
// NSNotFound when the object is no such container.
- (NSInteger)accessibilityElementCount;
- (id)accessibilityElementAtIndex:(NSInteger)index;
- (NSInteger)indexOfAccessibilityElement:(id)element;
@end

@interface NSObject (UIAccessibilityFrom8)
// Instead of the three methods of containers.
@property (nonatomic, copy) NSArray *accessibilityElements;
// UIAccessibilityCustomAction objects.
@property (nonatomic, copy) NSArray *accessibilityCustomActions;
@end

@interface NSObject (UIAccessibilityAction)
// YES: it was done; NO: a touch at the activation point follows.
- (BOOL)accessibilityActivate;
// Of adjustable elements.
- (void)accessibilityIncrement;
- (void)accessibilityDecrement;
// YES: that was it; NO: the next in the chain of responders is asked.
- (BOOL)accessibilityScroll:(UIAccessibilityScrollDirection)direction;
- (BOOL)accessibilityPerformEscape;
- (BOOL)accessibilityPerformMagicTap;
@end

// Called when VoiceOver's focus comes and goes.
@interface NSObject (UIAccessibilityFocus)
- (void)accessibilityElementDidBecomeFocused;
- (void)accessibilityElementDidLoseFocus;
- (BOOL)accessibilityElementIsFocused;
@end
