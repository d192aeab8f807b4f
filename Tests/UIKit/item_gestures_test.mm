// Proves what fingers cause on a strip whose items each take a tap, a press that the tap must fail for, and a
// pan that runs together with anything; and on keys that are tapped fast.
#include "ScrollStage.h"

using namespace harness;

namespace {

// Three items of 100 points side by side; 600 points of content in a strip of 300.
struct Strip : ScrollStage {
    Strip() : ScrollStage({600, 200}) {
        for (NSInteger i : {0, 1, 2}) {
            UIView *item = addView(view, CGRectMake(CGFloat(i) * 100, 0, 100, 200));
            auto named = [=](const char *name) { return harness::witness(name + std::to_string(i)); };
            Witness *panWitness = named("pan");
            panWitness->runsTogether = true;
            addRecognizer<UIGestureRecognizer>(item, [UIPanGestureRecognizer class], panWitness);
            UIGestureRecognizer *tap =
                addRecognizer<UIGestureRecognizer>(item, [UITapGestureRecognizer class], named("tap"));
            auto *press = addRecognizer<UILongPressGestureRecognizer>(
                item, [UILongPressGestureRecognizer class], named("press"));
            [press setMinimumPressDuration:0.1];
            [press requireGestureRecognizerToFail:tap];
        }
    }
};

// What came, without the steps on the way.
Lines outcome() {
    Lines lines = takeNotes();
    std::erase_if(lines, [](const std::string &line) {
        return line.ends_with("Changed") || line.find("decelerate") != std::string::npos;
    });
    return lines;
}

} // namespace

TEST(Items, TellTapPressPanAndScrollApart) {
    struct {
        const char *what;
        std::function<void()> gesture;
        Lines heard;
        bool scrolls;
    } const cases[] = {
        {"a tap",
         [] {
             tapAt({150, 100});
         },
         {"tap1 Ended"},
         false},
        {"a slow tap",
         [] {
             hold({150, 100}, 0.7);
         },
         {"tap1 Ended"},
         false},
        {"a press",
         [] {
             hold({150, 100}, 1);
         },
         {"press1 Began", "press1 Ended"},
         false},
        {"up and down",
         [] {
             dragFromTo({150, 40}, {150, 160}, 0.3);
         },
         {"pan1 Began", "pan1 Ended"},
         false},
        {"along",
         [] {
             dragFromTo({150, 100}, {50, 100}, 0.3);
         },
         {"pan1 Began", "will drag", "pan1 Ended", "end drag stops"},
         true},
        {"a press that goes on as a drag",
         [] {
             down({150, 100});
             waitFor(1);
             glide({150, 100}, {50, 100}, 0.3);
             up();
         },
         {"press1 Began", "pan1 Began", "pan1 Ended", "press1 Ended"},
         false},
        {"two taps on two items",
         [] {
             tapAt({50, 100}), tapAt({150, 100});
         },
         {"tap0 Ended", "tap1 Ended"},
         false},
        {"a finger that the system takes away",
         [] {
             down({150, 100});
             waitFor(0.3);
             cancel();
         },
         {},
         false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Strip strip;
        c.gesture();
        EXPECT_EQ(outcome(), c.heard);
        EXPECT_EQ(strip.x() > 0, c.scrolls);
        waitFor(2);
        EXPECT_THAT(outcome(), IsEmpty()) << "nothing is left over";
    }
}

TEST(Items, OfAStripThatTakesNoTouchesAreStill) {
    Strip strip;
    [strip.view setUserInteractionEnabled:NO];
    tapAt({150, 100});
    dragFromTo({150, 100}, {50, 100}, 0.3);
    EXPECT_THAT(takeNotes(), IsEmpty());
    [strip.view setUserInteractionEnabled:YES];
    tapAt({150, 100});
    EXPECT_THAT(takeNotes(), ElementsAre("tap1 Ended"));
}

TEST(Keys, AreEachHeardHoweverFastTheyAreTapped) {
    struct {
        const char *what;
        void (*type)();
        Lines heard;
    } const cases[] = {
        {"one after the other",
         [] {
             tapAt({50, 50}), tapAt({150, 50});
         },
         {"key0 Ended", "key1 Ended"}},
        {"one key again and again",
         [] {
             hold({50, 50}, 0.02), hold({50, 50}, 0.02), hold({50, 50}, 0.02);
         },
         {"key0 Ended", "key0 Ended", "key0 Ended"}},
        {"the next before the last is let go",
         [] {
             down({50, 50}, 1), waitFor(0.05), down({150, 50}, 2), waitFor(0.05);
             up(1), waitFor(0.05), up(2);
         },
         {"key0 Ended", "key1 Ended"}},
        {"two at once, let go the other way round",
         [] {
             down({50, 50}, 1), down({150, 50}, 2), waitFor(0.05);
             up(2), up(1);
         },
         {"key1 Ended", "key0 Ended"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIView *pad = addView(makeWindow(), CGRectMake(0, 0, 200, 100));
        for (NSInteger i : {0, 1})
            addRecognizer(addView(pad, CGRectMake(CGFloat(i) * 100, 0, 100, 100)),
                          [UITapGestureRecognizer class], "key" + std::to_string(i));
        c.type();
        EXPECT_EQ(takeNotes(), c.heard);
    }
}
