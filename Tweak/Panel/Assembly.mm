// Page dots, empty text, putting it all together, and the opening animation.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Panel/SpringBoard+Panel.h"

namespace pendix {

namespace {

constexpr CGFloat kDotRadius = 3;
constexpr CGFloat kDotsAbove = 1; // z position: above the strip, which comes after them among the subviews
constexpr CGFloat kEmptySize = 16;
constexpr NSInteger kEmptyLines = 4;
constexpr float kOpening = 0.5f;          // seconds
constexpr CFTimeInterval kRounding = 0.5; // seconds, whatever `fast` says
constexpr CGFloat kPanelRadius = 10;

void roundCorners(UIView *panel) {
    CABasicAnimation *rounding = [CABasicAnimation animationWithKeyPath:@"cornerRadius"];
    rounding.timingFunction = [CAMediaTimingFunction functionWithName:kCAMediaTimingFunctionLinear];
    rounding.fromValue = [NSNumber numberWithDouble:0];
    rounding.toValue = [NSNumber numberWithDouble:kPanelRadius];
    rounding.duration = kRounding;
    panel.layer.cornerRadius = kPanelRadius;
    [panel.layer addAnimation:rounding forKey:@"cornerRadius"];
}

} // namespace

void addPageDots(PanelBuild &build) {
    int pages = build.paging ? pageCount(build.count, build.layout.rows) : 0;
    if (pages == 0) return;
    CGRect frame = toCGRect(dotsFrame(pages, build.content.frame.size.width));
    UIView *dots = [[[UIView alloc] initWithFrame:frame] autorelease];
    dots.tag = tags::pageDots;
    for (int page = 0; page < pages; ++page) {
        UIView *dot = [[UIView alloc] initWithFrame:toCGRect(dotFrame(page))];
        dot.tag = page;
        dot.layer.cornerRadius = kDotRadius;
        dot.backgroundColor = page == 0 ? build.scheme.ink : [UIColor grayColor];
        [dots addSubview:dot];
        [dot release];
    }
    build.dots = dots;
}

void addEmptyText(PanelBuild &build) {
    if (build.count != 0) return;
    CGRect frame = CGRectMake(0, 0, build.strip.frame.size.width, build.strip.frame.size.height);
    NSString *text = Translator(build.running ? @"no_running_apps" : @"no_badge");
    UILabel *label = panelLabel(frame, text, @"HelveticaNeue", kEmptySize, build.scheme.ink);
    label.numberOfLines = kEmptyLines;
    [build.strip addSubview:label];
    [datas removeAllObjects];
}

void assemble(PanelBuild &build) {
    // The dots come first, which look-ups rely on, and are drawn last.
    if (build.dots) [build.content addSubview:build.dots];
    build.dots.layer.zPosition = kDotsAbove;
    [build.content addSubview:build.strip];
    [build.panel addSubview:build.content];
    [window addSubview:build.bubble];
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
    Placement place = placePanel({.item = toRect(build.item.frame),
                                  .screen = {build.screen.width, build.screen.height},
                                  .landscape = static_cast<bool>(isLandscape()),
                                  .anchor = currentAnchor(reachabilityIsActive()),
                                  .height = static_cast<Real>(build.height)});
    build.bubble.alpha = place.bubbleAlpha;
    BOOL blurs = isOn(@"blur");
    UIView *bubble = build.bubble, *panel = build.panel;
    [UIView animateWithDuration:animationDuration(kOpening)
        animations:^{
            bubble.frame = toCGRect(place.bubble);
            panel.frame = toCGRect(place.panel);
            if (blurs) overlayView(tags::screenBackdrop).alpha = 1;
        }
        completion:^(BOOL) { [springBoard liveClock]; }];
    roundCorners(panel);
    [window bringSubviewToFront:panel];
}

} // namespace pendix
