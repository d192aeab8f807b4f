// Proves in which order pages hear of coming and going, how modal pages cover others, and how all of it
// turns.
#include "Pages.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Controllers/Rotation.h"
#include "UIKit/Navigation/NavigationState.h"
#include "UIKit/UIKit+Further.h"

using namespace harness;

namespace {

UINavigationController *showNavigation(UIViewController *root) {
    auto *navigation = [[[UINavigationController alloc] initWithRootViewController:root] autorelease];
    show(navigation);
    // What a case has left behind does not look lost at its end.
    static auto &kept = *new std::vector<id>;
    kept.push_back([[navigation view].window retain]);
    kept.push_back([navigation retain]);
    waitFor(1);
    takeNotes();
    return navigation;
}

TEST(Navigation, PagesHearOfEachStepOfAPushAndAPop) {
    UINavigationController *navigation = showNavigation(makePage("A"));
    [navigation pushViewController:makePage("B") animated:YES];
    EXPECT_THAT(takeNotes(), ElementsAre("A will disappear", "B will appear"));
    waitFor(1);
    EXPECT_THAT(takeNotes(), ElementsAre("A did disappear", "B did appear"));
    [navigation popViewControllerAnimated:NO];
    EXPECT_THAT(takeNotes(),
                ElementsAre("B will disappear", "A will appear", "B did disappear", "A did appear"));
    EXPECT_EQ([navigation popViewControllerAnimated:YES], nil) << "the root stays";
}

TEST(Navigation, TheBarShowsTheTitleAndTheWayBack) {
    UINavigationController *navigation = showNavigation(makePage("First"));
    UIViewController *second = makePage("Second");
    [navigation pushViewController:second animated:YES];
    waitFor(1);
    auto has = [&](NSString *wanted) {
        for (UIView *label : viewsOf([navigation navigationBar], [UILabel class]))
            if ([[static_cast<UILabel *>(label) text] isEqualToString:wanted]) return true;
        return false;
    };
    EXPECT_TRUE(has(@"Second"));
    EXPECT_TRUE(has(@"First"));
    [[second navigationItem] setTitle:@"Changed"];
    waitFor(0);
    EXPECT_TRUE(has(@"Changed"));
    tapAt({30, 42});
    waitFor(1);
    EXPECT_EQ([[navigation viewControllers] count], 1u) << "a tap on the way back pops";
}

TEST(Navigation, TheBarLiesBelowTheStatusBarAndItsBackgroundBehindIt) {
    struct {
        const char *what;
        CGSize size;
        bool pad;
        sim::Version version;
        UIInterfaceOrientation orientation;
        CGRect frame;
    } const cases[] = {
        {"a phone", {375, 667}, false, {8, 1}, UIInterfaceOrientationPortrait, {{0, 20}, {375, 44}}},
        {"on its side", {320, 568}, false, {7, 1}, UIInterfaceOrientationLandscapeLeft, {{0, 20}, {568, 32}}},
        {"where it has no status bar then",
         {375, 667},
         false,
         {8, 1},
         UIInterfaceOrientationLandscapeRight,
         {{0, 0}, {667, 32}}},
        {"a tablet", {768, 1024}, true, {8, 1}, UIInterfaceOrientationPortrait, {{0, 20}, {768, 44}}},
        {"on its side",
         {768, 1024},
         true,
         {7, 0},
         UIInterfaceOrientationLandscapeLeft,
         {{0, 20}, {1024, 44}}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        sim::device().width = c.size.width;
        sim::device().height = c.size.height;
        sim::device().pad = c.pad;
        sim::device().version = c.version;
        UINavigationController *navigation = showNavigation(makePage("A"));
        [[navigation topViewController].navigationItem
            setRightBarButtonItem:[[[UIBarButtonItem alloc] initWithTitle:@"Done"
                                                                    style:UIBarButtonItemStyleBordered
                                                                   target:nil
                                                                   action:nullptr] autorelease]];
        sim::fillInterface([navigation view].window);
        sim::turnInterface(c.orientation);
        waitFor(1);
        UINavigationBar *bar = [navigation navigationBar];
        EXPECT_TRUE(CGRectEqualToRect([bar frame], c.frame));
        UIView *behind = [[bar subviews] objectAtIndex:0];
        CGRect covered = [behind convertRect:[behind bounds] toView:[navigation view]];
        EXPECT_TRUE(CGRectEqualToRect(covered, CGRectMake(0, 0, c.frame.size.width, CGRectGetMaxY(c.frame))));
        UIView *button = viewsOf(bar, objc_getClass("UINavigationButton")).at(0);
        CGRect place = [button convertRect:[button bounds] toView:[navigation view]];
        EXPECT_EQ(CGRectGetMidY(place), CGRectGetMidY(c.frame));
        sim::turnInterface(UIInterfaceOrientationPortrait);
        [[navigation view].window setHidden:YES];
        sim::setRole([navigation view].window, sim::WindowRole::overlay);
        waitFor(1);
    }
}

TEST(Navigation, SaysTheWayBackInTheDevicesLanguage) {
    struct {
        const char *language, *back, *settings;
    } const cases[] = {{"en", "Back", "Settings"},
                       {"it", "Indietro", "Impostazioni"},
                       {"es", "Atrás", "Ajustes"},
                       {"fr", "Back", "Settings"}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.language);
        sim::device().language = c.language;
        UIViewController *list = [[objc_getClass("PSUIPrefsListController") new] autorelease];
        EXPECT_STREQ([[list title] UTF8String], c.settings);
        for (const char *title : {"", "A title that is far too long for the way back"}) {
            UINavigationController *navigation = showNavigation(makePage(title));
            [navigation pushViewController:makePage("A title that wants the room") animated:NO];
            waitFor(1);
            auto *way = static_cast<UINavigationItemButtonView *>(
                viewsOf([navigation navigationBar], [UINavigationItemButtonView class]).at(0));
            EXPECT_STREQ([[way title] UTF8String], c.back);
        }
    }
}

TEST(Navigation, APageFindsItsViewInItsSizeWhenItAppears) {
    UINavigationController *navigation = showNavigation(makePage("A"));
    [[navigation view] setFrame:CGRectMake(0, 0, 300, 500)];
    waitFor(0);
    NotingPage *page = makePage("B");
    [[page view] setFrame:CGRectMake(0, 0, 10, 10)];
    [navigation pushViewController:page animated:NO];
    EXPECT_EQ([[page view] bounds].size.width, 300);
    EXPECT_EQ([[page view] bounds].size.height, 500);
}

TEST(Navigation, AListStartsBelowTheBarAndRunsBehindIt) {
    TestList *list = showList([](TestList *list) {
        return [NSArray arrayWithObjects:makeGroup(nil), makeRow(list, @"Row", PSLinkCell), nil];
    });
    EXPECT_EQ([[list table] contentInset].top, 64);
    EXPECT_EQ([[list table] contentOffset].y, -64);
    EXPECT_EQ([[list view] frame].origin.y, 0);
}

TEST(ModalPages, CoverAndUncoverWhatPresentedThem) {
    NotingPage *page = makePage("A"), *sheet = makePage("S");
    UINavigationController *navigation = showNavigation(page);
    [page presentViewController:sheet animated:YES completion:^{ note("presented"); }];
    EXPECT_THAT(takeNotes(), ElementsAre("A will disappear", "S will appear"));
    waitFor(1);
    EXPECT_THAT(takeNotes(), ElementsAre("A did disappear", "S did appear", "presented"));
    EXPECT_EQ([navigation presentedViewController], sheet) << "the one that fills the window presents";
    EXPECT_EQ([[navigation view] window], nil) << "what is covered leaves the window";
    // The presented page may ask for its own end.
    [sheet dismissViewControllerAnimated:YES completion:^{ note("dismissed"); }];
    EXPECT_THAT(takeNotes(), ElementsAre("S will disappear", "A will appear"));
    waitFor(1);
    EXPECT_THAT(takeNotes(), ElementsAre("S did disappear", "A did appear", "dismissed"));
    EXPECT_EQ([navigation presentedViewController], nil);
}

TEST(ModalPages, OneAtATime) {
    NotingPage *page = makePage("A");
    UINavigationController *navigation = showNavigation(page);
    [page presentViewController:makePage("S") animated:NO completion:nil];
    takeNotes();
    [navigation presentViewController:makePage("T") animated:NO completion:^{ note("presented"); }];
    EXPECT_THAT(takeNotes(), IsEmpty());
    [[navigation presentedViewController] presentViewController:makePage("U") animated:NO completion:nil];
    EXPECT_THAT(takeNotes(),
                ElementsAre("S will disappear", "U will appear", "S did disappear", "U did appear"))
        << "the sheet on top may present another";
}

TEST(Rotation, TheInterfaceTurnsWithTheDevice) {
    UINavigationController *navigation = showNavigation(makePage("A"));
    sim::turnInterface(UIInterfaceOrientationLandscapeRight);
    EXPECT_THAT(takeNotes(), ElementsAre("A will turn", "A turns, wide"));
    EXPECT_EQ([navigation interfaceOrientation], UIInterfaceOrientationLandscapeRight);
    waitFor(1);
    EXPECT_THAT(takeNotes(), ElementsAre("A did turn"));
    sim::turnInterface(UIInterfaceOrientationLandscapeRight);
    EXPECT_THAT(takeNotes(), IsEmpty()) << "it stands so already";
}

TEST(Rotation, TheOutermostPageDecides) {
    NotingPage *page = makePage("A");
    page->orientations = UIInterfaceOrientationMaskPortrait;
    show(page);
    takeNotes();
    sim::turnInterface(UIInterfaceOrientationLandscapeLeft);
    EXPECT_THAT(takeNotes(), IsEmpty());
    EXPECT_EQ([page interfaceOrientation], UIInterfaceOrientationPortrait);
    page->orientations = 0;
    sim::turnInterface(UIInterfaceOrientationPortraitUpsideDown);
    EXPECT_THAT(takeNotes(), IsEmpty()) << "not upside down on a phone";
}

} // namespace
