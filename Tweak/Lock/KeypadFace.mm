// The keypad, as it is built.
#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Accessibility/Wording.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Lock/FaceLayout.hpp"
#include "Tweak/Lock/FaceParts.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Lock/SpringBoard+Lock.h"

namespace pendix {

namespace {

constexpr CGFloat kBorder = 1, kStrongBorder = 2;
constexpr CGFloat kDigitRaised = 5, kDigitSize = 30, kLettersSize = 11;
constexpr NSInteger kTitleLines = 2;

UIView *addRound(UIView *parent, CGRect frame, NSInteger tag, const Scheme &scheme) {
    UIView *view = [[UIView alloc] initWithFrame:frame];
    view.tag = tag;
    view.backgroundColor = [UIColor clearColor];
    view.layer.borderWidth = darkensColors() ? kStrongBorder : kBorder;
    view.layer.borderColor = scheme.ink.CGColor;
    [parent addSubview:view];
    return [view autorelease];
}

void addKeyText(UIView *key, NSString *text, const Scheme &scheme) {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    label.text = text;
    label.textAlignment = NSTextAlignmentCenter;
    label.textColor = scheme.ink;
    [key addSubview:label];
    [label release];
}

// The digit, and below it the letters that it has.
void addKeyTexts(UIView *key, int digit, const Scheme &scheme) {
    NSString *const letters[] = {nil, @" ", @"ABC", @"DEF", @"GHI", @"JKL", @"MNO", @"PQRS", @"TUV", @"WXYZ"};
    addKeyText(key, [NSString stringWithFormat:@"%d", digit], scheme);
    if (letters[digit]) addKeyText(key, letters[digit], scheme);
}

void placeKeyTexts(UIView *key, CGFloat scale) {
    const CGSize size = key.bounds.size;
    NSArray *labels = key.subviews;
    for (NSUInteger i = 0; i < [labels count]; ++i) {
        UILabel *label = [labels objectAtIndex:i];
        label.frame = i == 0 ? CGRectMake(0, -kDigitRaised * scale, size.width, size.height)
                             : CGRectMake(0, size.height / 2, size.width, size.height / 2);
        label.font = textFont(@"HelveticaNeue-Light", (i == 0 ? kDigitSize : kLettersSize) * scale);
    }
}

void addKeys(UIView *keypad, const LockFacesInput &input) {
    const BOOL showsDigits = isOn(keys::labelledKeys);
    for (int digit = 0; digit < 10; ++digit) {
        UIView *key = addRound(keypad, CGRectZero, keyOfDigit(digit), input.scheme);
        UITapGestureRecognizer *tap = [[UITapGestureRecognizer alloc] initWithTarget:input.springBoard
                                                                              action:@selector(tapNumber:)];
        [key addGestureRecognizer:tap];
        [tap release];
        // Also where the digits are not shown.
        key.isAccessibilityElement = YES;
        key.accessibilityLabel = digits(digit);
        key.accessibilityTraits = UIAccessibilityTraitKeyboardKey;
        if (showsDigits) addKeyTexts(key, digit, input.scheme);
    }
}

void addDots(UIView *keypad, const KeypadLayout &layout, const Scheme &scheme) {
    NSInteger tag = tags::firstPasscodeDot;
    for (const Rect &frame : layout.dots) {
        UIView *dot = addRound(keypad, toCGRect(frame), tag++, scheme);
        dot.layer.cornerRadius = frame.width / 2;
        dot.layer.name = @"";
    }
}

KeypadLayout currentLayout(CGFloat width, BOOL sensor) {
    const CGSize screen = portraitScreenBounds().size;
    return keypadLayout({.width = static_cast<Real>(width),
                         .screen = {screen.width, screen.height},
                         .landscape = static_cast<bool>(isLandscape()),
                         .sensor = static_cast<bool>(sensor)});
}

// Everything whose place or size depends on how the screen is held.
void place(UIView *keypad, const KeypadLayout &layout) {
    for (int digit = 0; digit < 10; ++digit) {
        UIView *key = subviewWithTag(keypad, keyOfDigit(digit));
        key.frame = toCGRect(layout.keys[static_cast<size_t>(digit)]);
        key.layer.cornerRadius = key.frame.size.width / 2;
        placeKeyTexts(key, layout.scale);
    }
    for (UIView *view in keypad.subviews)
        if ([view isKindOfClass:[UIButton class]])
            view.frame = toCGRect(view.tag == tags::faceButton ? layout.button : layout.fingerButton);
    setHeight(keypad, layout.height);
    lastHeight1 = static_cast<float>(layout.height);
}

} // namespace

UIView *addKeypad(const LockFacesInput &input, BOOL sensor) {
    const KeypadLayout layout = currentLayout(input.width, sensor);
    UIView *keypad = addFace(input, tags::keypadFace, layout.height);
    addFaceText(keypad, toCGRect(layout.title), Translator(@"write"), kTitleLines, input.scheme);
    addDots(keypad, layout, input.scheme);
    addKeys(keypad, input);
    addFaceButton(keypad, input, toCGRect(layout.button), @"cancel", @selector(dismisPendixUIorDelete:)).tag =
        tags::faceButton;
    if (sensor)
        addFaceButton(keypad, input, toCGRect(layout.fingerButton), @"touch ID", @selector(useTochID));
    place(keypad, layout);
    tellEntered(keypad, 0);
    return keypad;
}

void layoutKeypad(BOOL sensor) {
    UIView *keypad = lockFace(tags::keypadFace);
    if (keypad) place(keypad, currentLayout(keypad.frame.size.width, sensor));
}

} // namespace pendix
