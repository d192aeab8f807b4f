#include "HomeViews.h"

#include "Glass.h"
#include "Runtime/Process/Device.hpp"
#include "SBIconController.h"
#include "SpringBoard/Icons/Icons.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"

#include <algorithm>
#include <cmath>
#include <objc/runtime.h>

namespace {

struct HomeViews {
    UIWindow *window = nil; // retained, as what follows is by it
    SBWallpaperView *wallpaper = nil;
    SBIconScrollView *scroll = nil;
    SBIconListPageControl *dots = nil;
    SBDockView *dock = nil;
    size_t pages = 1;
};

HomeViews &home() {
    static HomeViews views;
    return views;
}

CGRect toPlatform(const render::Rect &rect) { return CGRectMake(rect.x, rect.y, rect.width, rect.height); }

// The view's image lies in `frame`, its label below.
void place(SBIcon *icon, UIView *list, const render::Rect &frame) {
    SBIconView *view = [[SBIconViewMap homescreenMap] iconViewForIcon:icon];
    CGSize size = [SBIconView defaultIconSize];
    [view setFrame:CGRectMake(frame.x, frame.y, size.width, size.height)];
    [list addSubview:view];
}

SBIconScrollView *makePages(const sim::HomeLayout &layout) {
    const auto &icons = sim::homeIcons().pages;
    size_t pages = std::max<size_t>(1, (icons.size() + layout.perPage() - 1) / layout.perPage());
    home().pages = pages;
    CGSize page = CGSizeMake(layout.screen.width, layout.dockFrame().y);
    SBIconScrollView *scroll =
        [[[SBIconScrollView alloc] initWithFrame:CGRectMake(0, 0, page.width, page.height)] autorelease];
    for (size_t p = 0; p < pages; ++p) {
        CGRect frame = CGRectMake(static_cast<CGFloat>(p) * page.width, 0, page.width, page.height);
        UIView *list = [[[SBRootIconListView alloc] initWithFrame:frame] autorelease];
        for (size_t i = p * layout.perPage(); i < std::min(icons.size(), (p + 1) * layout.perPage()); ++i)
            place(icons[i], list, layout.iconFrame(i % layout.perPage()));
        [scroll addSubview:list];
    }
    [scroll setContentSize:CGSizeMake(static_cast<CGFloat>(pages) * page.width, page.height)];
    [scroll setPagingEnabled:YES];
    [scroll setAlwaysBounceHorizontal:YES];
    [scroll setShowsHorizontalScrollIndicator:NO];
    [scroll setShowsVerticalScrollIndicator:NO];
    [scroll setDelegate:[SBIconController sharedInstance]];
    return scroll;
}

SBDockView *makeDock(const sim::HomeLayout &layout) {
    SBDockView *dock = [[[SBDockView alloc] initWithFrame:toPlatform(layout.dockFrame())] autorelease];
    [dock addSubview:sim::makeGlass([dock bounds], _UIBackdropViewStyleAdaptiveLight, 0.24,
                                    [UIColor colorWithWhite:1 alpha:0.25])];
    const auto &icons = sim::homeIcons().dock;
    for (size_t i = 0; i < icons.size(); ++i) place(icons[i], dock, layout.dockIconFrame(i, icons.size()));
    return dock;
}

SBIconListPageControl *makeDots(const sim::HomeLayout &layout) {
    constexpr CGFloat kHeight = 14;
    CGRect frame = CGRectMake(0, layout.pageDots - kHeight / 2, layout.screen.width, kHeight);
    SBIconListPageControl *dots = [[[SBIconListPageControl alloc] initWithFrame:frame] autorelease];
    [dots setUserInteractionEnabled:NO];
    dots->_pages = home().pages;
    return dots;
}

Class subclass(const char *name, Class superclass) {
    if (Class made = objc_lookUpClass(name)) return made;
    Class made = objc_allocateClassPair(superclass, name, 0);
    objc_registerClassPair(made);
    return made;
}

} // namespace

namespace sim {

Class homeWindowClass() {
    Class superclass = [UIWindow class];
    if (device().version >= Version{8, 0}) superclass = subclass("FBWindow", superclass);
    return subclass("SBWindow", superclass);
}

HomeLayout currentHomeLayout() {
    CGSize size = interfaceSize();
    return homeLayout(device().pad, {size.width, size.height});
}

void layOutHomeAnew() {
    auto &mine = home();
    HomeLayout layout = currentHomeLayout();
    [mine.scroll removeFromSuperview];
    [mine.dots removeFromSuperview];
    [mine.dock removeFromSuperview];
    [mine.wallpaper setFrame:[mine.window bounds]];
    mine.scroll = makePages(layout);
    mine.dots = makeDots(layout);
    mine.dock = makeDock(layout);
    for (UIView *view : {static_cast<UIView *>(mine.scroll), static_cast<UIView *>(mine.dots),
                         static_cast<UIView *>(mine.dock)})
        [mine.window addSubview:view];
}

void showHomeWindow() {
    UIWindow *window =
        [[homeWindowClass() alloc] initWithFrame:CGRectMake(0, 0, device().width, device().height)];
    home().window = window;
    // Below every application's.
    constexpr UIWindowLevel kLevel = -2;
    [window setWindowLevel:kLevel];
    setRole(window, WindowRole::home);
    makeIconViews();
    home().wallpaper = [[[SBWallpaperView alloc] initWithFrame:[window bounds]] autorelease];
    [window addSubview:home().wallpaper];
    layOutHomeAnew();
    [window makeKeyAndVisible];
}

UIWindow *homeWindow() { return home().window; }

void showCurrentPage() {
    CGFloat width = [home().scroll bounds].size.width;
    double page = std::round([home().scroll contentOffset].x / width);
    home().dots->_current = static_cast<size_t>(std::clamp(page, 0.0, static_cast<double>(home().pages - 1)));
}

bool scrollToFirstPage() {
    if ([home().scroll contentOffset].x <= 0) return false;
    [home().scroll setContentOffset:CGPointZero animated:YES];
    return true;
}

} // namespace sim
