// Proves that the display takes every finger with it when it goes off (known): views hear that their touches
// were cancelled, gestures that have begun are cancelled and others fail, and what the fingers do after that
// is nothing.
#include "Fingers.h"
#include "UIKit/UIKit+Further.h"

#include "UIKit/Touch/RecognizerState.h"
#include "UIKit/Touch/TouchInput.h"

namespace {

using Lines = std::vector<std::string>;
Lines heard;

const char *const kStates[] = {"possible", "began", "changed", "ended", "cancelled", "failed"};

} // namespace

// Notes what its touches and its recogniser come to.
@interface NotingView : UIView {
@public
    const char *name;
}
@end
@implementation NotingView
- (void)note:(const char *)what {
    heard.push_back(std::string(name) + " " + what);
}
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    [self note:"touched"];
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    [self note:"let go"];
}
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [self note:"taken away"];
}
- (void)act:(UIGestureRecognizer *)recognizer {
    [self note:kStates[[recognizer state]]];
}
@end

namespace {

struct Stage {
    UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 375, 667)];
    UIScrollView *scrollView =
        [[[UIScrollView alloc] initWithFrame:CGRectMake(0, 500, 375, 100)] autorelease];

    Stage() {
        [scrollView setContentSize:CGSizeMake(2000, 100)];
        [window addSubview:scrollView];
        [window setWindowLevel:UIWindowLevelAlert];
        [window setHidden:NO];
    }
    // A strip of 100 points' height, with a recogniser unless `kind` is nil.
    UIGestureRecognizer *add(const char *name, CGFloat y, Class kind) const {
        auto *view = [[[NotingView alloc] initWithFrame:CGRectMake(0, y, 375, 100)] autorelease];
        view->name = name;
        [view setMultipleTouchEnabled:YES];
        [window addSubview:view];
        UIGestureRecognizer *recognizer = [[[kind alloc] initWithTarget:view
                                                                 action:@selector(act:)] autorelease];
        if (recognizer) [view addGestureRecognizer:recognizer];
        return recognizer;
    }
};

} // namespace

TEST(Display, TakesEveryFingerAwayWhenItGoesOff) {
    harness::boot();
    Stage stage;
    stage.add("plain", 0, nil);
    stage.add("press", 100, [UILongPressGestureRecognizer class]);
    UIGestureRecognizer *tap = stage.add("tap", 200, [UITapGestureRecognizer class]);
    stage.add("pan", 300, [UIPanGestureRecognizer class]);
    // Two on the first, one on each of the others.
    const CGPoint places[] = {{50, 50}, {300, 50}, {50, 150}, {50, 250}, {50, 350}, {300, 550}};
    int finger = 0;
    for (CGPoint place : places) {
        if (place.y == 250) harness::wait(0.6); // the press has ripened
        sim::touchBegan(finger++, place);
    }
    for (int moving : {4, 5}) sim::touchMoved(moving, {places[moving].x - 30, places[moving].y});
    EXPECT_TRUE([stage.scrollView isDragging]);
    heard.clear();
    sim::setDisplay(false);
    EXPECT_EQ(heard, (Lines{"plain taken away", "plain taken away", "press cancelled", "tap taken away",
                            "pan cancelled"}));
    EXPECT_EQ(kStates[[tap state]], std::string("possible")) << "it has failed and was reset";
    EXPECT_FALSE([stage.scrollView isTracking] || [stage.scrollView isDragging]);
    EXPECT_EQ(sim::ongoingInteractions(), Lines{});

    heard.clear();
    for (int moving = 0; moving < finger; ++moving) sim::touchMoved(moving, {200, 200});
    sim::setDisplay(true);
    for (int moving = 0; moving < finger; ++moving) {
        sim::touchMoved(moving, {200, 250});
        sim::touchEnded(moving);
    }
    harness::wait(2);
    EXPECT_EQ(heard, Lines{}) << "they have to come down anew";
}
