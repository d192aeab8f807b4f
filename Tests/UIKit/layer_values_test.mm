// Proves that a layer keeps whatever it is given under a key, and that its presentation shows the moment.
#include "Looks.h"

#include "UIKit/UIKit+Further.h"

using namespace harness;

@interface Token : NSObject
@end
@implementation Token
- (void)dealloc {
    note("token gone");
    [super dealloc];
}
@end

namespace {

CALayer *layerInWindow() {
    CALayer *layer = [CALayer layer];
    [[makeWindow() layer] addSublayer:layer];
    return layer;
}

CABasicAnimation *animation(NSString *keyPath, id to) {
    CABasicAnimation *result = [CABasicAnimation animationWithKeyPath:keyPath];
    [result setToValue:to];
    [result setDuration:1];
    return result;
}

} // namespace

TEST(LayerValues, AreKeptUnderAnyKeyThatIsNoProperty) {
    CALayer *layer = [[CALayer new] autorelease], *other = [[CALayer new] autorelease];
    EXPECT_EQ([layer valueForKey:@"owner"], nil);
    [layer setValue:@"first" forKey:@"owner"];
    [layer setValue:@"com.example" forKey:@"identifier"];
    [layer setValue:@"second" forKey:@"owner"];
    EXPECT_TRUE([[layer valueForKey:@"owner"] isEqual:@"second"]);
    EXPECT_TRUE([[layer valueForKey:@"identifier"] isEqual:@"com.example"]);
    EXPECT_EQ([other valueForKey:@"owner"], nil);
    [layer setValue:nil forKey:@"owner"];
    EXPECT_EQ([layer valueForKey:@"owner"], nil);
    // Of the same name as the storage of the class.
    [layer setValue:@"harmless" forKey:@"layerState"];
    EXPECT_TRUE([[layer valueForKey:@"layerState"] isEqual:@"harmless"]);
}

TEST(LayerValues, APropertyIsReachedByItsKey) {
    CALayer *layer = [[CALayer new] autorelease];
    [layer setValue:[NSNumber numberWithFloat:0.5] forKey:@"opacity"];
    [layer setValue:@"com.example" forKey:@"name"];
    [layer setCornerRadius:7];
    EXPECT_EQ([layer opacity], 0.5f);
    EXPECT_TRUE([[layer name] isEqual:@"com.example"]);
    EXPECT_EQ([[layer valueForKey:@"cornerRadius"] doubleValue], 7);
    // What is no property of a plain layer may be one of another class, whoever was asked first.
    CAShapeLayer *shape = [[CAShapeLayer new] autorelease];
    for (int i = 0; i < 2; ++i) [layer setValue:[NSNumber numberWithInt:i] forKey:@"lineWidth"];
    [shape setValue:[NSNumber numberWithInt:3] forKey:@"lineWidth"];
    EXPECT_EQ([shape lineWidth], 3);
    EXPECT_EQ([[layer valueForKey:@"lineWidth"] intValue], 1);
}

TEST(LayerValues, LiveAsLongAsTheLayer) {
    struct {
        const char *what;
        void (*change)(CALayer *);
        Lines atOnce, withTheLayer;
    } const cases[] = {
        {"taken away", [](CALayer *layer) { [layer setValue:nil forKey:@"token"]; }, {"token gone"}, {}},
        {"replaced", [](CALayer *layer) { [layer setValue:@"x" forKey:@"token"]; }, {"token gone"}, {}},
        {"left alone", [](CALayer *) {}, {}, {"token gone"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        CALayer *layer = [CALayer new];
        @autoreleasepool {
            [layer setValue:[[Token new] autorelease] forKey:@"token"];
            [[layer presentationLayer] valueForKey:@"token"];
        }
        EXPECT_THAT(takeNotes(), IsEmpty());
        @autoreleasepool {
            c.change(layer);
        }
        EXPECT_EQ(takeNotes(), c.atOnce);
        [layer release];
        EXPECT_EQ(takeNotes(), c.withTheLayer);
    }
}

TEST(Presentation, CopiesTheLayerAsItIsSeen) {
    CALayer *layer = layerInWindow();
    [layer setName:@"com.example"];
    [layer setValue:@"mine" forKey:@"owner"];
    [layer setBounds:CGRectMake(0, 0, 20, 10)];
    [layer setBackgroundColor:[[UIColor redColor] CGColor]];
    [layer setBorderColor:[[UIColor greenColor] CGColor]];
    [layer addAnimation:animation(@"cornerRadius", [NSNumber numberWithInt:8]) forKey:@"corner"];
    [layer addAnimation:animation(@"backgroundColor", (id)[[UIColor blueColor] CGColor]) forKey:@"color"];
    waitFor(0.5);
    CALayer *shown = [layer presentationLayer];
    EXPECT_TRUE([[shown name] isEqual:@"com.example"]);
    EXPECT_TRUE([[shown valueForKey:@"owner"] isEqual:@"mine"]);
    EXPECT_EQ(text([shown bounds]), "0 0 20 10");
    EXPECT_EQ([shown cornerRadius], 4);
    EXPECT_TRUE([[UIColor colorWithCGColor:[shown backgroundColor]] isEqual:[UIColor purpleColor]]);
    EXPECT_TRUE([[UIColor colorWithCGColor:[shown borderColor]] isEqual:[UIColor greenColor]]);
    EXPECT_TRUE([[UIColor colorWithCGColor:[layer backgroundColor]] isEqual:[UIColor redColor]]);
    [shown setValue:@"changed" forKey:@"owner"];
    [shown setCornerRadius:1];
    EXPECT_TRUE([[layer valueForKey:@"owner"] isEqual:@"mine"]) << "the copy is a copy";
    waitFor(0.1);
    EXPECT_EQ([shown cornerRadius], 1) << "and stands still";
    EXPECT_EQ(text([[layer presentationLayer] cornerRadius]), "4.8");
}

TEST(Presentation, OfAGradientHasItsColoursAndPlaces) {
    CAGradientLayer *layer = [CAGradientLayer layer];
    [[makeWindow() layer] addSublayer:layer];
    [layer setColors:[NSArray arrayWithObjects:(id)[[UIColor redColor] CGColor],
                                               (id)[[UIColor blueColor] CGColor], nil]];
    EXPECT_EQ([[layer presentationLayer] locations], nil);
    NSNumber *none = [NSNumber numberWithInt:0], *all = [NSNumber numberWithInt:1];
    [layer setLocations:[NSArray arrayWithObjects:none, none, nil]];
    [layer addAnimation:animation(@"locations", [NSArray arrayWithObjects:none, all, nil]) forKey:@"sweep"];
    waitFor(0.25);
    CAGradientLayer *shown = [layer presentationLayer];
    EXPECT_TRUE([[shown colors] isEqual:[layer colors]]);
    EXPECT_EQ([[[shown locations] objectAtIndex:1] doubleValue], 0.25);
    EXPECT_EQ([[[layer locations] objectAtIndex:1] doubleValue], 0);
}

TEST(LayerGeometry, ThatIsNoNumberIsAnError) {
    struct {
        const char *what;
        void (*change)(CALayer *);
        const char *reason;
    } const cases[] = {
        {"a place", [](CALayer *l) { [l setPosition:CGPointMake(NAN, 0)]; }, "CALayer position contains NaN"},
        {"a size", [](CALayer *l) { [l setBounds:CGRectMake(0, 0, 1, NAN)]; }, "CALayer bounds contains NaN"},
        {"a frame", [](CALayer *l) { [l setFrame:CGRectMake(0, NAN, 1, 1)]; },
         "CALayer position contains NaN"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        CALayer *layer = [[CALayer new] autorelease];
        std::string reason;
        @try {
            c.change(layer);
        } @catch (NSException *exception) {
            EXPECT_TRUE([[exception name] isEqual:@"CALayerInvalidGeometry"]);
            reason = [[exception reason] UTF8String];
        }
        EXPECT_EQ(reason, c.reason);
        EXPECT_EQ(text([layer frame]), "0 0 0 0");
    }
}
