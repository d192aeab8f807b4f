#include "PasscodeView.h"

#include "LockTexts.hpp"
#include "PasscodeKey.h"
#include "PasscodeLayout.hpp"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/UIKit+Further.h"

#include <string>

namespace {

constexpr size_t kLength = 4;

struct PasscodeState {
    id<SBUIPasscodeLockViewDelegate> delegate = nil;
    std::string entered;
    UIView *dots = nil; // retained by the view tree, as what follows is
    UIButton *cancel = nil;
};

PasscodeState &state(SBUIPasscodeLockView *view) {
    return sim::lazyState<PasscodeState>(view->_passcodeState);
}

NSString *string(const char *text) { return [NSString stringWithUTF8String:text]; }
UIFont *light(CGFloat size) { return [UIFont fontWithName:@"HelveticaNeue-Light" size:size]; }

UILabel *makeTitle(const sim::PasscodeLayout &layout) {
    constexpr CGFloat kHeight = 24, kSize = 18;
    UILabel *title = [[[UILabel alloc]
        initWithFrame:CGRectMake(0, layout.title, layout.screen.width, kHeight)] autorelease];
    [title setText:string(sim::lockTexts().enterPasscode)];
    [title setFont:light(kSize)];
    [title setTextColor:[UIColor whiteColor]];
    [title setTextAlignment:NSTextAlignmentCenter];
    return title;
}

UIView *makeDots(const sim::PasscodeLayout &layout) {
    constexpr CGFloat kDot = 13, kPitch = 37, kRing = 1;
    CGFloat width = (kLength - 1) * kPitch + kDot;
    UIView *dots = [[[UIView alloc]
        initWithFrame:CGRectMake((layout.screen.width - width) / 2, layout.dots, width, kDot)] autorelease];
    for (size_t i = 0; i < kLength; ++i) {
        CGRect frame = CGRectMake(static_cast<CGFloat>(i) * kPitch, 0, kDot, kDot);
        UIView *dot = [[[UIView alloc] initWithFrame:frame] autorelease];
        [[dot layer] setCornerRadius:kDot / 2];
        [[dot layer] setBorderWidth:kRing];
        [[dot layer] setBorderColor:[[UIColor whiteColor] CGColor]];
        [dots addSubview:dot];
    }
    return dots;
}

SBPasscodeNumberPadButton *makeKey(int digit, const sim::PasscodeLayout &layout) {
    constexpr CGFloat kRing = 1.5;
    render::Rect place = layout.keyFrame(digit);
    SBPasscodeNumberPadButton *key = [[[SBPasscodeNumberPadButton alloc]
        initWithFrame:CGRectMake(place.x, place.y, place.width, place.height)] autorelease];
    key->_digit = digit;
    [[key layer] setCornerRadius:place.width / 2];
    [[key layer] setBorderWidth:kRing];
    [[key layer] setBorderColor:[[UIColor colorWithWhite:1 alpha:0.65] CGColor]];
    return key;
}

// Below the keys, at the left or the right.
UIButton *makeButton(const char *title, bool right, const sim::PasscodeLayout &layout) {
    constexpr CGFloat kWidth = 110, kSize = 16;
    CGFloat inset = layout.left - (kWidth - layout.key) / 2;
    CGFloat x = right ? layout.screen.width - inset - kWidth : inset;
    UIButton *button = [UIButton buttonWithType:UIButtonTypeCustom];
    [button setFrame:CGRectMake(x, layout.buttons, kWidth, sim::PasscodeLayout::kButton)];
    [button setTitle:string(title) forState:UIControlStateNormal];
    [button setTitleColor:[UIColor whiteColor] forState:UIControlStateNormal];
    [[button titleLabel] setFont:[UIFont systemFontOfSize:kSize]];
    [[button titleLabel] setAdjustsFontSizeToFitWidth:YES];
    return button;
}

void show(SBUIPasscodeLockView *view) {
    size_t filled = state(view).entered.size(), i = 0;
    for (UIView *dot in [state(view).dots subviews])
        [dot setBackgroundColor:i++ < filled ? [UIColor whiteColor] : [UIColor clearColor]];
    const auto &texts = sim::lockTexts();
    [state(view).cancel setTitle:string(filled ? texts.erase : texts.cancel) forState:UIControlStateNormal];
}

// To both sides and back, less and less far.
void shake(UIView *dots) {
    static const CGFloat kMoves[] = {-60, 50, -40, 30, -20, 0};
    constexpr NSTimeInterval kMove = 0.08;
    static void (^move)(UIView *, size_t) = [^(UIView *view, size_t step) {
        if (step == std::size(kMoves)) return;
        [UIView animateWithDuration:kMove
            animations:^{ [view setTransform:CGAffineTransformMakeTranslation(kMoves[step], 0)]; }
            completion:^(BOOL) { move(view, step + 1); }];
    } copy];
    move(dots, 0);
}

} // namespace

@implementation SBUIPasscodeLockView

- (instancetype)initWithFrame:(CGRect)frame {
    if (!(self = [super initWithFrame:frame])) return nil;
    auto layout = sim::passcodeLayout({frame.size.width, frame.size.height}, sim::device().pad);
    const auto &texts = sim::lockTexts();
    [self addSubview:makeTitle(layout)];
    [self addSubview:state(self).dots = makeDots(layout)];
    for (int digit = 0; digit <= 9; ++digit) {
        SBPasscodeNumberPadButton *key = makeKey(digit, layout);
        [key addTarget:self action:@selector(keyPressed:) forControlEvents:UIControlEventTouchDown];
        [self addSubview:key];
    }
    // Nobody is called from a simulated telephone.
    if (!sim::device().pad) [self addSubview:makeButton(texts.emergency, false, layout)];
    [self addSubview:state(self).cancel = makeButton(texts.cancel, true, layout)];
    [state(self).cancel addTarget:self
                           action:@selector(cancelPressed)
                 forControlEvents:UIControlEventTouchUpInside];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (void)setDelegate:(id<SBUIPasscodeLockViewDelegate>)delegate {
    state(self).delegate = delegate;
}

- (NSString *)passcode {
    return string(state(self).entered.c_str());
}

- (void)reset {
    state(self).entered.clear();
    show(self);
}

- (void)resetForFailedPasscode {
    [self reset];
    shake(state(self).dots);
}

- (void)keyPressed:(SBPasscodeNumberPadButton *)key {
    auto &entered = state(self).entered;
    if (entered.size() == kLength) return;
    entered += std::to_string(key->_digit);
    show(self);
    if (entered.size() == kLength) [state(self).delegate passcodeLockViewPasscodeEntered:self];
}

- (void)cancelPressed {
    auto &entered = state(self).entered;
    if (entered.empty()) return [state(self).delegate passcodeLockViewCancelButtonPressed:self];
    entered.pop_back();
    show(self);
}

@end
