#include "StatusBarState.h"

@implementation UIStatusBarForegroundStyleAttributes

- (instancetype)initWithTintColor:(UIColor *)color {
    if ((self = [super init])) _tintColor = [color retain];
    return self;
}

- (void)dealloc {
    [_tintColor release];
    [super dealloc];
}

- (UIColor *)tintColor {
    return _tintColor;
}

- (NSString *)expandedNameForImageName:(NSString *)name {
    return [@"Black_" stringByAppendingString:name];
}

@end

@implementation UIStatusBarLockScreenForegroundStyleAttributes

- (NSString *)expandedNameForImageName:(NSString *)name {
    return [@"LockScreen_" stringByAppendingString:name];
}

@end
