#include "PSSpecifier+Further.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "SpecifierState.h"

#include <objc/runtime.h>

NSString *const PSTableCellKey = @"cellObject";
NSString *const PSHeaderViewKey = @"headerView";
NSString *const PSFooterViewKey = @"footerView";

namespace {

struct SpecifierState {
    NSString *name = nil; // retained, as what follows
    NSMutableDictionary *properties = nil;
    NSArray *values = nil;
    NSDictionary *titles = nil, *shortTitles = nil;
    SEL buttonAction = nullptr;
};

SpecifierState &state(PSSpecifier *specifier) {
    return sim::lazyState<SpecifierState>(specifier->_specifierState, [] {
        return new SpecifierState{.properties = [NSMutableDictionary new]};
    });
}

template <typename Object>
void replace(Object *&slot, Object *value) {
    sim::retainInto(slot, value);
}

} // namespace

@implementation PSSpecifier

+ (instancetype)preferenceSpecifierNamed:(NSString *)name
                                  target:(id)target
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cell
                                    edit:(Class)edit {
    PSSpecifier *specifier = [[self new] autorelease];
    state(specifier).name = [name copy];
    specifier->target = target;
    specifier->setter = set;
    specifier->getter = get;
    specifier->detailControllerClass = detail;
    specifier->cellType = cell;
    specifier->editPaneClass = edit;
    return specifier;
}

+ (instancetype)groupSpecifierWithName:(NSString *)name {
    return [self preferenceSpecifierNamed:name
                                   target:nil
                                      set:nullptr
                                      get:nullptr
                                   detail:Nil
                                     cell:PSGroupCell
                                     edit:Nil];
}

+ (instancetype)emptyGroupSpecifier {
    return [self groupSpecifierWithName:@""];
}

- (void)dealloc {
    auto &mine = state(self);
    [mine.name release];
    [mine.properties release];
    [mine.values release];
    [mine.titles release];
    [mine.shortTitles release];
    delete &mine;
    [super dealloc];
}

- (id)target {
    return target;
}
- (void)setTarget:(id)next {
    target = next;
}

- (NSString *)name {
    return state(self).name;
}
- (void)setName:(NSString *)name {
    sim::copyInto(state(self).name, name);
}

- (NSString *)identifier {
    for (NSString *key in [NSArray arrayWithObjects:@"id", @"label", @"key", nil])
        if (NSString *found = [self propertyForKey:key]) return found;
    return [self name];
}
- (void)setIdentifier:(NSString *)identifier {
    [self setProperty:identifier forKey:@"id"];
}

- (PSCellType)cellType {
    return cellType;
}
- (void)setCellType:(PSCellType)type {
    cellType = type;
}
- (Class)detailControllerClass {
    return detailControllerClass;
}
- (void)setDetailControllerClass:(Class)detail {
    detailControllerClass = detail;
}
- (SEL)buttonAction {
    return state(self).buttonAction;
}
- (void)setButtonAction:(SEL)selector {
    state(self).buttonAction = selector;
}

- (id)propertyForKey:(NSString *)key {
    return key ? [state(self).properties objectForKey:key] : nil;
}
- (void)setProperty:(id)property forKey:(NSString *)key {
    if (!key) return;
    if (!property) return [self removePropertyForKey:key];
    [state(self).properties setObject:property forKey:key];
}
- (void)removePropertyForKey:(NSString *)key {
    if (key) [state(self).properties removeObjectForKey:key];
}
- (NSDictionary *)properties {
    return state(self).properties;
}
- (void)setProperties:(NSDictionary *)properties {
    NSMutableDictionary *copy = properties ? [properties mutableCopy] : [NSMutableDictionary new];
    [state(self).properties release];
    state(self).properties = copy;
}

- (NSArray *)values {
    return state(self).values;
}
- (void)setValues:(NSArray *)values {
    replace(state(self).values, values);
}
- (NSDictionary *)titleDictionary {
    return state(self).titles;
}
- (void)setTitleDictionary:(NSDictionary *)titles {
    replace(state(self).titles, titles);
}
- (NSDictionary *)shortTitleDictionary {
    return state(self).shortTitles;
}
- (void)setShortTitleDictionary:(NSDictionary *)titles {
    replace(state(self).shortTitles, titles);
}

- (void)setValues:(NSArray *)values titles:(NSArray *)titles {
    [self setValues:values titles:titles shortTitles:nil];
}

- (void)setValues:(NSArray *)values titles:(NSArray *)titles shortTitles:(NSArray *)shortTitles {
    [self setValues:values];
    [self setTitleDictionary:titles ? [NSDictionary dictionaryWithObjects:titles forKeys:values] : nil];
    [self setShortTitleDictionary:shortTitles ? [NSDictionary dictionaryWithObjects:shortTitles
                                                                            forKeys:values]
                                              : nil];
}

- (NSString *)description {
    return
        [NSString stringWithFormat:@"<PSSpecifier %@ (%ld)>", [self identifier], static_cast<long>(cellType)];
}

@end

@implementation PSSpecifier (Performing)

- (id)performGetter {
    return getter && [target respondsToSelector:getter] ? [target performSelector:getter withObject:self]
                                                        : nil;
}

- (void)performSetterWithValue:(id)value {
    if (setter && [target respondsToSelector:setter])
        [target performSelector:setter withObject:value withObject:self];
}

- (BOOL)performAction {
    SEL selector = state(self).buttonAction ? state(self).buttonAction : action;
    if (!selector || ![target respondsToSelector:selector]) return NO;
    [target performSelector:selector withObject:self];
    return YES;
}

- (BOOL)isGroup {
    return cellType == PSGroupCell;
}

- (Class)classForProperty:(NSString *)key {
    id value = [self propertyForKey:key];
    if ([value isKindOfClass:[NSString class]]) return NSClassFromString(value);
    return value && class_isMetaClass(object_getClass(value)) ? static_cast<Class>(value) : Nil;
}

- (NSString *)titleForValue:(id)value {
    if (!value) return nil;
    NSString *title = [state(self).shortTitles objectForKey:value];
    return title ? title : [state(self).titles objectForKey:value];
}

@end
