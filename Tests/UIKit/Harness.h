// A portrait screen with views, fingers on it that move on the virtual clock, and a record of what they
// cause.
#pragma once

#include "Runtime/Time/Clock.hpp"
#include "UIKit/Touch/TouchInput.h"

#include <UIKit/UIKit.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace harness {

using testing::ElementsAre;
using testing::IsEmpty;

// What happened since the last call, in order.
using Lines = std::vector<std::string>;
void note(const std::string &line);
Lines takeNotes();

// A visible window over the whole screen, above the ones before it; it lives as long as the process.
UIWindow *makeWindow();
// A view in `superview`, which alone retains it.
UIView *addView(UIView *superview, CGRect frame);

void waitFor(double seconds);
double now();

// One finger: what it does happens before the timers of the same moment. Points are the screen's.
void down(CGPoint point, int finger = 1);
void move(CGPoint point, int finger = 1);
void up(int finger = 1);
void cancel(int finger = 1);

// Lifts after a tenth of a second, as a person's tap does.
void tapAt(CGPoint point);
void hold(CGPoint point, double seconds);
// 60 samples a second from where the finger is down.
void glide(CGPoint from, CGPoint to, double seconds, int finger = 1);
// Down, along the line, and a rest at its end before the finger lifts.
void dragFromTo(CGPoint from, CGPoint to, double seconds);
// The same, lifting while it moves.
void flingFromTo(CGPoint from, CGPoint to, double seconds);

// "Began", "Ended" and so on.
std::string stateOf(UIGestureRecognizer *recognizer);

} // namespace harness

// A target that notes "name State" for each action of a recogniser, and a delegate that answers as it is
// told.
@interface Witness : NSObject <UIGestureRecognizerDelegate> {
@public
    std::string name;
    bool refusesToBegin, refusesTouches, runsTogether;
    std::function<void(UIGestureRecognizer *)> also; // after each note
}
- (void)act:(UIGestureRecognizer *)recognizer;
// Notes the name alone.
- (void)actWithoutArgument;
@end

namespace harness {

// Autoreleased, as far as the process of one case goes: it lives to the end.
Witness *witness(const std::string &name);

// A recogniser of that class on `view` whose actions `witness` notes, and whose delegate it is.
template <typename Recognizer>
Recognizer *addRecognizer(UIView *view, Class kind, Witness *witness) {
    auto *recognizer = static_cast<Recognizer *>([[kind alloc] initWithTarget:witness
                                                                       action:@selector(act:)]);
    [recognizer setDelegate:witness];
    [view addGestureRecognizer:recognizer];
    [recognizer release];
    return recognizer;
}
inline UIGestureRecognizer *addRecognizer(UIView *view, Class kind, const std::string &name) {
    return addRecognizer<UIGestureRecognizer>(view, kind, witness(name));
}

} // namespace harness

// A view that notes "name began", "moved", "ended" and "cancelled" for its touches.
@interface TouchedView : UIView {
@public
    std::string name;
}
@end

namespace harness {
TouchedView *addTouchedView(UIView *superview, CGRect frame, const std::string &name);
}
