// What a page of Settings is made of: rows and groups, described by their properties.
#pragma once

#import <Foundation/Foundation.h>

typedef NSInteger PSCellType;
enum {
    PSGroupCell = 0,
    PSLinkCell = 1,
    PSLinkListCell = 2,
    PSListItemCell = 3,
    PSTitleValueCell = 4,
    PSSliderCell = 5,
    PSSwitchCell = 6,
    PSStaticTextCell = 7,
    PSEditTextCell = 8,
    PSSegmentCell = 9,
    PSGiantIconCell = 10,
    PSGiantCell = 11,
    PSSecureEditTextCell = 12,
    PSButtonCell = 13,
    PSEditTextViewCell = 14,
    PSSpinnerCell = 15
};

// The property "alignment" of a button's row; at the left without it. (Inferred.)
enum { PSAlignmentCenter = 2, PSAlignmentRight = 3 };

// One row or group of a list. The target is not retained. The getter is `-(id)get:(PSSpecifier *)specifier`,
// the setter `-(void)set:(id)value specifier:(PSSpecifier *)specifier`, the action `-(void)act:(PSSpecifier
// *)specifier`.
@interface PSSpecifier : NSObject {
@public
    id target;
    SEL getter;
    SEL setter;
    SEL action;
    SEL cancel;
    Class detailControllerClass;
    PSCellType cellType;
    Class editPaneClass;
    void *_specifierState;
}
+ (instancetype)preferenceSpecifierNamed:(NSString *)name
                                  target:(id)target
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cell
                                    edit:(Class)edit;
+ (instancetype)emptyGroupSpecifier;

@property (nonatomic, assign) id target;
@property (nonatomic, copy) NSString *name;
// The property "id", else "label", else "key", else the name. Setting stores the property "id".
@property (nonatomic, retain) NSString *identifier;
@property (nonatomic) SEL buttonAction;

- (void)setProperty:(id)property forKey:(NSString *)key;

// Of a choice list or a segment cell, in order.
@property (nonatomic, retain) NSArray *values;
- (void)setValues:(NSArray *)values titles:(NSArray *)titles;
@end
