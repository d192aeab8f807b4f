#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/Names.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/SpringBoard+Device.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpokenPanel.h"

namespace pendix {

namespace {

NSString *const kCloseImage = @"close@2x.png";

// A closing that has not finished when the next opening begins leaves views behind.
void removeLeftovers() {
    for (UIView *view in window.subviews)
        if (view.tag != tags::screenBackdrop && view.tag != tags::dismissView) [view removeFromSuperview];
}

PanelBuild startBuild(SpringBoard *springBoard, UIStatusBarItemView *item) {
    PanelBuild build = {};
    build.springBoard = springBoard;
    build.item = item;
    build.scheme = currentScheme();
    build.running = isOn(keys::runningMode);
    build.paging = isOn(keys::paging);
    build.cards = isOn(keys::cards);
    build.closeMarks = isOn(keys::closeMarks);
    build.closeImage = [[UIImage imageWithContentsOfFile:names::supportFile(kCloseImage)]
        imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
    build.screen = portraitScreenBounds().size;

    CGSize icon = [objc_getClass("SBIconView") defaultIconSize];
    build.names = currentNameType();
    const CGFloat height = stripHeight(icon.height, build.paging);
    gheight = static_cast<float>(height + build.names.more);
    lastGheight = 0;
    lastx = static_cast<float>(item.frame.origin.x);
    build.height = gheight;
    lastReachability = reachabilityIsActive();
    build.itemPlace = placeInOverlay(item);
    build.placement = placementFor(build.itemPlace, Anchor::item, gheight);
    build.layout = {.icon = {icon.width, icon.height},
                    .rows = numberOfRows(),
                    .paging = static_cast<bool>(build.paging),
                    .bigScreen = static_cast<bool>([springBoard hasBigScreen]),
                    .strip = {build.placement.panel.width, static_cast<float>(height)}};
    return build;
}

} // namespace

void added::prepareUI(SpringBoard *self, SEL, UIStatusBarItemView *item) {
    if (isShow) return;
    armLock();
    isShow = YES;
    removeLeftovers();
    takeOverSpeech(YES);

    PanelBuild build = startBuild(self, item);
    addBubbleAndPanel(build);
    addLogo(build);
    addContentAndStrip(build);
    fillStrip(build, listedApplications(build.running));
    addPageDots(build);
    fillEmptyStrip(build);
    assemble(build);
    if (isLocked()) {
        build.height = addLockFaces({.springBoard = self,
                                     .content = build.content,
                                     .strip = build.strip,
                                     .dots = build.dots,
                                     .scheme = build.scheme,
                                     .width = build.placement.panel.width,
                                     .count = build.count,
                                     .running = build.running});
    } else {
        fitCards(build);
    }
    openPanel(build);
    // Last, for it may take the item away.
    if (build.count == 0) indicatorFollowsBadges(readSettings());
}

} // namespace pendix
