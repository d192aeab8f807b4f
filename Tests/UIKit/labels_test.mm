// Proves how large labels are and where their text stands.
#include "Looks.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UILabel.h>

#include <cmath>

using namespace harness;

namespace {

NSString *const kLong = @"Several words that take more than one line";

UILabel *addLabel(UIView *superview, NSString *text, CGRect frame) {
    UILabel *label = [[[UILabel alloc] initWithFrame:frame] autorelease];
    [label setText:text];
    [label setTextColor:[UIColor whiteColor]];
    [superview addSubview:label];
    return label;
}

UILabel *makeLabel(NSString *text) { return addLabel(makeWindow(), text, CGRectMake(0, 0, 100, 30)); }

CGSize fitted(UILabel *label, CGFloat width) { return [label sizeThatFits:CGSizeMake(width, 0)]; }

render::TextStyle drawnStyle(UILabel *label) {
    render::Node node;
    node.bounds = {0, 0, [label bounds].size.width, [label bounds].size.height};
    [label appendDrawingsTo:node];
    return std::get<render::TextRun>(node.drawings.at(0)).style;
}

} // namespace

TEST(Labels, BeginWithTheSystemsDefaults) {
    UILabel *label = [[UILabel new] autorelease];
    EXPECT_EQ([[label font] pointSize], 17);
    EXPECT_EQ([label numberOfLines], 1);
    EXPECT_EQ([label lineBreakMode], NSLineBreakByTruncatingTail);
    EXPECT_EQ([label textAlignment], NSTextAlignmentLeft);
    EXPECT_TRUE([[label textColor] isEqual:[UIColor blackColor]]);
    EXPECT_FALSE([label isUserInteractionEnabled] || [label adjustsFontSizeToFitWidth]);
    EXPECT_EQ([label text], nil);
}

TEST(Labels, FitTheirText) {
    UILabel *label = makeLabel(kLong);
    CGSize line = fitted(label, 0);
    EXPECT_EQ(text(fitted(label, 50)), text(line)) << "one line takes what it takes";
    [label setNumberOfLines:0];
    EXPECT_EQ(text(fitted(label, 0)), text(line)) << "without a width no line ends";
    CGSize narrow = fitted(label, line.width / 2);
    EXPECT_LE(narrow.width, line.width / 2);
    EXPECT_NEAR(narrow.height, std::round(narrow.height / line.height) * line.height, 2);
    EXPECT_GE(narrow.height, 2 * line.height - 2);
    [label setNumberOfLines:2];
    EXPECT_NEAR(fitted(label, line.width / 5).height, 2 * line.height, 2) << "no more lines than it may have";
    [label setFont:[UIFont systemFontOfSize:34]];
    [label setNumberOfLines:1];
    EXPECT_NEAR(fitted(label, 0).width, 2 * line.width, 2);
    for (NSString *none : {(NSString *)nil, @""}) {
        [label setText:none];
        EXPECT_EQ(text(fitted(label, 100)), "0 0");
    }
}

TEST(Labels, FitToWholePixels) {
    for (double scale : {1.0, 2.0, 3.0}) {
        sim::device().scale = scale;
        UILabel *label = makeLabel(@"Mail");
        bool broken = false;
        for (CGFloat size = 9; size < 20; ++size) {
            [label setFont:[UIFont systemFontOfSize:size]];
            CGSize fits = fitted(label, 0), exact = [@"Mail" sizeWithFont:[label font]];
            for (CGFloat length : {fits.width, fits.height})
                EXPECT_NEAR(length * scale, std::round(length * scale), 1e-6) << scale << " " << size;
            EXPECT_GE(fits.width, exact.width);
            EXPECT_LT(fits.width, exact.width + 1 / scale);
            broken |= fits.width != std::round(fits.width);
        }
        EXPECT_EQ(broken, scale > 1) << "a point has several pixels";
    }
}

TEST(Labels, SizeToFitKeepsTheCorner) {
    UILabel *label = makeLabel(@"Mail");
    [label setFrame:CGRectMake(30, 40, 1, 1)];
    [label sizeToFit];
    EXPECT_EQ(text([label frame]), text(CGRect{{30, 40}, fitted(label, 0)}));
    [label setText:kLong];
    EXPECT_LT([label bounds].size.width, fitted(label, 0).width) << "new text leaves the size alone";
}

TEST(Labels, ShowTheirTextWhereItIsAligned) {
    UILabel *label = makeLabel(@"MMM");
    [label sizeToFit];
    CGFloat width = [label bounds].size.width;
    [label setFrame:CGRectMake(50, 0, 200, 30)];
    const std::pair<NSTextAlignment, CGFloat> cases[] = {{NSTextAlignmentLeft, 50 + width / 2},
                                                         {NSTextAlignmentCenter, 150},
                                                         {NSTextAlignmentRight, 250 - width / 2}};
    for (auto [alignment, middle] : cases) {
        [label setTextAlignment:alignment];
        EXPECT_NEAR(CGRectGetMidX(inkOnScreen()), middle, 2) << alignment;
    }
}

TEST(Labels, CutOffWhatDoesNotFit) {
    for (NSLineBreakMode mode : {NSLineBreakByClipping, NSLineBreakByTruncatingHead,
                                 NSLineBreakByTruncatingTail, NSLineBreakByTruncatingMiddle}) {
        UILabel *label = makeLabel(kLong);
        [label setFrame:CGRectMake(50, 0, 100, 30)];
        [label setLineBreakMode:mode];
        CGRect ink = inkOnScreen();
        EXPECT_GE(CGRectGetMinX(ink), 49) << mode;
        EXPECT_LE(CGRectGetMaxX(ink), 151) << mode;
        EXPECT_GT(CGRectGetMaxX(ink), 130) << mode << " but uses what there is";
        [[label window] setHidden:YES];
    }
}

TEST(Labels, ShrinkOneLineThatDoesNotFitWhenTheyMay) {
    struct {
        const char *what;
        BOOL adjusts;
        NSInteger lines;
        CGFloat part; // of the width that the text would like
        bool shrinks;
    } const cases[] = {
        {"too long", YES, 1, 0.5, true},          {"a little too long", YES, 1, 0.9, true},
        {"short enough", YES, 1, 1.1, false},     {"not allowed to", NO, 1, 0.5, false},
        {"of several lines", YES, 3, 0.5, false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UILabel *label = makeLabel(kLong);
        CGFloat likes = fitted(label, 0).width;
        [label setFrame:CGRectMake(0, 0, likes * c.part, 60)];
        [label setAdjustsFontSizeToFitWidth:c.adjusts];
        [label setNumberOfLines:c.lines];
        render::TextStyle style = drawnStyle(label);
        if (c.shrinks) {
            CGFloat width = render::measureText([kLong UTF8String], style, 0).width;
            EXPECT_LE(width, likes * c.part);
            EXPECT_GT(width, likes * c.part * 0.95) << "no more than it must";
        } else {
            EXPECT_EQ(style.size, 17);
        }
        EXPECT_EQ([[label font] pointSize], 17) << "its font stays as it is";
    }
}
