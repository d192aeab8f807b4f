// Close marks, and the question whether to clear everything.
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
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

namespace pendix {

namespace {

constexpr float kGrowing = 0.4f; // seconds
constexpr CGFloat kTextHeight = 65, kButtonHeight = 45, kGrowth = kTextHeight + kButtonHeight;
constexpr CGFloat kTextAbove =
    45; // the text reaches above the content view, which stands so much lower meanwhile
constexpr CGFloat kTextSize = 20;
constexpr NSInteger kTextLines = 4;
constexpr CGFloat kButtonAlpha = 0.1;

void addButton(SpringBoard *target, NSInteger tag, CGRect frame, NSString *key, SEL action, UIColor *ink) {
    UIButton *button = [[UIButton alloc] initWithFrame:frame];
    button.tag = tag;
    button.backgroundColor = [UIColor colorWithWhite:0 alpha:kButtonAlpha];
    button.userInteractionEnabled = YES;
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
    text.font = [UIFont fontWithName:@"HelveticaNeue-Light" size:kTextSize];
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

// The content stands lower while the prompt is up, so that text, buttons and strip fill the grown panel.
void placeContent(BOOL prompting) {
    setY(contentView(), prompting ? kTextAbove : 0);
    setY(strip(), prompting ? kTextHeight : 0);
    UIView *dots = pageDotsView();
    CGRect frame = dots.frame;
    frame.origin.y = dotsFrame(1, 0).y + (prompting ? kTextHeight : 0);
    dots.frame = frame;
}

void prompt(SpringBoard *target, BOOL running, float duration) {
    strip().userInteractionEnabled = NO;
    buildPrompt(target, currentScheme().ink, running);
    CGRect frame = frameWithHeight(panelView(), gheight + kGrowth);
    [UIView animateWithDuration:duration
                     animations:^{
                         panelView().frame = frame;
                         placeContent(YES);
                     }];
}

// One of each for every application that was on the strip.
void removePrompt() {
    const NSInteger parts[] = {tags::promptText, tags::promptCancel, tags::promptOkay};
    for (NSInteger tag : parts)
        while (UIView *view = subviewWithTag(contentView(), tag)) [view removeFromSuperview];
}

} // namespace

void added::longPressEvent(SpringBoard *self, SEL, UILongPressGestureRecognizer *recognizer) {
    if (sliding || recognizer.state != UIGestureRecognizerStateBegan) return;
    if (isOn(keys::closeMarks)) isEditing = !isEditing;
    BOOL running = isOn(keys::runningMode);
    float duration = animationDuration(kGrowing);
    for (UIView *item in itemViews()) {
        if (isEditing) {
            showCloseMark(item, duration);
        } else {
            hideCloseMark(item, duration);
            // Once for every application: the prompts lie on one another, all alike, and go together.
            prompt(self, running, duration);
        }
    }
}

void added::dismissRequest(SpringBoard *, SEL) {
    CGRect frame = frameWithHeight(panelView(), gheight);
    [UIView animateWithDuration:animationDuration(kGrowing)
        animations:^{
            panelView().frame = frame;
            placeContent(NO);
        }
        completion:^(BOOL) {
            removePrompt();
            strip().userInteractionEnabled = YES;
        }];
}

void added::okay(SpringBoard *self, SEL) {
    quitThroughSwitcher();
    for (UIView *item in itemViews()) [self closeIcon:item];
    [self dismissRequest];
}

} // namespace pendix
