#pragma once

#include <Foundation/NSObject.h>

@class NSArray, NSError;

typedef NSUInteger NSStringEncoding;
enum { NSUTF8StringEncoding = 4 };

typedef struct _NSRange {
    NSUInteger location, length;
} NSRange;

@interface NSString : NSObject <NSCopying, NSMutableCopying>
+ (instancetype)string;
+ (instancetype)stringWithFormat:(NSString *)format, ...;
+ (instancetype)stringWithUTF8String:(const char *)text;
// nil when the bytes are not of that encoding.
+ (instancetype)stringWithCString:(const char *)text encoding:(NSStringEncoding)encoding;
- (NSUInteger)length;
- (const char *)UTF8String;
- (BOOL)isEqualToString:(NSString *)other;
- (BOOL)hasPrefix:(NSString *)prefix;
- (BOOL)hasSuffix:(NSString *)suffix;
// NSNotFound as location when it does not occur.
- (NSRange)rangeOfString:(NSString *)part;
// Of the whole character that the unit at `index` belongs to.
- (NSRange)rangeOfComposedCharacterSequenceAtIndex:(NSUInteger)index;
- (NSArray *)componentsSeparatedByString:(NSString *)separator;
- (NSString *)stringByAppendingString:(NSString *)other;
- (NSString *)substringFromIndex:(NSUInteger)index;
- (NSString *)substringToIndex:(NSUInteger)index;
- (unsigned short)characterAtIndex:(NSUInteger)index;
- (int)intValue;
- (float)floatValue;
- (BOOL)boolValue;
- (BOOL)writeToFile:(NSString *)path
         atomically:(BOOL)atomically
           encoding:(NSStringEncoding)encoding
              error:(NSError **)error;
@end

@interface NSConstantString : NSString
@end
