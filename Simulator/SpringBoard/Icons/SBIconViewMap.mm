#include "Icons.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"

#include <map>

namespace {

struct MapState {
    std::map<SBIcon *, SBIconView *> views; // both retained; looked up, never walked through
};

MapState &state(SBIconViewMap *map) { return sim::lazyState<MapState>(map->_viewMapState); }

SBIconView *makeView(SBIcon *icon) {
    SBIconView *view = [([icon isFolderIcon] ? [SBFolderIconView class] : [SBIconView class]) alloc];
    view = [view initWithDefaultSize];
    [view setDrawsBadge:sim::state(icon).container == nil];
    [view setIcon:icon];
    return view;
}

} // namespace

@implementation SBIconViewMap

+ (instancetype)homescreenMap {
    static SBIconViewMap *map = [self new];
    return map;
}

- (SBIconView *)mappedIconViewForIcon:(SBIcon *)icon {
    auto found = state(self).views.find(icon);
    return found == state(self).views.end() ? nil : found->second;
}

- (SBIconView *)iconViewForIcon:(SBIcon *)icon {
    if (!icon) return nil;
    SBIconView *&view = state(self).views[icon];
    if (!view) {
        [icon retain];
        view = makeView(icon);
    }
    return view;
}

@end

namespace sim {

void makeIconViews() {
    SBIconViewMap *map = [SBIconViewMap homescreenMap];
    for (const auto *icons : {&homeIcons().pages, &homeIcons().dock})
        for (SBIcon *icon : *icons) [map iconViewForIcon:icon];
    for (SBIcon *icon in allLeafIcons()) [map iconViewForIcon:icon];
}

void badgeDidChange(SBApplication *application) {
    SBIconViewMap *map = [SBIconViewMap homescreenMap];
    SBIcon *icon = findIcon(identifierOf(application));
    [[map mappedIconViewForIcon:icon] _updateAccessoryViewWithAnimation:YES];
    if (SBIcon *container = icon ? sim::state(icon).container : nil)
        [[map mappedIconViewForIcon:container] _updateAccessoryViewWithAnimation:YES];
}

SBIconView *visibleIconView(SBApplication *application) {
    SBIconViewMap *map = [SBIconViewMap homescreenMap];
    SBIcon *icon = findIcon(identifierOf(application));
    if (!icon) return nil;
    for (SBIcon *candidate : {icon, sim::state(icon).container}) {
        SBIconView *view = [map mappedIconViewForIcon:candidate];
        if (![view window]) continue;
        CGRect frame = [view convertRect:[view bounds] toView:nil];
        if (CGRectIntersectsRect(frame, [[view window] bounds])) return view;
    }
    return nil;
}

} // namespace sim
