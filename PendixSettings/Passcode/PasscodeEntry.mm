#include "PendixSettings/Passcode/PasscodeSheet.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Passcode/PasscodeView.h"
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/Sounds.h"

namespace pendix::pane {

namespace {

NSString *const kDot = @"dot.png";

constexpr NSTimeInterval kAdvance = 0.25; // seconds

// Place 0 is the group's text, 1 to 4 are its digits.
UIView *viewAt(UITextField *field, NSInteger group, size_t place) {
    return [field.superview.subviews objectAtIndex:kGroupSize * static_cast<NSUInteger>(group) + place];
}

void show(UITextField *field, NSInteger group, size_t place, NSString *image) {
    [(UIImageView *)viewAt(field, group, place)
        setImage:[UIImage imageWithContentsOfFile:names::supportFile(image)]];
}

} // namespace

BOOL enterInto(UITextField *field, NSInteger group) {
    NSString *text = field.text;
    const size_t length = [text length];
    const DigitEntry entry = enterDigit(length, length ? [text characterAtIndex:length - 1] : 0);
    // A character may take more than one unit of the text.
    if (entry.kept < length)
        field.text =
            [text substringToIndex:[text rangeOfComposedCharacterSequenceAtIndex:entry.kept].location];
    if (entry.dot) show(field, group, *entry.dot, kDot);
    if (entry.dash) show(field, group, *entry.dash, kDash);
    return entry.complete;
}

void refuse(UITextField *field, NSInteger group) {
    AudioServicesPlaySystemSound(sounds::vibration);
    for (size_t place = 1; place <= kDigits; ++place) show(field, group, place, kDash);
    field.text = @"";
    announce(@"spoken_wrong", Translator);
}

void endEntry(UITextField *field) {
    [field removeTarget:nil action:nullptr forControlEvents:UIControlEventEditingChanged];
    field.text = @"";
}

void advance(UITextField *field, NSInteger group) {
    PasscodeView *view = (PasscodeView *)field.superview;
    view.group = group + 1;
    [UIView animateWithDuration:kAdvance animations:^{ [view placeGroups]; }];
    field.text = @"";
    focusOnChange(view);
}

} // namespace pendix::pane
