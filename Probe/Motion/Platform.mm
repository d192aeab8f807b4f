// How long the platform's own movements take.
#include "Probe/Motion/Motion.h"
#include "Probe/PendixProbe.h"

#include <PassKit/PKGlyphView.h>

// Tells when a scroll view has come to where it was sent.
@interface ProbeScrolling : NSObject <UIScrollViewDelegate> {
    CFTimeInterval _start;
}
- (void)scroll:(UIScrollView *)view;
@end

namespace probe {

namespace {

constexpr NSInteger kScanning = 1, kTicked = 6;

void scrollingTime() {
    UIScrollView *view = [[[UIScrollView alloc] initWithFrame:CGRectMake(0, 0, 20, 20)] autorelease];
    view.contentSize = CGSizeMake(20, 500);
    [newStage() addSubview:view];
    [[[ProbeScrolling new] autorelease] scroll:view];
}

void glyphTime(const char *name, NSInteger state) {
    if (!isThere({"PKGlyphView", "-initWithStyle:"}) ||
        !isThere({"PKGlyphView", "-setState:animated:completionHandler:"}))
        return answerLater(name, absent());
    PKGlyphView *glyph = [[[objc_getClass("PKGlyphView") alloc] initWithStyle:0] autorelease];
    [newStage() addSubview:glyph];
    CFTimeInterval start = CACurrentMediaTime();
    [glyph setState:state
                 animated:YES
        completionHandler:^{ answerLater(name, number(CACurrentMediaTime() - start)); }];
}

void scanningTime() { glyphTime("glyph.scanning.time", kScanning); }

void tickedTime() { glyphTime("glyph.ticked.time", kTicked); }

} // namespace

std::span<const Motion> platformMotions() {
    static const Motion all[] = {{"scrolling.animated.time", scrollingTime},
                                 {"glyph.scanning.time", scanningTime},
                                 {"glyph.ticked.time", tickedTime}};
    return all;
}

} // namespace probe

@implementation ProbeScrolling

- (void)scroll:(UIScrollView *)view {
    [self retain]; // until it has come there: delegates are not retained
    _start = CACurrentMediaTime();
    view.delegate = self;
    [view setContentOffset:CGPointMake(0, 200) animated:YES];
}

- (void)scrollViewDidEndScrollingAnimation:(UIScrollView *)view {
    probe::answerLater("scrolling.animated.time", probe::number(CACurrentMediaTime() - _start));
    view.delegate = nil;
    [self autorelease];
}

@end
