// Every object answers the protocol: with what it was given, else with what its class says of itself.
#include "DefaultSpeech.h"
#include "GivenProperties.h"

#include "Runtime/Objc/Ownership.h"
#include "Runtime/Objc/Versions.hpp"

using sim::giveTo;
using sim::givenTo;

@implementation NSObject (DefaultSpeech)
- (sim::Speech)defaultSpeech {
    return {};
}
@end

@implementation NSObject (UIAccessibility)

- (BOOL)isAccessibilityElement {
    auto given = givenTo(self).element;
    return given ? *given : [self defaultSpeech].element;
}
- (void)setIsAccessibilityElement:(BOOL)element {
    giveTo(self).element = element;
}

- (NSString *)accessibilityLabel {
    NSString *given = givenTo(self).label;
    return given ? given : [self defaultSpeech].label;
}
- (void)setAccessibilityLabel:(NSString *)label {
    sim::copyInto(giveTo(self).label, label);
}

- (NSString *)accessibilityHint {
    return givenTo(self).hint;
}
- (void)setAccessibilityHint:(NSString *)hint {
    sim::copyInto(giveTo(self).hint, hint);
}

- (NSString *)accessibilityValue {
    NSString *given = givenTo(self).value;
    return given ? given : [self defaultSpeech].value;
}
- (void)setAccessibilityValue:(NSString *)value {
    sim::copyInto(giveTo(self).value, value);
}

- (UIAccessibilityTraits)accessibilityTraits {
    auto given = givenTo(self).traits;
    return given ? *given : [self defaultSpeech].traits;
}
- (void)setAccessibilityTraits:(UIAccessibilityTraits)traits {
    giveTo(self).traits = traits;
}

- (CGRect)accessibilityFrame {
    return givenTo(self).frame.value_or(CGRectZero);
}
- (void)setAccessibilityFrame:(CGRect)frame {
    giveTo(self).frame = frame;
}

- (CGPoint)accessibilityActivationPoint {
    CGRect frame = [self accessibilityFrame];
    return givenTo(self).activationPoint.value_or(CGPointMake(CGRectGetMidX(frame), CGRectGetMidY(frame)));
}
- (void)setAccessibilityActivationPoint:(CGPoint)point {
    giveTo(self).activationPoint = point;
}

- (NSString *)accessibilityLanguage {
    return givenTo(self).language;
}
- (void)setAccessibilityLanguage:(NSString *)language {
    sim::copyInto(giveTo(self).language, language);
}

- (BOOL)accessibilityElementsHidden {
    return givenTo(self).elementsHidden.value_or(NO);
}
- (void)setAccessibilityElementsHidden:(BOOL)hidden {
    giveTo(self).elementsHidden = hidden;
}

- (BOOL)accessibilityViewIsModal {
    auto given = givenTo(self).modal;
    return given ? *given : [self defaultSpeech].modal;
}
- (void)setAccessibilityViewIsModal:(BOOL)modal {
    giveTo(self).modal = modal;
}

- (BOOL)shouldGroupAccessibilityChildren {
    return givenTo(self).groups.value_or(NO);
}
- (void)setShouldGroupAccessibilityChildren:(BOOL)groups {
    giveTo(self).groups = groups;
}

@end

@implementation NSObject (UIAccessibilityContainer)

- (NSInteger)accessibilityElementCount {
    NSArray *elements = givenTo(self).elements;
    return elements ? static_cast<NSInteger>([elements count]) : NSNotFound;
}
- (id)accessibilityElementAtIndex:(NSInteger)index {
    NSArray *elements = givenTo(self).elements;
    bool exists = index >= 0 && index < static_cast<NSInteger>([elements count]);
    return exists ? [elements objectAtIndex:static_cast<NSUInteger>(index)] : nil;
}
- (NSInteger)indexOfAccessibilityElement:(id)element {
    NSArray *elements = givenTo(self).elements;
    return elements ? static_cast<NSInteger>([elements indexOfObjectIdenticalTo:element]) : NSNotFound;
}

@end

@implementation NSObject (UIAccessibilityAction)

- (BOOL)accessibilityActivate {
    return NO;
}
- (void)accessibilityIncrement {
}
- (void)accessibilityDecrement {
}
- (BOOL)accessibilityScroll:(UIAccessibilityScrollDirection)direction {
    return NO;
}
- (BOOL)accessibilityPerformEscape {
    return NO;
}
- (BOOL)accessibilityPerformMagicTap {
    return NO;
}

@end

namespace {

NSArray *elements(id self, SEL) { return givenTo(self).elements; }
void setElements(id self, SEL, NSArray *list) { sim::copyInto(giveTo(self).elements, list); }
NSArray *actions(id self, SEL) { return givenTo(self).actions; }
void setActions(id self, SEL, NSArray *list) { sim::copyInto(giveTo(self).actions, list); }

const sim::VersionedMethod kMethods[] = {
    {"NSObject", "accessibilityElements", "@@:", sim::implementation(elements), sim::kFirst8, sim::kNewest},
    {"NSObject", "setAccessibilityElements:", "v@:@", sim::implementation(setElements), sim::kFirst8,
     sim::kNewest},
    {"NSObject", "accessibilityCustomActions", "@@:", sim::implementation(actions), sim::kFirst8,
     sim::kNewest},
    {"NSObject", "setAccessibilityCustomActions:", "v@:@", sim::implementation(setActions), sim::kFirst8,
     sim::kNewest},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

} // namespace
