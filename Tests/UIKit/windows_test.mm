// Proves which window lies above which, and what a window is to its views and its application.
#include "Looks.h"

#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIApplication.h>
#include <UIKit/UIViewController.h>
#include <UIKit/UIWindow.h>

using namespace harness;

namespace {

UIWindow *colored(UIColor *color, NSInteger tag, UIWindowLevel level = UIWindowLevelNormal) {
    UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 375, 667)];
    [window setBackgroundColor:color];
    [window setTag:tag];
    [window setWindowLevel:level];
    return window;
}

UIApplication *application() {
    if (![UIApplication sharedApplication]) sim::setSharedApplication([UIApplication new]);
    return [UIApplication sharedApplication];
}

std::string order() {
    std::string result;
    @autoreleasepool {
        for (UIWindow *window in [application() windows]) result += tagOf(window);
    }
    return result;
}

} // namespace

TEST(Windows, LieByLevelThenInTheOrderInWhichTheyWereShown) {
    UIWindow *red = colored([UIColor redColor], 1), *green = colored([UIColor greenColor], 2);
    UIWindow *blue = colored([UIColor blueColor], 3, UIWindowLevelAlert);
    struct {
        const char *what;
        std::function<void()> change;
        const char *seen, *order;
    } const cases[] = {
        {"none is shown until it is told to", [] {}, "black", "123"},
        {"one is", [=] { [red setHidden:NO]; }, "red", "213"},
        {"the next lies above", [=] { [green setHidden:NO]; }, "green", "123"},
        {"showing one that is shown changes nothing", [=] { [red setHidden:NO]; }, "green", "123"},
        {"one that comes back comes above", [=] { [red setHidden:YES], [red setHidden:NO]; }, "red", "213"},
        {"the level counts first", [=] { [blue setHidden:NO], [green setHidden:YES], [green setHidden:NO]; },
         "blue", "123"},
        {"a level may change", [=] { [red setWindowLevel:UIWindowLevelAlert + 0.5]; }, "red", "231"},
        {"and fall", [=] { [red setWindowLevel:-1]; }, "blue", "123"},
        {"a hidden one shows nothing", [=] { [blue setHidden:YES]; }, "green", "123"},
        {"a clear one what is below", [=] { [green setAlpha:0]; }, "red", "123"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        c.change();
        EXPECT_EQ(colorAt({100, 100}), c.seen);
        EXPECT_EQ(order(), c.order);
    }
    for (UIWindow *window : {red, green, blue}) [window release];
    EXPECT_LT(UIWindowLevelNormal, UIWindowLevelStatusBar);
    EXPECT_LT(UIWindowLevelStatusBar, UIWindowLevelAlert);
}

TEST(Windows, AreTheWindowOfAllTheyHold) {
    UIWindow *window = colored(nil, 1);
    UIView *outer = addView(window, CGRectZero), *inner = addView(outer, CGRectZero);
    EXPECT_EQ([inner window], window);
    EXPECT_EQ([window window], window);
    EXPECT_EQ([window superview], nil);
    [[outer retain] removeFromSuperview];
    EXPECT_EQ([inner window], nil);
    [outer release];
    EXPECT_EQ(order(), "1");
    [window release];
    EXPECT_EQ(order(), "") << "one that is gone is gone";
}

TEST(Windows, OneIsTheKeyWindow) {
    UIWindow *first = colored(nil, 1), *second = colored(nil, 2);
    [first makeKeyAndVisible];
    EXPECT_FALSE([first isHidden]);
    EXPECT_EQ([application() keyWindow], first);
    [second makeKeyWindow];
    EXPECT_TRUE([second isHidden]) << "key is not shown";
    EXPECT_EQ([application() keyWindow], second);
    EXPECT_FALSE([first isKeyWindow]);
    [second release];
    EXPECT_EQ([application() keyWindow], nil);
    [first release];
}

TEST(Windows, FillThemselvesWithTheirControllersView) {
    UIWindow *window = colored(nil, 1);
    UIViewController *first = [[UIViewController new] autorelease],
                     *second = [[UIViewController new] autorelease];
    [window setRootViewController:first];
    EXPECT_EQ([[first view] superview], window);
    EXPECT_EQ(text([[first view] frame]), "0 0 375 667");
    [window setFrame:CGRectMake(0, 0, 667, 375)];
    EXPECT_EQ(text([[first view] frame]), "0 0 667 375");
    [window setRootViewController:second];
    EXPECT_EQ([[first view] superview], nil);
    EXPECT_EQ([[window subviews] count], 1u);
    [window release];
}

TEST(Windows, TurnAndMoveLikeOtherViews) {
    UIWindow *window = colored([UIColor redColor], 1);
    [window setHidden:NO];
    UIView *view = addColored(window, CGRectMake(0, 0, 50, 20), [UIColor blueColor], 2);
    [window setTransform:CGAffineTransformMakeRotation(M_PI / 2)];
    [window setFrame:CGRectMake(0, 0, 375, 667)];
    EXPECT_EQ(text([window bounds]), "0 0 667 375");
    // What was the upper left corner lies at the upper right.
    EXPECT_EQ(colorAt({370, 40}), "blue");
    EXPECT_EQ(colorAt({340, 10}), "red");
    EXPECT_EQ(sim::touchTarget({370, 40}), view);
    EXPECT_EQ(text([view convertPoint:CGPointMake(10, 10) toView:nil]), "10 10");
    [window setHidden:YES];
    EXPECT_EQ(colorAt({370, 40}), "black");
    EXPECT_EQ(sim::touchTarget({370, 40}), nil);
    [window release];
}
