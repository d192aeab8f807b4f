#pragma once

#include <Foundation/NSObject.h>

@interface NSValue : NSObject <NSCopying>
@end

@interface NSNumber : NSValue
+ (NSNumber *)numberWithBool:(BOOL)value;
+ (NSNumber *)numberWithInt:(int)value;
+ (NSNumber *)numberWithFloat:(float)value;
+ (NSNumber *)numberWithDouble:(double)value;
- (BOOL)boolValue;
- (int)intValue;
- (float)floatValue;
- (double)doubleValue;
- (NSString *)stringValue;
@end
