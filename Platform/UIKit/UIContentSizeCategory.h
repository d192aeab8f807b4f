// The size of text that the user has chosen, and the fonts that follow it.
#pragma once

#include <UIKit/UIApplication.h>
#include <UIKit/UIFont.h>

extern "C" {
extern NSString *const UIContentSizeCategoryExtraSmall;
extern NSString *const UIContentSizeCategorySmall;
extern NSString *const UIContentSizeCategoryMedium;
// What a device comes with.
extern NSString *const UIContentSizeCategoryLarge;
extern NSString *const UIContentSizeCategoryExtraLarge;
extern NSString *const UIContentSizeCategoryExtraExtraLarge;
extern NSString *const UIContentSizeCategoryExtraExtraExtraLarge;
extern NSString *const UIContentSizeCategoryAccessibilityMedium;
extern NSString *const UIContentSizeCategoryAccessibilityLarge;
extern NSString *const UIContentSizeCategoryAccessibilityExtraLarge;
extern NSString *const UIContentSizeCategoryAccessibilityExtraExtraLarge;
extern NSString *const UIContentSizeCategoryAccessibilityExtraExtraExtraLarge;

// Posted to the default centre after a change; the object is the application, the user information has the
// new category under the key.
extern NSString *const UIContentSizeCategoryDidChangeNotification;
extern NSString *const UIContentSizeCategoryNewValueKey;

extern NSString *const UIFontTextStyleHeadline;
extern NSString *const UIFontTextStyleSubheadline;
extern NSString *const UIFontTextStyleBody;
extern NSString *const UIFontTextStyleFootnote;
extern NSString *const UIFontTextStyleCaption1;
extern NSString *const UIFontTextStyleCaption2;
}

@interface UIApplication (UIContentSizeCategory)
@property (nonatomic, readonly, copy) NSString *preferredContentSizeCategory;
@end

@interface UIFont (UIFontTextStyle)
// The system's font for text of that kind, in the size that the user has chosen now.
+ (UIFont *)preferredFontForTextStyle:(NSString *)style;
@end
