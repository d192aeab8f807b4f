#include "LibraryItems.h"

#include "LSStatusBarItem+Further.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Events.hpp"

namespace {

struct ItemState {
    sim::LibraryItem *shared = nullptr;
    bool manual = false;
};

ItemState &state(LSStatusBarItem *item) { return sim::lazyState<ItemState>(item->_lsItemState); }

void refuse(NSString *reason) { [NSException raise:NSInternalInconsistencyException format:@"%@", reason]; }

// nil when all is well.
NSString *objection(NSString *identifier, StatusBarAlignment alignment) {
    if (!identifier) return @"LSStatusBarItem: no identifier";
    if (!alignment) return @"LSStatusBarItem: no alignment";
    const sim::LibraryItem *existing = sim::findLibraryItem([identifier UTF8String]);
    bool contradicts = existing && existing->alignment != alignment;
    return contradicts ? @"LSStatusBarItem: another alignment for the identifier" : nil;
}

void changed(LSStatusBarItem *item, const char *property, const sim::Value &value) {
    sim::recordEvent("statusbar", sim::Object{{"property", property}, {"value", value}});
    if (![item isManualUpdate]) [item update];
}

} // namespace

@implementation LSStatusBarItem

// Nothing is shown before a property is set: an item without an image has nothing to show. (Inferred.)
- (id)initWithIdentifier:(NSString *)identifier alignment:(StatusBarAlignment)alignment {
    if (!(self = [super init])) return nil;
    if (NSString *reason = objection(identifier, alignment)) {
        [self release];
        refuse(reason);
    }
    state(self).shared = &sim::retainLibraryItem([identifier UTF8String], alignment);
    return self;
}

- (void)dealloc {
    if (state(self).shared) sim::releaseLibraryItem(*state(self).shared);
    delete &state(self);
    [super dealloc];
}

- (StatusBarAlignment)alignment {
    return state(self).shared->alignment;
}

- (BOOL)isVisible {
    return state(self).shared->shown();
}
- (void)setVisible:(BOOL)visible {
    auto &shared = *state(self).shared;
    if (shared.visible == (visible == YES)) return;
    shared.visible = visible == YES;
    changed(self, "visible", visible == YES);
}

- (NSString *)imageName {
    return state(self).shared->imageName;
}
- (void)setImageName:(NSString *)name {
    auto &shared = *state(self).shared;
    if (shared.alignment == StatusBarAlignmentCenter)
        refuse(@"LSStatusBarItem: an item in the centre has no image");
    if (name == shared.imageName || [name isEqualToString:shared.imageName]) return;
    [shared.imageName autorelease];
    shared.imageName = [name copy];
    changed(self, "imageName", name ? sim::Value([name UTF8String]) : sim::Value());
}

- (BOOL)isManualUpdate {
    return state(self).manual;
}
- (void)setManualUpdate:(BOOL)manual {
    state(self).manual = manual;
}

- (void)update {
    sim::showLibraryItem(*state(self).shared);
}

@end
