#include "SwitcherModel.h"

#include "Runtime/Objc/Versions.hpp"

namespace {

struct Item {
    NSString *type = nil, *identifier = nil; // retained
};

struct Layout {
    NSArray *items = nil; // retained
    long long size = 0;
};

const Item &state(SBDisplayItem *item) {
    static const Item none;
    return item->_displayItemState ? *static_cast<Item *>(item->_displayItemState) : none;
}

const Layout &state(SBDisplayLayout *layout) {
    static const Layout none;
    return layout->_displayLayoutState ? *static_cast<Layout *>(layout->_displayLayoutState) : none;
}

const sim::ClassVersions kClasses[] = {
    {"SBDisplayItem", sim::kFirst8, sim::kNewest},
    {"SBDisplayLayout", sim::kFirst8, sim::kNewest},
};
const bool kRegistered = (sim::registerClassVersions(kClasses), true);

} // namespace

@implementation SBDisplayItem

+ (instancetype)displayItemWithType:(NSString *)type displayIdentifier:(NSString *)identifier {
    SBDisplayItem *item = [[self new] autorelease];
    item->_displayItemState = new Item{[type copy], [identifier copy]};
    return item;
}

- (void)dealloc {
    [state(self).type release];
    [state(self).identifier release];
    delete static_cast<Item *>(_displayItemState);
    [super dealloc];
}

- (NSString *)displayIdentifier {
    return state(self).identifier;
}

- (NSString *)type {
    return state(self).type;
}

- (BOOL)isEqual:(id)other {
    return [other isKindOfClass:[self class]] &&
           [[other displayIdentifier] isEqual:[self displayIdentifier]] &&
           [[static_cast<SBDisplayItem *>(other) type] isEqual:[self type]];
}

- (NSUInteger)hash {
    return [[self displayIdentifier] hash];
}

// Never changes.
- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

@end

@implementation SBDisplayLayout

- (instancetype)initWithLayoutSize:(long long)size displayItems:(NSArray *)items {
    if ((self = [super init])) _displayLayoutState = new Layout{[items copy], size};
    return self;
}

- (void)dealloc {
    [state(self).items release];
    delete static_cast<Layout *>(_displayLayoutState);
    [super dealloc];
}

- (NSArray *)displayItems {
    return state(self).items;
}

- (long long)layoutSize {
    return state(self).size;
}

- (BOOL)isEqual:(id)other {
    return [other isKindOfClass:[self class]] && [[other displayItems] isEqual:[self displayItems]];
}

- (NSUInteger)hash {
    return [[self displayItems] hash];
}

- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

@end
