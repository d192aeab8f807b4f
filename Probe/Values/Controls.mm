// Sizes and defaults of controls and of text.
#include "Probe/Question.h"

#include <UIKit/UIKit.h>

namespace probe {

namespace {

id switchSize() {
    UISwitch *view = [[[UISwitch alloc] initWithFrame:CGRectZero] autorelease];
    return size(view.bounds.size);
}

id labelFont() {
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    return number(label.font.pointSize);
}

id labelBreaks() {
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    return number(label.lineBreakMode);
}

id fontName() { return [[UIFont systemFontOfSize:14] fontName]; }

id boldFontName() { return [[UIFont boldSystemFontOfSize:14] fontName]; }

// As a part of the size.
id lineHeight() { return number([[UIFont systemFontOfSize:100] lineHeight] / 100); }

id textSize() { return size([@"Messages 0123" sizeWithFont:[UIFont systemFontOfSize:17]]); }

UIScrollView *newScrollView() {
    return [[[UIScrollView alloc] initWithFrame:CGRectMake(0, 0, 20, 20)] autorelease];
}

id scrollDefaults() {
    UIScrollView *view = newScrollView();
    const id parts[] = {flag(view.bounces), flag(view.alwaysBounceVertical), flag(view.delaysContentTouches),
                        flag(view.canCancelContentTouches), flag(view.clipsToBounds)};
    return [NSArray arrayWithObjects:parts count:5];
}

// What a scroll view holds besides what was put into it: the extension counts subviews.
id scrollSubviews() {
    NSMutableArray *result = [NSMutableArray array];
    for (UIView *view in [newScrollView() subviews]) [result addObject:className(view)];
    return result;
}

// Where a scroll view stands whose content was made smaller than what it had scrolled to.
id offsetAfterShrinking() {
    UIScrollView *view = newScrollView();
    view.contentSize = CGSizeMake(200, 20);
    view.contentOffset = CGPointMake(150, 0);
    view.contentSize = CGSizeMake(50, 20);
    return number(view.contentOffset.x);
}

id tapDefaults() {
    UITapGestureRecognizer *tap = [[UITapGestureRecognizer new] autorelease];
    const id parts[] = {number(tap.numberOfTapsRequired), flag(tap.cancelsTouchesInView), flag(tap.enabled)};
    return [NSArray arrayWithObjects:parts count:3];
}

id holdDefaults() {
    UILongPressGestureRecognizer *hold = [[UILongPressGestureRecognizer new] autorelease];
    const id parts[] = {number(hold.minimumPressDuration), number(hold.allowableMovement)};
    return [NSArray arrayWithObjects:parts count:2];
}

id pageControlSize() {
    UIPageControl *control = [[[UIPageControl alloc] initWithFrame:CGRectZero] autorelease];
    control.numberOfPages = 3;
    return size([control sizeThatFits:CGSizeZero]);
}

} // namespace

std::span<const Question> controlQuestions() {
    static const Question all[] = {{"switch.size", switchSize},
                                   {"label.font.size", labelFont},
                                   {"label.line_break", labelBreaks},
                                   {"font.system.name", fontName},
                                   {"font.bold.name", boldFontName},
                                   {"font.line_height", lineHeight},
                                   {"font.text.size", textSize},
                                   {"scroll_view.defaults", scrollDefaults},
                                   {"scroll_view.subviews", scrollSubviews},
                                   {"scroll_view.offset_after_shrinking", offsetAfterShrinking},
                                   {"tap.defaults", tapDefaults},
                                   {"long_press.defaults", holdDefaults},
                                   {"page_control.size", pageControlSize}};
    return all;
}

} // namespace probe
