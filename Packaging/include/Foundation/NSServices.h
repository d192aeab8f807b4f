// Time, notifications, defaults and files.
#pragma once

#include <Foundation/NSObject.h>

@class NSArray, NSDictionary;

@interface NSDate : NSObject <NSCopying>
+ (instancetype)date;
@end

@interface NSDateFormatter : NSObject
- (void)setDateFormat:(NSString *)format;
- (NSString *)stringFromDate:(NSDate *)date;
@end

// The timer retains its target until it is invalidated.
@interface NSTimer : NSObject
+ (NSTimer *)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                     target:(id)target
                                   selector:(SEL)selector
                                   userInfo:(id)userInfo
                                    repeats:(BOOL)repeats;
+ (NSTimer *)timerWithTimeInterval:(NSTimeInterval)interval
                            target:(id)target
                          selector:(SEL)selector
                          userInfo:(id)userInfo
                           repeats:(BOOL)repeats;
- (void)fire;
- (void)invalidate;
- (BOOL)isValid;
@end

@interface NSRunLoop : NSObject
+ (NSRunLoop *)mainRunLoop;
+ (NSRunLoop *)currentRunLoop;
- (NSString *)currentMode;
- (void)addTimer:(NSTimer *)timer forMode:(NSString *)mode;
@end

@interface NSNotification : NSObject
- (NSString *)name;
- (id)object;
@end

// Observers are not retained.
@interface NSNotificationCenter : NSObject
+ (NSNotificationCenter *)defaultCenter;
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString *)name object:(id)object;
- (void)removeObserver:(id)observer;
- (void)postNotificationName:(NSString *)name object:(id)object;
@end

@interface NSUserDefaults : NSObject
+ (NSUserDefaults *)standardUserDefaults;
- (id)objectForKey:(NSString *)key;
@end

@class NSError;

@interface NSFileManager : NSObject
+ (NSFileManager *)defaultManager;
- (BOOL)fileExistsAtPath:(NSString *)path;
- (BOOL)fileExistsAtPath:(NSString *)path isDirectory:(BOOL *)isDirectory;
- (BOOL)isReadableFileAtPath:(NSString *)path;
- (BOOL)removeItemAtPath:(NSString *)path error:(NSError **)error;
- (NSArray *)contentsOfDirectoryAtPath:(NSString *)path error:(NSError **)error;
@end
