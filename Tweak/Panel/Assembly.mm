// Page dots, empty text, putting it all together, and the opening animation.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Panel/Corners.h"

#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Accessibility/Motion.h"
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/SpokenPanel.h"

namespace pendix {

namespace {

constexpr CGFloat kDotsAbove = 1; // z position: above the strip, which comes after them among the subviews
constexpr float kOpening = 0.5f;  // seconds
constexpr CFTimeInterval kRounding = 0.5; // seconds

} // namespace

void addPageDots(PanelBuild &build) {
    if (pages == 0) return;
    UIView *dots = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
    dots.tag = tags::pageDots;
    for (NSInteger page = 0; page < pages; ++page) {
        UIView *dot = [[UIView alloc] initWithFrame:CGRectZero];
        dot.tag = page;
        dot.backgroundColor = page == 0 ? build.scheme.ink : [UIColor grayColor];
        [dots addSubview:dot];
        [dot release];
    }
    placeDots(dots, build.content.frame.size.width);
    build.dots = dots;
}

void placeDots(UIView *dots, CGFloat width) {
    const int count = static_cast<int>(pages);
    CGRect row = toCGRect(dotsFrame(count, width));
    if (dots.superview) row.origin.y = dots.frame.origin.y; // lower while the question stands
    dots.frame = row;
    for (UIView *dot in dots.subviews) {
        dot.frame = toCGRect(dotFrame(static_cast<int>(dot.tag), dotStep(count, width)));
        dot.layer.cornerRadius = dot.frame.size.width / 2;
    }
}

UILabel *addEmptyText(UIView *strip, BOOL running, UIColor *ink) {
    constexpr CGFloat kSize = 16;
    constexpr NSInteger kLines = 4;
    CGRect frame = CGRectMake(0, 0, strip.frame.size.width, strip.frame.size.height);
    NSString *text = Translator(running ? @"no_running_apps" : @"no_badge");
    UILabel *label = panelLabel(frame, text, textFont(@"HelveticaNeue", kSize), ink);
    label.numberOfLines = kLines;
    [strip addSubview:label];
    keepBadgedApplications();
    return label;
}

void fillEmptyStrip(PanelBuild &build) {
    if (build.count == 0) addEmptyText(build.strip, build.running, build.scheme.ink);
}

void assemble(PanelBuild &build) {
    // The dots come first, which look-ups rely on, and are drawn last.
    if (build.dots) [build.content addSubview:build.dots];
    build.dots.layer.zPosition = kDotsAbove;
    [build.content addSubview:build.strip];
    [build.panel addSubview:build.content];
    [window addSubview:build.bubble];
    build.panel.accessibilityViewIsModal = YES;
    [window addSubview:build.panel];
    if ([UIApplication sharedApplication].statusBarHidden && isLandscape()) build.logo.alpha = 0;
    [window addSubview:build.logo];
}

void fitCards(PanelBuild &build) {
    if (!build.cards || build.count == 0) return;
    for (UIView *view : {build.content, (UIView *)build.strip})
        setHeight(view, view.frame.size.height + lastGheight - gheight);
    gheight = lastGheight;
    build.height = gheight;
    for (UIView *item in itemViews()) setY(item, 0);
}

void openPanel(PanelBuild &build) {
    SpringBoard *springBoard = build.springBoard;
    [springBoard liveClock];
    Placement place = placementFor(build.itemPlace, currentAnchor(reachabilityIsActive()), build.height);
    build.bubble.alpha = place.bubbleAlpha;
    // Where nothing is to shine through, the screen is covered instead (Tap.mm).
    BOOL blurs = isOn(keys::blursScreen) && !reducesTransparency();
    UIView *bubble = build.bubble, *panel = build.panel, *backdrop = overlayView(tags::screenBackdrop);
    change(
        animationDuration(kOpening), [NSArray arrayWithObjects:bubble, panel, blurs ? backdrop : nil, nil],
        ^{
            bubble.frame = toCGRect(place.bubble);
            panel.frame = toCGRect(place.panel);
            if (blurs) backdrop.alpha = 1;
        },
        ^(BOOL) {
            [springBoard liveClock];
            focusOnOpenPanel();
        });
    turnCorners(panel, 0, kPanelRadius, kRounding);
    [window bringSubviewToFront:panel];
}

} // namespace pendix
