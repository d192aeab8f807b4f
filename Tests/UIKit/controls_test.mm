// Proves what a control, a button and a view controller do under a finger and when they are asked.
#include "Harness.h"

#include "UIKit/UIKit+Further.h"

using namespace harness;

// Notes each event of a control by its name.
@interface ControlWitness : NSObject
@end
@implementation ControlWitness
- (void)down {
    note("down");
}
- (void)repeat {
    note("repeat");
}
- (void)dragInside {
    note("drag inside");
}
- (void)dragOutside {
    note("drag outside");
}
- (void)enter {
    note("enter");
}
- (void)exit {
    note("exit");
}
- (void)upInside {
    note("up inside");
}
- (void)upOutside {
    note("up outside");
}
- (void)cancelled {
    note("cancelled");
}
- (void)from:(UIControl *)control event:(UIEvent *)event {
    note([control isKindOfClass:[UIControl class]] && event ? "control and event" : "something is missing");
}
- (void)from:(UIControl *)control {
    note([control isKindOfClass:[UIControl class]] ? "control" : "something is missing");
}
@end

namespace {

constexpr CGRect kFrame = {{100, 100}, {80, 40}};

UIControl *addControl(UIView *superview, Class kind) {
    UIControl *control = [[kind alloc] initWithFrame:kFrame];
    [superview addSubview:control];
    [control release];
    ControlWitness *target = [[ControlWitness new] autorelease];
    const std::pair<UIControlEvents, SEL> rows[] = {
        {UIControlEventTouchDown, @selector(down)},
        {UIControlEventTouchDownRepeat, @selector(repeat)},
        {UIControlEventTouchDragInside, @selector(dragInside)},
        {UIControlEventTouchDragOutside, @selector(dragOutside)},
        {UIControlEventTouchDragEnter, @selector(enter)},
        {UIControlEventTouchDragExit, @selector(exit)},
        {UIControlEventTouchUpInside, @selector(upInside)},
        {UIControlEventTouchUpOutside, @selector(upOutside)},
        {UIControlEventTouchCancel, @selector(cancelled)},
    };
    for (auto [events, action] : rows) [control addTarget:target action:action forControlEvents:events];
    return control;
}

UIButton *addButton(UIButtonType type, UIView *superview) {
    UIButton *button = [UIButton buttonWithType:type];
    [button setFrame:kFrame];
    [superview addSubview:button];
    return button;
}

std::vector<CGFloat> components(UIColor *color) {
    std::vector<CGFloat> result(4, -1);
    [color getRed:&result[0] green:&result[1] blue:&result[2] alpha:&result[3]];
    return result;
}

} // namespace

TEST(Control, TellsWhatTheFingerDoes) {
    // The finger comes down in the middle, at (140, 120); 70 points beyond the edge count as inside.
    struct {
        const char *what;
        std::vector<CGPoint> way;
        bool taken; // by the system, at the end
        Lines events;
    } const cases[] = {
        {"a tap", {}, false, {"down", "up inside"}},
        {"a move within", {{110, 105}}, false, {"down", "drag inside", "up inside"}},
        {"just within the slop", {{249, 209}}, false, {"down", "drag inside", "up inside"}},
        {"beyond it", {{251, 120}}, false, {"down", "drag outside", "exit", "up outside"}},
        {"out and on",
         {{251, 120}, {300, 120}},
         false,
         {"down", "drag outside", "exit", "drag outside", "up outside"}},
        {"out and in again",
         {{251, 120}, {240, 120}},
         false,
         {"down", "drag outside", "exit", "drag inside", "enter", "up inside"}},
        {"a touch that is taken away", {}, true, {"down", "cancelled"}},
    };
    UIControl *control = addControl(makeWindow(), [UIControl class]);
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        waitFor(1);
        down({140, 120});
        EXPECT_TRUE([control isHighlighted] && [control isTracking]);
        for (CGPoint place : c.way) move(place);
        c.taken ? cancel() : up();
        EXPECT_EQ(takeNotes(), c.events);
        EXPECT_FALSE([control isHighlighted] || [control isTracking]);
    }
    waitFor(1);
    tapAt({140, 120});
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), ElementsAre("down", "up inside", "down", "repeat", "up inside"));
}

TEST(Control, IsSilentWhenDisabled) {
    UIControl *control = addControl(makeWindow(), [UIControl class]);
    down({140, 120});
    [control setEnabled:NO];
    up();
    EXPECT_THAT(takeNotes(), ElementsAre("down", "cancelled"));
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), IsEmpty());
    [control setSelected:YES];
    EXPECT_EQ([control state], NSUInteger(UIControlStateDisabled | UIControlStateSelected));
}

TEST(Control, SendsOncePerRowWithTheArgumentsThatTheActionTakes) {
    UIControl *control = [[UIControl alloc] initWithFrame:kFrame];
    [makeWindow() addSubview:control];
    ControlWitness *target = [[ControlWitness new] autorelease];
    UIControlEvents both = UIControlEventTouchDown | UIControlEventTouchUpInside;
    [control addTarget:target action:@selector(from:event:) forControlEvents:both];
    [control addTarget:target action:@selector(from:) forControlEvents:UIControlEventValueChanged];
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), ElementsAre("control and event", "control and event"));
    [control sendActionsForControlEvents:UIControlEventValueChanged];
    EXPECT_THAT(takeNotes(), ElementsAre("control"));
    [control removeTarget:target action:@selector(from:event:) forControlEvents:UIControlEventTouchDown];
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), ElementsAre("control and event"));
    [control removeTarget:nil action:nullptr forControlEvents:both | UIControlEventValueChanged];
    tapAt({140, 120});
    [control sendActionsForControlEvents:UIControlEventValueChanged];
    EXPECT_THAT(takeNotes(), IsEmpty());
    [control release];
}

// Answers for the controls in its view.
@interface ChainController : UIViewController {
@public
    int loads;
}
@end
@implementation ChainController
- (void)viewDidLoad {
    ++loads;
}
- (void)answer:(UIControl *)control {
    note("controller");
}
@end

TEST(Control, WithoutATargetAsksTheResponderChain) {
    auto *controller = [ChainController new];
    EXPECT_EQ(controller->loads, 0);
    UIWindow *window = makeWindow();
    [window setRootViewController:controller];
    [controller view];
    EXPECT_EQ(controller->loads, 1) << "the view is made once, when it is first asked for";
    UIControl *control = [[[UIControl alloc] initWithFrame:kFrame] autorelease];
    [[controller view] addSubview:control];
    [control addTarget:nil action:@selector(answer:) forControlEvents:UIControlEventTouchUpInside];
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), ElementsAre("controller"));
    EXPECT_EQ([[controller view] nextResponder], controller);
    EXPECT_EQ([controller nextResponder], window);
    [window setRootViewController:nil];
    [controller release];
}

TEST(Button, ShowsTheTitleOfItsState) {
    UIButton *button = addButton(UIButtonTypeCustom, makeWindow());
    [button setTitle:@"Go" forState:UIControlStateNormal];
    [button setTitle:@"Going" forState:UIControlStateHighlighted];
    [button setTitleColor:[UIColor redColor] forState:UIControlStateDisabled];
    UILabel *label = [button titleLabel];
    EXPECT_TRUE([[label text] isEqualToString:@"Go"]);
    EXPECT_EQ([label textColor], [UIColor whiteColor]);
    down({140, 120});
    EXPECT_TRUE([[label text] isEqualToString:@"Going"]);
    EXPECT_TRUE([[button currentTitle] isEqualToString:@"Going"]);
    EXPECT_EQ([label alpha], 1);
    up();
    [button setEnabled:NO];
    EXPECT_TRUE([[label text] isEqualToString:@"Go"]) << "what has no title of its own shows the normal one";
    EXPECT_EQ([label textColor], [UIColor redColor]);
    [button setTitle:nil forState:UIControlStateNormal];
    EXPECT_EQ([button currentTitle], nil);
}

TEST(Button, OfTheSystemIsTintedAndDims) {
    UIWindow *window = makeWindow();
    UIButton *button = addButton(UIButtonTypeSystem, window);
    [button setTitle:@"Go" forState:UIControlStateNormal];
    EXPECT_EQ(components([[button titleLabel] textColor]), components([button tintColor]));
    [window setTintColor:[UIColor purpleColor]];
    EXPECT_EQ([[button titleLabel] textColor], [UIColor purpleColor]);
    down({140, 120});
    EXPECT_LT([[button titleLabel] alpha], 0.5);
    up();
    EXPECT_EQ([[button titleLabel] alpha], 1);
    [button setEnabled:NO];
    EXPECT_LT(components([[button titleLabel] textColor])[3], 1);
}

TEST(Button, CentresItsTitle) {
    UIButton *button = addButton(UIButtonTypeCustom, makeWindow());
    UILabel *label = [button titleLabel];
    [button setTitle:@"Go" forState:UIControlStateNormal];
    waitFor(0);
    auto expectCentred = [&] {
        CGRect bounds = [button bounds], frame = [label frame];
        EXPECT_NEAR(CGRectGetMidX(frame), CGRectGetMidX(bounds), 0.5);
        EXPECT_NEAR(CGRectGetMidY(frame), CGRectGetMidY(bounds), 0.5);
        EXPECT_TRUE(CGRectEqualToRect(CGRectIntersection(frame, bounds), frame)) << "inside the button";
    };
    expectCentred();
    CGFloat width = [label frame].size.width;
    [label setFont:[UIFont systemFontOfSize:30]];
    waitFor(0);
    EXPECT_GT([label frame].size.width, width);
    expectCentred();
    [button setTitle:@"A title that does not fit" forState:UIControlStateNormal];
    [button setFrame:CGRectMake(0, 0, 60, 20)];
    waitFor(0);
    expectCentred();
    [button sizeToFit];
    EXPECT_GT([button bounds].size.width, 200);
}

TEST(Button, KeepsItsTapFromRecognisersAroundIt) {
    UIView *around = addView(makeWindow(), CGRectMake(0, 0, 300, 300));
    addRecognizer(around, [UITapGestureRecognizer class], "around");
    auto *button = static_cast<UIButton *>(addControl(around, [UIButton class]));
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), ElementsAre("down", "up inside"));
    addRecognizer(button, [UITapGestureRecognizer class], "own");
    waitFor(1);
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), ElementsAre("down", "cancelled", "own Ended")) << "one of its own comes first";
    [button setEnabled:NO];
    [button setGestureRecognizers:nil];
    tapAt({140, 120});
    EXPECT_THAT(takeNotes(), ElementsAre("around Ended"));
}
