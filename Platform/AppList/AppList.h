// The list of installed applications that extensions show in their settings.
#pragma once

#include <UIKit/UIImage.h>

enum { ALApplicationIconSizeSmall = 29, ALApplicationIconSizeLarge = 59 };

@interface ALApplicationList : NSObject {
@public
    void *_applicationListState;
}
+ (instancetype)sharedApplicationList;
// Display identifier to localised name.
@property (nonatomic, readonly) NSDictionary *applications;
// Square, in points; the generic icon for an application without one of its own.
- (UIImage *)iconOfSize:(NSUInteger)size forDisplayIdentifier:(NSString *)identifier;
@end
