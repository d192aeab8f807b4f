// Proves which view lies topmost, to the eye and to a finger.
#include "Looks.h"

#include "UIKit/UIKit+Further.h"

#include <UIKit/UIControl.h>

using namespace harness;

// Reaches beyond its bounds.
@interface WideView : UIView
@end
@implementation WideView
- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event {
    return CGRectContainsPoint(CGRectInset([self bounds], -20, -20), point);
}
@end

namespace {

// What a finger at that point of the window would touch.
std::string touched(UIWindow *window, CGPoint point) { return tagOf([window hitTest:point withEvent:nil]); }

UIView *addTagged(UIView *superview, Class kind, CGRect frame, NSInteger tag) {
    UIView *view = [[[kind alloc] initWithFrame:frame] autorelease];
    [view setTag:tag];
    [superview addSubview:view];
    return view;
}

} // namespace

TEST(HitTesting, FindsTheInnermostViewThatTakesTouches) {
    // 1 at (0, 0; 200, 200) holds 2 at (50, 50; 100, 100); the window is 0.
    struct {
        const char *what;
        void (*change)(UIView *outer, UIView *inner);
        CGPoint point;
        const char *touched;
    } const cases[] = {
        {"inside", [](UIView *, UIView *) {}, {100, 100}, "2"},
        {"beside it", [](UIView *, UIView *) {}, {20, 20}, "1"},
        {"beside both", [](UIView *, UIView *) {}, {250, 100}, "0"},
        {"on the near edge", [](UIView *, UIView *) {}, {50, 50}, "2"},
        {"on the far edge", [](UIView *, UIView *) {}, {150, 100}, "1"},
        {"hidden", [](UIView *, UIView *v) { [v setHidden:YES]; }, {100, 100}, "1"},
        {"all but clear", [](UIView *, UIView *v) { [v setAlpha:0.009]; }, {100, 100}, "1"},
        {"faint", [](UIView *, UIView *v) { [v setAlpha:0.02]; }, {100, 100}, "2"},
        {"without a colour", [](UIView *, UIView *v) { [v setBackgroundColor:nil]; }, {100, 100}, "2"},
        {"switched off", [](UIView *, UIView *v) { [v setUserInteractionEnabled:NO]; }, {100, 100}, "1"},
        {"in one that is switched off",
         [](UIView *v, UIView *) { [v setUserInteractionEnabled:NO]; },
         {100, 100},
         "0"},
        {"in one that is clear", [](UIView *v, UIView *) { [v setAlpha:0]; }, {100, 100}, "0"},
        {"outside of its superview",
         [](UIView *, UIView *v) { [v setFrame:CGRectMake(150, 50, 100, 100)]; },
         {220, 100},
         "0"},
        {"the part of it that is inside",
         [](UIView *, UIView *v) { [v setFrame:CGRectMake(150, 50, 100, 100)]; },
         {180, 100},
         "2"},
        {"in the frame's corner, but not in the turned view",
         [](UIView *, UIView *v) { [v setTransform:CGAffineTransformMakeRotation(M_PI / 4)]; },
         {40, 40},
         "1"},
        {"in its tip",
         [](UIView *, UIView *v) { [v setTransform:CGAffineTransformMakeRotation(M_PI / 4)]; },
         {100, 32},
         "2"},
        {"with the content shifted",
         [](UIView *v, UIView *) { [v setBounds:CGRectMake(40, 0, 200, 200)]; },
         {30, 100},
         "2"},
        {"of no size", [](UIView *, UIView *v) { [v setFrame:CGRectMake(100, 100, 0, 0)]; }, {100, 100}, "1"},
        {"wider than it looks",
         [](UIView *v, UIView *) { addTagged(v, [WideView class], CGRectMake(10, 10, 5, 5), 3); },
         {30, 30},
         "3"},
        {"under a label",
         [](UIView *, UIView *v) { addTagged(v, [UILabel class], [v bounds], 3); },
         {100, 100},
         "2"},
        {"under a picture",
         [](UIView *, UIView *v) { addTagged(v, [UIImageView class], [v bounds], 3); },
         {100, 100},
         "2"},
        {"on a control, even a disabled one",
         [](UIView *, UIView *v) {
             [static_cast<UIControl *>(addTagged(v, [UIControl class], [v bounds], 3)) setEnabled:NO];
         },
         {100, 100},
         "3"},
        {"on a plain layer",
         [](UIView *, UIView *v) {
             CALayer *layer = [CALayer layer];
             [layer setFrame:[v bounds]];
             [[v layer] addSublayer:layer];
         },
         {100, 100},
         "2"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIWindow *window = makeWindow();
        UIView *outer = addColored(window, CGRectMake(0, 0, 200, 200), [UIColor redColor], 1);
        c.change(outer, addColored(outer, CGRectMake(50, 50, 100, 100), [UIColor blueColor], 2));
        EXPECT_EQ(touched(window, c.point), c.touched);
    }
}

TEST(HitTesting, ZPositionsDecideWhatIsSeenButNotWhatIsTouched) {
    // Three of one size, red, green and blue from back to front.
    struct {
        const char *what;
        CGFloat z[3];
        const char *seen;
    } const cases[] = {
        {"all alike", {0, 0, 0}, "blue"},
        {"the rearmost raised", {1, 0, 0}, "red"},
        {"the foremost lowered", {0, 0, -1}, "green"},
        {"two of one height", {2, 2, 0}, "green"},
        {"turned round", {3, 2, 1}, "red"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIWindow *window = makeWindow();
        UIColor *colors[] = {[UIColor redColor], [UIColor greenColor], [UIColor blueColor]};
        for (NSInteger i : {0, 1, 2})
            [[addColored(window, CGRectMake(0, 0, 50, 50), colors[i], i) layer] setZPosition:c.z[i]];
        EXPECT_EQ(colorAt({25, 25}), c.seen);
        EXPECT_EQ(touched(window, {25, 25}), "2");
    }
}

TEST(HitTesting, AViewThatFadesAwayIsGoneToTheFingerAtOnce) {
    UIWindow *window = makeWindow();
    UIView *view = addColored(window, CGRectMake(0, 0, 50, 50), [UIColor redColor], 1);
    [UIView animateWithDuration:1 animations:^{ [view setAlpha:0]; }];
    EXPECT_EQ(touched(window, {25, 25}), "0");
    EXPECT_EQ(colorAt({25, 25}), "red");
}
