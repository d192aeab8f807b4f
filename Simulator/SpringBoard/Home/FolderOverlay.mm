#include "FolderOverlay.h"

#include "Glass.h"
#include "HomeLayout.hpp"
#include "HomeViews.h"
#include "SpringBoard/Icons/Icons.h"
#include "UIKit/UIKit+Further.h"

#include <algorithm>
#include <utility>

namespace {

constexpr NSTimeInterval kDuration = 0.3;
constexpr size_t kAcross = 3;

SBIcon *openIcon = nil;
UIView *overlay = nil; // retained

UILabel *makeTitle(SBIcon *icon, CGRect panel) {
    constexpr CGFloat kSize = 36, kHeight = 48, kAbovePanel = 16;
    CGRect frame =
        CGRectMake(panel.origin.x, panel.origin.y - kAbovePanel - kHeight, panel.size.width, kHeight);
    UILabel *title = [[[UILabel alloc] initWithFrame:frame] autorelease];
    [title setFont:[UIFont fontWithName:@"HelveticaNeue-Light" size:kSize]];
    [title setText:[icon displayName]];
    [title setTextColor:[UIColor whiteColor]];
    [title setTextAlignment:NSTextAlignmentCenter];
    return title;
}

// Rows of three on a panel in the middle of the screen.
UIView *makePanel(SBIcon *icon, const sim::HomeLayout &layout) {
    constexpr CGFloat kMargin = 32, kCorner = 30;
    const auto &icons = sim::iconsInFolder(icon);
    auto rows = static_cast<CGFloat>((std::max<size_t>(icons.size(), 1) + kAcross - 1) / kAcross);
    CGFloat width = (kAcross - 1) * layout.across + layout.icon + 2 * kMargin;
    CGFloat height = (rows - 1) * layout.down + layout.icon + 2 * kMargin + 8;
    UIView *panel = [[[UIView alloc]
        initWithFrame:CGRectMake((layout.screen.width - width) / 2, (layout.screen.height - height) / 2,
                                 width, height)] autorelease];
    [panel setBackgroundColor:[UIColor colorWithWhite:1 alpha:0.2]];
    [[panel layer] setCornerRadius:kCorner];
    for (size_t i = 0; i < icons.size(); ++i) {
        SBIconView *view = [[SBIconViewMap homescreenMap] iconViewForIcon:icons[i]];
        auto column = static_cast<CGFloat>(i % kAcross), row = static_cast<CGFloat>(i / kAcross);
        CGSize size = [SBIconView defaultIconSize];
        [view setFrame:CGRectMake(kMargin + column * layout.across, kMargin + row * layout.down, size.width,
                                  size.height)];
        [panel addSubview:view];
    }
    return panel;
}

void drawBadges(SBIcon *icon, BOOL draws) {
    for (SBIcon *inside : sim::iconsInFolder(icon)) {
        SBIconView *view = [[SBIconViewMap homescreenMap] iconViewForIcon:inside];
        [view setDrawsBadge:draws];
        [view _updateAccessoryViewWithAnimation:NO];
    }
}

} // namespace

// Takes the touches beside the icons.
@interface SBFolderContainerView : UIView
@end

@implementation SBFolderContainerView

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    sim::closeFolder(true);
}

@end

namespace sim {

void openFolder(SBIconView *folderView) {
    if (overlay) return;
    openIcon = [folderView icon];
    UIWindow *window = homeWindow();
    overlay = [[SBFolderContainerView alloc] initWithFrame:[window bounds]];
    UIView *blur =
        makeGlass([window bounds], _UIBackdropViewStyleDark, 0.35, [UIColor colorWithWhite:0 alpha:0.6]);
    UIView *panel = makePanel(openIcon, currentHomeLayout());
    [blur setUserInteractionEnabled:NO];
    [overlay addSubview:blur];
    [overlay addSubview:makeTitle(openIcon, [panel frame])];
    [overlay addSubview:panel];
    [overlay setAlpha:0];
    [window addSubview:overlay];
    drawBadges(openIcon, YES);
    [UIView animateWithDuration:kDuration animations:^{ [overlay setAlpha:1]; }];
}

bool closeFolder(bool animated) {
    UIView *closing = std::exchange(overlay, nil);
    SBIcon *icon = std::exchange(openIcon, nil);
    if (!closing) return false;
    [closing setUserInteractionEnabled:NO];
    void (^remove)(BOOL) = ^(BOOL) {
        // Opened once more meanwhile, the icons stand on another panel already.
        if (openIcon != icon) drawBadges(icon, NO);
        for (SBIcon *inside : iconsInFolder(icon)) {
            SBIconView *view = [[SBIconViewMap homescreenMap] iconViewForIcon:inside];
            if ([view isDescendantOfView:closing]) [view removeFromSuperview];
        }
        [closing removeFromSuperview];
        [closing release];
    };
    if (!animated) {
        remove(YES);
        return true;
    }
    [UIView animateWithDuration:kDuration animations:^{ [closing setAlpha:0]; } completion:remove];
    return true;
}

} // namespace sim
