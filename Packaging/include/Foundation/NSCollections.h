#pragma once

#include <Foundation/NSObject.h>

@interface NSArray : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
+ (instancetype)array;
+ (instancetype)arrayWithObject:(id)object;
+ (instancetype)arrayWithObjects:(id)first, ...;
+ (instancetype)arrayWithObjects:(const id[])objects count:(NSUInteger)count;
+ (instancetype)arrayWithArray:(NSArray *)other;
- (NSUInteger)count;
- (id)objectAtIndex:(NSUInteger)index;
- (id)firstObject;
- (id)lastObject;
- (BOOL)containsObject:(id)object;
- (NSUInteger)indexOfObject:(id)object;
@end

@interface NSMutableArray : NSArray
- (void)addObject:(id)object;
- (void)addObjectsFromArray:(NSArray *)other;
- (void)insertObject:(id)object atIndex:(NSUInteger)index;
- (void)removeObject:(id)object;
- (void)removeObjectsInArray:(NSArray *)other;
- (void)removeObjectAtIndex:(NSUInteger)index;
- (void)removeLastObject;
- (void)removeAllObjects;
@end

@interface NSDictionary : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
+ (instancetype)dictionary;
// nil when the file is missing or holds no dictionary.
+ (instancetype)dictionaryWithContentsOfFile:(NSString *)path;
// What @{…} becomes.
+ (instancetype)dictionaryWithObjects:(const id[])objects forKeys:(const id[])keys count:(NSUInteger)count;
- (NSUInteger)count;
- (id)objectForKey:(id)key;
- (NSArray *)allKeys;
- (BOOL)writeToFile:(NSString *)path atomically:(BOOL)atomically;
@end

@interface NSMutableDictionary : NSDictionary
- (void)setObject:(id)object forKey:(id<NSCopying>)key;
- (void)removeObjectForKey:(id)key;
- (void)addEntriesFromDictionary:(NSDictionary *)other;
@end

@interface NSSet : NSObject <NSCopying, NSFastEnumeration>
- (NSUInteger)count;
- (id)anyObject;
- (NSArray *)allObjects;
@end

@interface NSData : NSObject <NSCopying>
// nil when the file is missing or cannot be read.
+ (instancetype)dataWithContentsOfFile:(NSString *)path;
- (NSUInteger)length;
- (const void *)bytes;
@end

@interface NSIndexPath : NSObject <NSCopying>
@end

@interface NSIndexSet : NSObject <NSCopying>
@end
