// Fonts, and the size of a text in one.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

@interface UIFont : NSObject <NSCopying> {
@public
    void *_fontState;
}
// nil for a family that the system does not have. `size` in points.
+ (UIFont *)fontWithName:(NSString *)name size:(CGFloat)size;
+ (UIFont *)systemFontOfSize:(CGFloat)size;
+ (UIFont *)boldSystemFontOfSize:(CGFloat)size;
@property (nonatomic, readonly, copy) NSString *fontName;
@property (nonatomic, readonly) CGFloat pointSize;
@property (nonatomic, readonly) CGFloat lineHeight;
@end

@interface NSString (UIStringDrawing)
// The size of the text on one line, in points.
- (CGSize)sizeWithFont:(UIFont *)font;
@end
