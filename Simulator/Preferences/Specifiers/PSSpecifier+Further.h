// What the platform has beyond <Preferences/PSSpecifier.h>: used by the simulator and its tests only.
#pragma once

#include <Preferences/PSSpecifier.h>

@interface PSSpecifier (Further)
+ (instancetype)groupSpecifierWithName:(NSString *)name;
@property (nonatomic) PSCellType cellType;
@property (nonatomic) Class detailControllerClass;
- (id)propertyForKey:(NSString *)key; // nil without one
- (void)removePropertyForKey:(NSString *)key;
@property (nonatomic, retain) NSDictionary *properties;
// Value to title.
@property (nonatomic, retain) NSDictionary *titleDictionary;
@property (nonatomic, retain) NSDictionary *shortTitleDictionary;
- (void)setValues:(NSArray *)values titles:(NSArray *)titles shortTitles:(NSArray *)shortTitles;
@end
