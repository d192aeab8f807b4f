// The panel's strip: a scroll view that is its own delegate, knows whether it moves, and keeps the page dots.
#pragma once

#include <UIKit/UIScrollView.h>

@interface NewUIScrollView : UIScrollView <UIScrollViewDelegate> {
    BOOL _isScrolling;
}
// YES from the first movement until the finger lifts or the deceleration ends.
- (BOOL)scrolling;
// After the content changed under it: movement counts only while a finger or a deceleration is at work, and
// the dots follow the page that is shown now.
- (void)contentDidChange;
@end

@interface NewUIScrollView (Spoken)
// For VoiceOver: the items that are seen whole, from left to right, or the text that there is nothing; none
// behind a face or a question.
- (NSArray *)spokenElements;
// NO when it is there already.
- (BOOL)scrollTo:(CGFloat)x;
// Closes the item that has VoiceOver's focus; NO when none has.
- (BOOL)takeOffFocused;
@end

// The delegate of an item's swipe recogniser, never attached itself: the swipe goes along with scrolling.
@interface swipeController : UISwipeGestureRecognizer <UIGestureRecognizerDelegate>
@end
