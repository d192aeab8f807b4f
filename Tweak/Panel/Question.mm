#include "Tweak/Panel/Question.h"

#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Accessibility/Motion.h"
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/Geometry/StripLayout.hpp"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Scheme.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Panel/CloseMarks.h"
#include "Tweak/Panel/Drags.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/PromptButton.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

namespace pendix {

namespace {

constexpr float kShrinking = 0.4f; // seconds
// Of the panel's growing or shrinking; the icons are where the answers are shown for the rest of it.
constexpr NSTimeInterval kFadeShare = 0.3;
constexpr CGFloat kTextHeight = 65, kButtonHeight = 45, kGrowth = kTextHeight + kButtonHeight;
constexpr CGFloat kTextAbove =
    45; // the text reaches above the content view, which stands so much lower meanwhile
constexpr CGFloat kTextSize = 20;
constexpr NSInteger kTextLines = 4;

const NSInteger kParts[] = {tags::promptText, tags::promptCancel, tags::promptOkay};

void addButton(SpringBoard *target, NSInteger tag, CGRect frame, NSString *key, SEL action, UIColor *ink) {
    promptButton *button = [[promptButton alloc] initWithFrame:frame];
    button.tag = tag;
    button.userInteractionEnabled = YES;
    button.alpha = 0;
    [button setTitle:Translator(key) forState:UIControlStateNormal];
    [button setTitleColor:ink forState:UIControlStateNormal];
    [button addTarget:target action:action forControlEvents:UIControlEventTouchUpInside];
    [contentView() addSubview:button];
    [button release];
}

void buildPrompt(SpringBoard *target, UIColor *ink, BOOL running) {
    CGRect stripBounds = strip().bounds;
    const CGFloat width = stripBounds.size.width;
    const CGFloat height = gheight + kGrowth - stripBounds.size.height - kTextAbove;
    UILabel *text = [[UILabel alloc] initWithFrame:CGRectMake(0, -kTextAbove, width, height)];
    text.tag = tags::promptText;
    text.textAlignment = NSTextAlignmentCenter;
    text.numberOfLines = kTextLines;
    text.font = textFont(@"HelveticaNeue-Light", kTextSize);
    text.textColor = ink;
    text.text = Translator(running ? @"clear_app" : @"clear_badge");
    [contentView() addSubview:text];
    const CGFloat y = CGRectGetMaxY(text.frame), half = (width - 1) * 0.5;
    [text release];
    addButton(target, tags::promptCancel, CGRectMake(0, y, half, kButtonHeight), @"cancel",
              @selector(dismissRequest), ink);
    addButton(target, tags::promptOkay, CGRectMake(half + 1, y, half, kButtonHeight), @"ok", @selector(okay),
              ink);
}

template <typename Work>
void forPromptViews(Work work) {
    for (UIView *view in contentView().subviews)
        for (NSInteger tag : kParts)
            if (view.tag == tag) work(view);
}

// The content stands lower while the prompt is up, so that text, buttons and strip fill the grown panel.
void placeContent(BOOL prompting) {
    setY(contentView(), prompting ? kTextAbove : 0);
    setY(strip(), prompting ? kTextHeight : 0);
    setY(pageDotsView(), dotsFrame(1, 0).y + (prompting ? kTextHeight : 0));
}

void fadeAnswers(CGFloat alpha, NSTimeInterval duration, NSTimeInterval delay) {
    [UIView animateWithDuration:duration
                          delay:delay
                        options:UIViewAnimationOptionAllowUserInteraction
                     animations:^{
                         forPromptViews([&](UIView *view) {
                             if (view.tag != tags::promptText) view.alpha = alpha;
                         });
                     }
                     completion:nil];
}

} // namespace

void ask(SpringBoard *springBoard, float duration) {
    const NSUInteger count = [itemViews() count];
    if (count == 0) return;
    strip().userInteractionEnabled = NO;
    takeBackDrags();
    UIColor *ink = currentScheme().ink;
    const BOOL running = isOn(keys::runningMode);
    // Once for every application, all alike; only the last one is seen, for together they would darken.
    for (NSUInteger i = 0; i < count; ++i) {
        forPromptViews([](UIView *view) { view.hidden = YES; });
        buildPrompt(springBoard, ink, running);
    }
    NSMutableArray *seen = [NSMutableArray array];
    forPromptViews([&](UIView *view) {
        if (!view.hidden) [seen addObject:view];
    });
    readInOrder(contentView(), seen);
    CGRect frame = frameWithHeight(panelView(), gheight + kGrowth);
    change(
        duration, [NSArray arrayWithObjects:contentView(), nil],
        ^{
            panelView().frame = frame;
            placeContent(YES);
        },
        ^(BOOL) { focusOnPanel(); });
    fadeAnswers(1, duration * kFadeShare, duration * (1 - kFadeShare));
}

void added::dismissRequest(SpringBoard *, SEL) {
    if (!isShow) return;
    const float duration = animationDuration(kShrinking);
    CGRect frame = frameWithHeight(panelView(), gheight);
    readInOrder(contentView(), nil);
    const BOOL still = reducesMotion();
    forPromptViews([&](UIView *view) {
        view.accessibilityElementsHidden = YES;
        letGoOfButtons(view);
        if (still) view.hidden = YES;
    });
    fadeAnswers(0, duration * kFadeShare, 0);
    change(
        duration, [NSArray arrayWithObjects:contentView(), nil],
        ^{
            panelView().frame = frame;
            placeContent(NO);
        },
        ^(BOOL) {
            forPromptViews([](UIView *view) { [view removeFromSuperview]; });
            strip().userInteractionEnabled = YES;
            focusOnPanel();
        });
}

void added::okay(SpringBoard *self, SEL) {
    if (!isShow) return;
    quitThroughSwitcher();
    for (UIView *item in itemViews()) [self closeIcon:item];
    [self dismissRequest];
}

} // namespace pendix
