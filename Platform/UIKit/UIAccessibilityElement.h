// Elements that are no views, and what can be done with one besides activating it.
#pragma once

#include <UIKit/UIAccessibility.h>

// An element unless told otherwise.
@interface UIAccessibilityElement : NSObject {
@public
    void *_accessibilityElementState;
}
// The container is not retained.
- (instancetype)initWithAccessibilityContainer:(id)container;
@property (nonatomic, assign) id accessibilityContainer;
@end

// From 8.0 on; to be found by name.
@interface UIAccessibilityCustomAction : NSObject {
@public
    void *_customActionState;
}
// The selector is one of a method that takes the action, or nothing, and gives a BOOL: whether it was done.
// The target is not retained.
- (instancetype)initWithName:(NSString *)name target:(id)target selector:(SEL)selector;
@property (nonatomic, copy) NSString *name;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL selector;
@end
