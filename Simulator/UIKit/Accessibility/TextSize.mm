// The size of text that the user has chosen, and the fonts that follow it.
#include "AidSettings.h"

#include <UIKit/UIContentSizeCategory.h>

#include <array>
#include <string_view>

NSString *const UIContentSizeCategoryExtraSmall = @"UICTContentSizeCategoryXS";
NSString *const UIContentSizeCategorySmall = @"UICTContentSizeCategoryS";
NSString *const UIContentSizeCategoryMedium = @"UICTContentSizeCategoryM";
NSString *const UIContentSizeCategoryLarge = @"UICTContentSizeCategoryL";
NSString *const UIContentSizeCategoryExtraLarge = @"UICTContentSizeCategoryXL";
NSString *const UIContentSizeCategoryExtraExtraLarge = @"UICTContentSizeCategoryXXL";
NSString *const UIContentSizeCategoryExtraExtraExtraLarge = @"UICTContentSizeCategoryXXXL";
NSString *const UIContentSizeCategoryAccessibilityMedium = @"UICTContentSizeCategoryAccessibilityM";
NSString *const UIContentSizeCategoryAccessibilityLarge = @"UICTContentSizeCategoryAccessibilityL";
NSString *const UIContentSizeCategoryAccessibilityExtraLarge = @"UICTContentSizeCategoryAccessibilityXL";
NSString *const UIContentSizeCategoryAccessibilityExtraExtraLarge =
    @"UICTContentSizeCategoryAccessibilityXXL";
NSString *const UIContentSizeCategoryAccessibilityExtraExtraExtraLarge =
    @"UICTContentSizeCategoryAccessibilityXXXL";

NSString *const UIContentSizeCategoryDidChangeNotification = @"UIContentSizeCategoryDidChangeNotification";
NSString *const UIContentSizeCategoryNewValueKey = @"UIContentSizeCategoryNewValueKey";

NSString *const UIFontTextStyleHeadline = @"UICTFontTextStyleHeadline";
NSString *const UIFontTextStyleSubheadline = @"UICTFontTextStyleSubhead";
NSString *const UIFontTextStyleBody = @"UICTFontTextStyleBody";
NSString *const UIFontTextStyleFootnote = @"UICTFontTextStyleFootnote";
NSString *const UIFontTextStyleCaption1 = @"UICTFontTextStyleCaption1";
NSString *const UIFontTextStyleCaption2 = @"UICTFontTextStyleCaption2";

namespace {

constexpr size_t kSizes = std::size(sim::kTextSizes), kDefault = 3;

// In the order of kTextSizes.
NSString *const kCategories[kSizes] = {@"UICTContentSizeCategoryXS",
                                       @"UICTContentSizeCategoryS",
                                       @"UICTContentSizeCategoryM",
                                       @"UICTContentSizeCategoryL",
                                       @"UICTContentSizeCategoryXL",
                                       @"UICTContentSizeCategoryXXL",
                                       @"UICTContentSizeCategoryXXXL",
                                       @"UICTContentSizeCategoryAccessibilityM",
                                       @"UICTContentSizeCategoryAccessibilityL",
                                       @"UICTContentSizeCategoryAccessibilityXL",
                                       @"UICTContentSizeCategoryAccessibilityXXL",
                                       @"UICTContentSizeCategoryAccessibilityXXXL"};

// Points; the sizes for those who see badly enlarge the body alone.
struct Style {
    NSString *name;
    bool bold;
    std::array<double, kSizes> sizes;
};
const Style kStyles[] = {
    {@"UICTFontTextStyleHeadline", true, {14, 15, 16, 17, 19, 21, 23, 23, 23, 23, 23, 23}},
    {@"UICTFontTextStyleSubhead", false, {12, 13, 14, 15, 17, 19, 21, 21, 21, 21, 21, 21}},
    {@"UICTFontTextStyleBody", false, {14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53}},
    {@"UICTFontTextStyleFootnote", false, {12, 12, 12, 13, 15, 17, 19, 19, 19, 19, 19, 19}},
    {@"UICTFontTextStyleCaption1", false, {11, 11, 11, 12, 14, 16, 18, 18, 18, 18, 18, 18}},
    {@"UICTFontTextStyleCaption2", false, {11, 11, 11, 11, 13, 15, 17, 17, 17, 17, 17, 17}},
};

size_t chosen() {
    for (size_t i = 0; i < kSizes; ++i)
        if (sim::aids().textSize == sim::kTextSizes[i]) return i;
    return kDefault;
}

} // namespace

@implementation UIApplication (UIContentSizeCategory)
- (NSString *)preferredContentSizeCategory {
    return kCategories[chosen()];
}
@end

@implementation UIFont (UIFontTextStyle)
+ (UIFont *)preferredFontForTextStyle:(NSString *)style {
    for (const Style &known : kStyles) {
        if (![known.name isEqualToString:style]) continue;
        double size = known.sizes[chosen()];
        return known.bold ? [self boldSystemFontOfSize:size] : [self systemFontOfSize:size];
    }
    return nil;
}
@end
