// Proves how alerts come, go, wait for one another, and what their delegate hears.
#include "Pages.h"
#include "UIKit/Alerts/AlertPanel.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"

using namespace harness;

@interface AlertWitness : NSObject <UIAlertViewDelegate>
@end
@implementation AlertWitness
- (void)willPresentAlertView:(UIAlertView *)alert {
    note("will present");
}
- (void)didPresentAlertView:(UIAlertView *)alert {
    note("did present");
}
- (void)alertView:(UIAlertView *)alert clickedButtonAtIndex:(NSInteger)index {
    note("clicked " + std::to_string(index));
}
- (void)alertView:(UIAlertView *)alert willDismissWithButtonIndex:(NSInteger)index {
    note("will dismiss " + std::to_string(index));
}
- (void)alertView:(UIAlertView *)alert didDismissWithButtonIndex:(NSInteger)index {
    note("did dismiss " + std::to_string(index));
}
@end

namespace {

UIAlertView *makeAlert(NSString *title, NSString *cancel, NSString *other) {
    return [[[UIAlertView alloc] initWithTitle:title
                                       message:@"A message."
                                      delegate:[[AlertWitness new] autorelease]
                             cancelButtonTitle:cancel
                             otherButtonTitles:other, nil] autorelease];
}

UIWindow *alertWindow() {
    for (UIWindow *window : sim::visibleWindows())
        if (sim::role(window) == sim::WindowRole::alert) return window;
    return nil;
}

UIButton *button(NSString *title) {
    for (UIView *view : viewsOf(alertWindow(), [UIButton class]))
        if ([[static_cast<UIButton *>(view) currentTitle] isEqualToString:title])
            return static_cast<UIButton *>(view);
    return nil;
}

TEST(Alerts, TellTheirDelegateEachStep) {
    show(makePage("page"));
    takeNotes();
    UIAlertView *alert = makeAlert(@"Title", @"Cancel", @"OK");
    EXPECT_EQ([alert cancelButtonIndex], 0);
    EXPECT_FALSE([alert isVisible]);
    [alert show];
    EXPECT_THAT(takeNotes(), ElementsAre("will present"));
    waitFor(1);
    EXPECT_THAT(takeNotes(), ElementsAre("did present"));
    tapAt(centreOf(button(@"OK")));
    EXPECT_THAT(takeNotes(), ElementsAre("clicked 1", "will dismiss 1"));
    waitFor(1);
    EXPECT_THAT(takeNotes(), ElementsAre("did dismiss 1"));
    EXPECT_EQ(alertWindow(), nil);
}

TEST(Alerts, CountTheirButtonsFromTheCancelButton) {
    const struct {
        NSString *cancel, *other;
        NSInteger cancelIndex, count;
    } cases[] = {{@"Cancel", @"OK", 0, 2}, {@"Cancel", nil, 0, 1}, {nil, @"OK", -1, 1}, {nil, nil, -1, 0}};
    for (auto [cancel, other, cancelIndex, count] : cases) {
        UIAlertView *alert = makeAlert(@"Title", cancel, other);
        EXPECT_EQ([alert cancelButtonIndex], cancelIndex);
        EXPECT_EQ([alert numberOfButtons], count);
    }
}

TEST(Alerts, LetNothingElseBeTouched) {
    UIWindow *window = show(makePage("page"));
    TouchedView *view = addTouchedView(window, [window bounds], "behind");
    [makeAlert(@"Title", @"Cancel", nil) show];
    waitFor(1);
    takeNotes();
    tapAt({20, 600});
    EXPECT_THAT(takeNotes(), IsEmpty());
    tapAt(centreOf(button(@"Cancel")));
    waitFor(1);
    takeNotes();
    tapAt({20, 600});
    EXPECT_THAT(takeNotes(), ElementsAre("behind began", "behind ended"));
    [view removeFromSuperview];
}

TEST(Alerts, WaitBelowTheOneThatCameLater) {
    show(makePage("page"));
    UIAlertView *first = makeAlert(@"First", @"One", nil), *second = makeAlert(@"Second", @"Two", nil);
    [first show];
    [second show];
    waitFor(1);
    EXPECT_EQ(sim::topmostAlert(), second);
    EXPECT_FALSE([first isVisible]);
    EXPECT_EQ(button(@"One"), nil);
    tapAt(centreOf(button(@"Two")));
    waitFor(1);
    EXPECT_TRUE([first isVisible]);
    tapAt(centreOf(button(@"One")));
    waitFor(1);
    EXPECT_EQ(sim::topmostAlert(), nil);
}

TEST(Alerts, StandButtonsSideBySideWhenTheyFit) {
    show(makePage("page"));
    [makeAlert(@"Title", @"Cancel", @"OK") show];
    waitFor(1);
    EXPECT_EQ(centreOf(button(@"Cancel")).y, centreOf(button(@"OK")).y);
    EXPECT_LT(centreOf(button(@"Cancel")).x, centreOf(button(@"OK")).x);
    tapAt(centreOf(button(@"OK")));
    waitFor(1);
    NSString *wide = @"A title that is far too long for half a panel";
    [makeAlert(@"Title", @"Cancel", wide) show];
    waitFor(1);
    EXPECT_LT(centreOf(button(wide)).y, centreOf(button(@"Cancel")).y) << "the cancel button comes last";
}

} // namespace
