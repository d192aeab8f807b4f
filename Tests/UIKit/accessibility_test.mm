// Proves what is spoken of a screen and in which order, what each class says of itself, and what becomes of a
// person's gestures and of what is posted while the reader is on and off.
#include "Harness.h"

#include "Runtime/Objc/Availability.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "UIKit/Accessibility/AidSettings.h"
#include "UIKit/Accessibility/Elements.h"
#include "UIKit/Accessibility/Gestures.h"
#include "UIKit/Accessibility/VoiceOver.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Navigation/NavigationState.h"
#include "UIKit/UIKit+Further.h"

#include <Darwin/dlfcn.h>

using namespace harness;

namespace {

std::string text(NSString *string) { return string ? [string UTF8String] : "-"; }

// "a b c" of the labels.
std::string read() {
    std::string result;
    for (id element : sim::accessibleElements())
        result += (result.empty() ? "" : " ") + text([element accessibilityLabel]);
    return result;
}

UIView *addElement(UIView *superview, CGRect frame, NSString *label) {
    UIView *view = addView(superview, frame);
    [view setIsAccessibilityElement:YES];
    [view setAccessibilityLabel:label];
    return view;
}

// Two lines and a group: a b / c d, where c holds e in front and f behind.
struct Stage {
    Stage(sim::Version version = {8, 1}) {
        sim::device() = {.width = 375, .height = 667, .scale = 2, .version = version};
        sim::applyAvailability(version);
        if (![UIApplication sharedApplication]) sim::setSharedApplication([UIApplication new]);
        window = makeWindow();
        b = addElement(window, CGRectMake(200, 100, 50, 40), @"b");
        a = addElement(window, CGRectMake(20, 105, 50, 40), @"a");
        group = addView(window, CGRectMake(100, 200, 100, 100));
        e = addElement(group, CGRectMake(50, 60, 40, 30), @"e");
        c = addElement(group, CGRectMake(0, 0, 40, 30), @"c");
        d = addElement(window, CGRectMake(250, 210, 50, 40), @"d");
    }
    UIWindow *window;
    UIView *a, *b, *c, *d, *e, *group;
};

std::vector<std::string> spoken() {
    std::vector<std::string> lines;
    for (const auto &event : sim::takeEvents())
        if (event["kind"].string() == "spoken")
            lines.push_back(event["what"].string() + ": " + event["text"].string());
    return lines;
}

void turnReader(bool on) {
    sim::Aids aids = sim::aids();
    aids.voiceOver = on;
    sim::setAids(aids);
}

} // namespace

TEST(Accessibility, IsReadLineByLineWithoutWhatIsHidden) {
    Stage s;
    UIWindow *front = makeWindow();
    [front setHidden:YES];
    UIView *shade = addView(front, CGRectMake(0, 0, 375, 667));
    addElement(shade, CGRectMake(10, 10, 20, 20), @"x");
    addElement(front, CGRectMake(10, 40, 20, 20), @"y");
    struct {
        const char *what;
        std::function<void()> change;
        const char *read;
    } const cases[] = {
        {"lines from the top, each from the left", [] {}, "a b c d e"},
        {"what belongs together", [&] { [s.group setShouldGroupAccessibilityChildren:YES]; }, "a b c e d"},
        {"a hidden view", [&] { [s.b setHidden:YES]; }, "a c e d"},
        {"one that cannot be seen", [&] { [s.a setAlpha:0]; }, "c e d"},
        {"one off the screen", [&] { [s.d setFrame:CGRectMake(400, 0, 50, 50)]; }, "c e"},
        {"one cut off by what holds it",
         [&] { [s.group setClipsToBounds:YES], [s.e setFrame:CGRectMake(0, 120, 10, 10)]; }, "c"},
        {"an element hides what it holds", [&] { addElement(s.c, CGRectMake(0, 0, 9, 9), @"z"); }, "c"},
        {"what hides its elements", [&] { [s.group setAccessibilityElementsHidden:YES]; }, ""},
        {"and shows them again",
         [&] { [s.group setAccessibilityElementsHidden:NO], [s.a setAlpha:1], [s.b setHidden:NO]; }, "a b c"},
        {"its own order",
         [&] { [s.window setAccessibilityElements:[NSArray arrayWithObjects:s.group, s.b, s.d, nil]]; },
         "c b"},
        {"another window", [&] { [front setHidden:NO]; }, "x y c b"},
        {"what is modal", [&] { [shade setAccessibilityViewIsModal:YES]; }, "x"},
        {"what is modal and hidden", [&] { [shade setHidden:YES]; }, "y c b"},
    };
    for (const auto &each : cases) {
        each.change();
        EXPECT_EQ(read(), each.read) << each.what;
    }
}

TEST(Accessibility, IsToldByEachClass) {
    Stage s;
    auto label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    [label setText:@"words"];
    UIButton *press = [UIButton buttonWithType:UIButtonTypeSystem];
    [press setTitle:@"Press" forState:UIControlStateNormal];
    [press setEnabled:NO];
    auto lever = [[[UISwitch alloc] initWithFrame:CGRectZero] autorelease];
    [lever setOn:YES];
    auto field = [[[UITextField alloc] initWithFrame:CGRectZero] autorelease];
    [field setText:@"1234"];
    [field setSecureTextEntry:YES];
    auto empty = [[[UITextField alloc] initWithFrame:CGRectZero] autorelease];
    [empty setPlaceholder:@"Name"];
    auto pages = [[[UIPageControl alloc] initWithFrame:CGRectZero] autorelease];
    [pages setNumberOfPages:3];
    auto choice =
        [[[UISegmentedControl alloc] initWithItems:[NSArray arrayWithObjects:@"A", @"B", nil]] autorelease];
    [choice setSelectedSegmentIndex:1];
    auto button = [](UIBarButtonItem *item) {
        return [[[UINavigationButton alloc] initWithBarButtonItem:item] autorelease];
    };
    auto item = [](NSString *title) {
        return [[[UIBarButtonItem alloc] initWithTitle:title
                                                 style:UIBarButtonItemStylePlain
                                                target:nil
                                                action:nullptr] autorelease];
    };
    UIBarButtonItem *done = item(@"Done"), *drawn = item(nil);
    [drawn setAccessibilityLabel:@"Share"];
    [drawn setEnabled:NO];
    auto cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleValue1
                                        reuseIdentifier:nil] autorelease];
    [[cell textLabel] setText:@"Title"];
    [[cell detailTextLabel] setText:@"detail"];
    [cell setAccessoryType:UITableViewCellAccessoryCheckmark];
    auto lined = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                         reuseIdentifier:nil] autorelease];
    [[lined textLabel] setText:@"Title"];
    [lined setAccessoryView:[[[UISwitch alloc] initWithFrame:CGRectZero] autorelease]];
    auto given = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    [given setText:@"words"];
    [given setAccessibilityLabel:@"other"];
    [given setAccessibilityTraits:UIAccessibilityTraitLink];
    struct {
        const char *what;
        UIView *view;
        bool element;
        const char *label, *value;
        UIAccessibilityTraits traits;
    } const cases[] = {
        {"a view", s.group, false, "-", "-", 0},
        {"an image view", [[[UIImageView alloc] initWithFrame:CGRectZero] autorelease], false, "-", "-",
         UIAccessibilityTraitImage},
        {"a label", label, true, "words", "-", UIAccessibilityTraitStaticText},
        {"a label without text", [[[UILabel alloc] initWithFrame:CGRectZero] autorelease], false, "-", "-",
         UIAccessibilityTraitStaticText},
        {"a button", press, true, "Press", "-", UIAccessibilityTraitButton | UIAccessibilityTraitNotEnabled},
        {"a switch", lever, true, "-", "1", UIAccessibilityTraitButton},
        {"a secret field", field, true, "-", "••••", 0},
        {"an empty field", empty, true, "-", "Name", 0},
        {"pages", pages, true, "-", "Page 1 of 3",
         UIAccessibilityTraitAdjustable | UIAccessibilityTraitUpdatesFrequently},
        {"a part of a choice", [[choice subviews] objectAtIndex:1], true, "B", "-",
         UIAccessibilityTraitButton | UIAccessibilityTraitSelected},
        {"a button of a bar", button(done), true, "Done", "-", UIAccessibilityTraitButton},
        {"one that its item names", button(drawn), true, "Share", "-",
         UIAccessibilityTraitButton | UIAccessibilityTraitNotEnabled},
        {"a row with two texts", cell, true, "Title, detail", "-", UIAccessibilityTraitSelected},
        {"a row with a switch leaves it to its parts", lined, false, "Title", "-", 0},
        {"what is set comes first", given, true, "other", "-", UIAccessibilityTraitLink},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.what);
        EXPECT_EQ([each.view isAccessibilityElement], each.element);
        EXPECT_EQ(text([each.view accessibilityLabel]), each.label);
        EXPECT_EQ(text([each.view accessibilityValue]), each.value);
        EXPECT_EQ([each.view accessibilityTraits], each.traits);
    }
}

TEST(Accessibility, HasAFocusAndAnnouncementsWhileTheReaderIsOn) {
    Stage s;
    auto focus = [] { return text([sim::focusedElement() accessibilityLabel]); };
    auto post = [](UIAccessibilityNotifications notification, id argument) {
        UIAccessibilityPostNotification(notification, argument);
        waitFor(0);
    };
    auto screen = UIAccessibilityScreenChangedNotification, layout = UIAccessibilityLayoutChangedNotification;
    auto announcement = UIAccessibilityAnnouncementNotification;
    post(announcement, @"unheard");
    EXPECT_EQ(focus(), "-");
    turnReader(true);
    [s.d setAccessibilityValue:@"7"];
    struct {
        const char *what;
        std::function<void()> change;
        const char *focus;
        std::vector<std::string> spoken;
    } const cases[] = {
        {"the first at the beginning", [] {}, "a", {}},
        {"an announcement", [&] { post(announcement, @"done"); }, "a", {"announcement: done"}},
        {"another element", [&] { post(layout, s.d); }, "d", {"layout: d, 7"}},
        {"the view that holds one", [&] { post(layout, s.group); }, "c", {"layout: c"}},
        {"a change elsewhere", [&] { post(layout, nil); }, "c", {}},
        {"a text", [&] { post(layout, @"moved"); }, "c", {"layout: moved"}},
        {"a gone element leaves it to its neighbour", [&] { [s.c removeFromSuperview]; }, "e", {}},
        {"a new screen begins anew", [&] { post(screen, nil); }, "a", {"screen: a"}},
        {"a screen with an element", [&] { post(screen, s.b); }, "b", {"screen: b"}},
        {"nothing while it is off", [&] { turnReader(false), post(screen, s.a); }, "-", {}},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.what);
        each.change();
        EXPECT_EQ(focus(), each.focus);
        EXPECT_EQ(spoken(), each.spoken);
    }
}

@interface Answering : UIView {
@public
    bool takes;
}
@end

@implementation Answering
- (BOOL)accessibilityActivate {
    return note("activate"), takes;
}
- (BOOL)accessibilityPerformEscape {
    return note("escape"), takes;
}
- (BOOL)clear:(UIAccessibilityCustomAction *)action {
    return note(text([action name])), YES;
}
@end

TEST(Accessibility, PassesGesturesToWhoeverTakesThem) {
    Stage s;
    auto outer = [[[Answering alloc] initWithFrame:CGRectMake(0, 400, 375, 200)] autorelease];
    [s.window addSubview:outer];
    auto inner = [[[Answering alloc] initWithFrame:CGRectMake(10, 10, 50, 50)] autorelease];
    [inner setIsAccessibilityElement:YES];
    [outer addSubview:inner];
    outer->takes = true;
    auto action = [[[UIAccessibilityCustomAction alloc] initWithName:@"Clear"
                                                              target:inner
                                                            selector:@selector(clear:)] autorelease];
    [inner setAccessibilityCustomActions:[NSArray arrayWithObject:action]];
    turnReader(true);

    auto point = sim::activate(inner);
    ASSERT_TRUE(point) << "nobody took it: a finger taps";
    EXPECT_TRUE(CGPointEqualToPoint(*point, CGPointMake(35, 435)));
    [inner setAccessibilityActivationPoint:CGPointMake(12, 413)];
    EXPECT_TRUE(CGPointEqualToPoint(*sim::activate(inner), CGPointMake(12, 413)));
    inner->takes = true;
    EXPECT_FALSE(sim::activate(inner));
    EXPECT_EQ(sim::focusedElement(), inner) << "what is tapped has the focus";
    EXPECT_THAT(takeNotes(), ElementsAre("activate", "activate", "activate"));

    EXPECT_TRUE(sim::perform(inner, @"Clear"));
    EXPECT_FALSE(sim::perform(inner, @"Other"));
    EXPECT_THAT(takeNotes(), ElementsAre("Clear"));

    inner->takes = false;
    EXPECT_TRUE(sim::escape());
    EXPECT_THAT(takeNotes(), ElementsAre("escape", "escape")) << "from the focus upwards";
    sim::moveFocus(s.a);
    EXPECT_FALSE(sim::escape());
}

TEST(Accessibility, TurnsPagesOfScrollViewsAndSaysWhich) {
    Stage s;
    auto scroll = [[[UIScrollView alloc] initWithFrame:CGRectMake(0, 350, 375, 100)] autorelease];
    [scroll setContentSize:CGSizeMake(900, 100)];
    [s.window addSubview:scroll];
    [scroll setContentInset:UIEdgeInsetsMake(0, 75, 0, 0)];
    [scroll setContentOffset:CGPointMake(-75, 0)];
    addElement(scroll, CGRectMake(0, 0, 900, 50), @"wide");
    turnReader(true);
    auto left = UIAccessibilityScrollDirectionLeft, right = UIAccessibilityScrollDirectionRight;
    struct {
        UIAccessibilityScrollDirection way;
        bool turned;
        CGFloat x;
        const char *said;
    } const cases[] = {{right, false, -75, ""},
                       {UIAccessibilityScrollDirectionUp, false, -75, ""},
                       {left, true, 225, "announcement: Page 2 of 3"},
                       {left, true, 525, "announcement: Page 3 of 3"},
                       {left, false, 525, ""},
                       {right, true, 225, "announcement: Page 2 of 3"}};
    for (const auto &each : cases) {
        EXPECT_EQ(sim::scrollPage(each.way), each.turned);
        waitFor(1);
        EXPECT_EQ([scroll contentOffset].x, each.x);
        auto lines = spoken();
        EXPECT_EQ(lines.empty() ? "" : lines.front(), each.said);
    }
}

TEST(Accessibility, ShowsAsAWholeWhatIsActedOn) {
    Stage s;
    auto scroll = [[[UIScrollView alloc] initWithFrame:CGRectMake(0, 350, 375, 100)] autorelease];
    [scroll setContentSize:CGSizeMake(375, 500)];
    [scroll setContentInset:UIEdgeInsetsMake(20, 0, 10, 0)];
    [s.window addSubview:scroll];
    const struct {
        CGFloat from, y, height, offset;
    } cases[] = {{100, 150, 30, 100}, {100, 170, 40, 120}, {100, 110, 30, 90}, {100, 130, 90, 110}};
    for (const auto &each : cases) {
        UIView *row = addElement(scroll, CGRectMake(0, each.y, 375, each.height), @"row");
        [scroll setContentOffset:CGPointMake(0, each.from)];
        auto point = sim::activate(row);
        EXPECT_EQ([scroll contentOffset].y, each.offset) << each.y;
        EXPECT_EQ(point->y, 350 + each.y + each.height / 2 - each.offset) << "and touched there";
        [row removeFromSuperview];
    }
}

TEST(Accessibility, LacksInVersion7WhatCameWith8) {
    for (bool eight : {false, true}) {
        if (eight) {
            // A process has one version; what it finds by name follows the device's.
            sim::device().version = {8, 0};
        } else {
            Stage s({7, 1});
            EXPECT_FALSE([s.a respondsToSelector:@selector(accessibilityCustomActions)]);
            EXPECT_FALSE([s.a respondsToSelector:@selector(setAccessibilityElements:)]);
            EXPECT_EQ(NSClassFromString(@"UIAccessibilityCustomAction"), Nil);
        }
        auto *ask = reinterpret_cast<BOOL (*)()>(dlsym(RTLD_DEFAULT, "UIAccessibilityIsReduceMotionEnabled"));
        auto **name = static_cast<NSString **>(
            dlsym(RTLD_DEFAULT, "UIAccessibilityReduceMotionStatusDidChangeNotification"));
        EXPECT_EQ(ask != nullptr, eight);
        EXPECT_EQ(name != nullptr, eight);
        EXPECT_NE(dlsym(RTLD_DEFAULT, "UIAccessibilityIsVoiceOverRunning"), nullptr);
        if (!eight) continue;
        Witness *observer = witness("changed");
        [[NSNotificationCenter defaultCenter] addObserver:observer
                                                 selector:@selector(actWithoutArgument)
                                                     name:*name
                                                   object:nil];
        sim::setAids({.reduceMotion = true});
        sim::setAids({.reduceMotion = true, .textSize = "AX2"});
        EXPECT_TRUE(ask());
        EXPECT_THAT(takeNotes(), ElementsAre("changed"));
        EXPECT_EQ(text([[UIApplication sharedApplication] preferredContentSizeCategory]),
                  "UICTContentSizeCategoryAccessibilityL");
        EXPECT_EQ([[UIFont preferredFontForTextStyle:UIFontTextStyleBody] pointSize], 33);
    }
}
