#include "PasscodeKey.h"

#include "UIKit/Accessibility/DefaultSpeech.h"
#include "UIKit/Views/ViewState.h"

namespace {

constexpr const char *kLetters[] = {"", "", "ABC", "DEF", "GHI", "JKL", "MNO", "PQRS", "TUV", "WXYZ"};
constexpr render::Rgba kWhite{1, 1, 1, 1};

// A line of text whose middle stands at a share of the key's height.
render::TextRun line(const std::string &text, const render::Rect &key, double middle, double size,
                     render::Face face) {
    double y = key.height * middle;
    return {.text = text,
            .style = {.face = face, .size = size, .alignment = render::Alignment::center},
            .color = kWhite,
            .pattern = {},
            .box = {0, y - size, key.width, 2 * size}};
}

} // namespace

@implementation SBPasscodeNumberPadButton

// A pressed key lights up at once and goes dark slowly.
- (void)setHighlighted:(BOOL)highlighted {
    constexpr NSTimeInterval kFade = 0.3;
    [super setHighlighted:highlighted];
    UIColor *color = [UIColor colorWithWhite:1 alpha:highlighted ? 0.5 : 0];
    if (highlighted) {
        [self setBackgroundColor:color];
    } else {
        [UIView animateWithDuration:kFade animations:^{ [self setBackgroundColor:color]; }];
    }
}

- (sim::Speech)defaultSpeech {
    return {.element = YES,
            .label = [NSString stringWithFormat:@"%d", _digit],
            .traits = UIAccessibilityTraitKeyboardKey};
}

- (void)appendDrawingsTo:(render::Node &)node {
    constexpr double kDigit = 0.47, kLetter = 0.127, kAlone = 0.5;
    const render::Rect &key = node.bounds;
    // Letters stand under the digits from 2 to 9; 1 keeps their room, 0 does not.
    node.drawings.push_back(
        line(std::to_string(_digit), key, _digit ? 0.43 : kAlone, key.width * kDigit, render::Face::light));
    if (_digit < 2) return;
    node.drawings.push_back(line(kLetters[_digit], key, 0.74, key.width * kLetter, render::Face::regular));
}

@end
