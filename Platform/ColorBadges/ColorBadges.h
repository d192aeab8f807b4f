// Another extension, when installed: a colour for each icon's badge.
#pragma once

#import <Foundation/Foundation.h>

@interface ColorBadges : NSObject {
@public
    void *_colorBadgesState;
}
+ (instancetype)sharedInstance;
+ (BOOL)isEnabled;
+ (BOOL)areBordersEnabled;
+ (BOOL)isDarkColor:(int)color;
- (int)colorForIcon:(id)icon; // 0xRRGGBB
@end
