// Entering a code, and what a wrong one looks like.
#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/Accessibility/Wording.h"
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/Sounds.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Lock/CodeEntry.hpp"
#include "Tweak/Lock/Entry.h"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Lock/Passcode.h"
#include "Tweak/Lock/Replacements.h"
#include "Tweak/Lock/Shake.hpp"
#include "Tweak/Lock/SpringBoard+Lock.h"

namespace pendix {

namespace {

constexpr float kFlash = 0.1f, kDotChange = 0.2f, kShakeMove = 0.1f; // seconds

UIView *dotAt(UIView *keypad, int dot) { return subviewWithTag(keypad, tags::firstPasscodeDot + dot); }

FilledDots filledDots(UIView *keypad) {
    FilledDots filled = {};
    for (int dot = 0; dot < kCodeLength; ++dot)
        filled[static_cast<size_t>(dot)] = [dotAt(keypad, dot).layer.name length] != 0;
    return filled;
}

NSString *enteredCode(UIView *keypad) {
    return [NSString stringWithFormat:@"%@%@%@%@", dotAt(keypad, 0).layer.name, dotAt(keypad, 1).layer.name,
                                      dotAt(keypad, 2).layer.name, dotAt(keypad, 3).layer.name];
}

UILabel *titleOf(UIView *keypad) { return (UILabel *)subviewWithTag(keypad, tags::faceTitle); }
UIColor *inkOf(UIView *keypad) { return titleOf(keypad).textColor; } // as it was built
UIButton *deleteButton(UIView *keypad) { return (UIButton *)subviewWithTag(keypad, tags::faceButton); }

void setTitle(UIButton *button, NSString *key) {
    [button setTitle:Translator(key) forState:UIControlStateNormal];
}

// Keys take the next touch while they flash, so that a digit may come twice in quick succession.
void flash(UIView *key, UIColor *ink) {
    const float duration = animationDuration(kFlash);
    [UIView animateWithDuration:duration
        delay:0
        options:UIViewAnimationOptionAllowUserInteraction
        animations:^{ key.backgroundColor = ink; }
        completion:^(BOOL finished) {
            if (!finished) return; // another flash has begun
            [UIView animateWithDuration:duration
                                  delay:0
                                options:UIViewAnimationOptionAllowUserInteraction
                             animations:^{ key.backgroundColor = [UIColor clearColor]; }
                             completion:nil];
        }];
}

void compareCode(SpringBoard *springBoard, UIView *keypad) {
    if (matchesPasscode(enteredCode(keypad), setting(keys::passcode))) {
        [springBoard unlockPendix:tags::keypadFace];
        return;
    }
    AudioServicesPlaySystemSound(sounds::vibration);
    [springBoard tryAgain:keypad];
    setTitle(deleteButton(keypad), @"cancel");
}

void enter(SpringBoard *springBoard, UIView *keypad, int digit, UIColor *ink) {
    const std::optional<int> place = dotToFill(filledDots(keypad));
    if (!place) return;
    const bool completes = *place == kCodeLength - 1;
    const Entry code;
    UIView *dot = dotAt(keypad, *place);
    dot.layer.name = [NSString stringWithFormat:@"%d", digit];
    tellEntered(keypad, *place + 1);
    if (*place == 0) setTitle(deleteButton(keypad), @"delete");
    [UIView animateWithDuration:animationDuration(kDotChange)
        animations:^{ dot.backgroundColor = ink; }
        completion:^(BOOL) {
            if (completes && code.counts()) compareCode(springBoard, keypad);
        }];
}

void clearDot(UIView *dot) {
    dot.layer.name = @"";
    dot.backgroundColor = [UIColor clearColor];
}

// Those that have not been filled again meanwhile.
void flashDots(UIView *keypad) {
    UIColor *ink = inkOf(keypad);
    const FilledDots filled = filledDots(keypad);
    for (int dot = 0; dot < kCodeLength; ++dot)
        if (!filled[static_cast<size_t>(dot)]) flash(dotAt(keypad, dot), ink);
}

int countOf(const FilledDots &filled) {
    int count = 0;
    for (bool dot : filled) count += dot;
    return count;
}

} // namespace

void tellEntered(UIView *keypad, int count) {
    // Made once a keypad, not once a digit.
    NSString *const kTexts = @"spokenEntered";
    UILabel *title = titleOf(keypad);
    NSMutableArray *texts = [title.layer valueForKey:kTexts];
    if (!texts) {
        texts = [NSMutableArray array];
        NSString *text = Translator(@"spoken_entered");
        for (int i = 0; text && i <= kCodeLength; ++i)
            [texts addObject:filledIn(text, digits(i), digits(kCodeLength))];
        [title.layer setValue:texts forKey:kTexts];
    }
    const NSUInteger place = static_cast<NSUInteger>(count);
    title.accessibilityValue = place < [texts count] ? [texts objectAtIndex:place] : nil;
}

void added::tapNumber(SpringBoard *self, SEL, UITapGestureRecognizer *recognizer) {
    UIView *key = recognizer.view, *keypad = key.superview;
    if (!isShown(keypad)) return;
    UIColor *ink = inkOf(keypad);
    AudioServicesPlaySystemSound(sounds::keyClick);
    flash(key, ink);
    [deleteButton(keypad) setTitleColor:ink forState:UIControlStateNormal];
    enter(self, keypad, digitOfKey(static_cast<int>(key.tag)), ink);
}

void added::dismisPendixUIorDelete(SpringBoard *self, SEL, UIButton *button) {
    UIView *keypad = button.superview;
    if (!isShown(keypad)) return;
    const std::optional<int> place = dotToClear(filledDots(keypad));
    if (!place) {
        [self dismisPendixUI];
        return;
    }
    UIView *dot = dotAt(keypad, *place);
    [UIView animateWithDuration:animationDuration(kDotChange) animations:^{ clearDot(dot); }];
    tellEntered(keypad, countOf(filledDots(keypad)));
    if (*place == 0) setTitle(button, @"cancel");
}

void added::tryAgain(SpringBoard *self, SEL, UIView *keypad) {
    keypad = [keypad viewWithTag:tags::keypadFace];
    titleOf(keypad).text = Translator(@"try");
    // Where motion is reduced the emptied dots flash once instead of shaking.
    const BOOL flashes = reducesMotion();
    [UIView animateWithDuration:animationDuration(kDotChange)
        animations:^{
            for (int dot = 0; dot < kCodeLength; ++dot) clearDot(dotAt(keypad, dot));
        }
        completion:^(BOOL) {
            if (flashes) flashDots(keypad);
        }];
    tellEntered(keypad, 0);
    announce(@"spoken_wrong");
    if (flashes) return;
    const ShakeMove first;
    [self animateError:keypad duration:first.distance first:first.left sign:first.sign];
}

void added::animateError(SpringBoard *self, SEL, UIView *keypad, int distance, int left, int sign) {
    const ShakeMove move = {distance, left, sign};
    [UIView animateWithDuration:animationDuration(kShakeMove)
        animations:^{
            for (int dot = 0; dot < kCodeLength; ++dot) {
                UIView *view = dotAt(keypad, dot);
                setX(view, view.frame.origin.x + offset(move));
            }
        }
        completion:^(BOOL) {
            const std::optional<ShakeMove> next = nextMove(move);
            if (!next) return;
            [self animateError:keypad duration:next->distance first:next->left sign:next->sign];
        }];
}

} // namespace pendix
