#include "Keyboard.h"

#include "KeyboardKey.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/FirstResponder.h"
#include "UIKit/Views/ViewState.h"

#include <algorithm>
#include <utility>
#include <vector>

@interface UITextEffectsWindow : UIWindow
@end

@interface UIKeyboard : UIView {
@public
    void *_keyboardState;
}
@end

namespace {

using Row = std::vector<sim::KeyLook>;

const std::vector<Row> kPad = {{{"1", ""}, {"2", "ABC"}, {"3", "DEF"}},
                               {{"4", "GHI"}, {"5", "JKL"}, {"6", "MNO"}},
                               {{"7", "PQRS"}, {"8", "TUV"}, {"9", "WXYZ"}},
                               {{" ", ""}, {"0", ""}, {"", ""}}};
const std::vector<Row> kPunctuation = {{{"1", ""},
                                        {"2", ""},
                                        {"3", ""},
                                        {"4", ""},
                                        {"5", ""},
                                        {"6", ""},
                                        {"7", ""},
                                        {"8", ""},
                                        {"9", ""},
                                        {"0", ""},
                                        {"", ""}},
                                       {{"-", ""},
                                        {"/", ""},
                                        {":", ""},
                                        {";", ""},
                                        {"(", ""},
                                        {")", ""},
                                        {"$", ""},
                                        {"&", ""},
                                        {"@", ""},
                                        {"%", ""}},
                                       {{".", ""},
                                        {",", ""},
                                        {"?", ""},
                                        {"!", ""},
                                        {"'", ""},
                                        {"\"", ""},
                                        {"#", ""},
                                        {"+", ""},
                                        {"*", ""},
                                        {"=", ""}}};

constexpr double kSeconds = 0.25;

struct KeyboardState {
    std::vector<std::vector<UIKeyboardKey *>> rows; // retained by the keyboard
    bool pad = false;
};

KeyboardState &state(UIKeyboard *keyboard) { return sim::lazyState<KeyboardState>(keyboard->_keyboardState); }

UITextEffectsWindow *window = nil; // for the life of the process
UIKeyboard *shown = nil;           // retained by the window

CGFloat keyboardHeight(CGSize screen) {
    bool landscape = screen.width > screen.height;
    if (sim::device().pad) return landscape ? 352 : 264;
    return landscape ? 162 : 216;
}

CGRect restingFrame() {
    CGSize size = [window bounds].size;
    CGFloat height = keyboardHeight(size);
    return CGRectMake(0, size.height - height, size.width, height);
}

void fill(UIKeyboard *keyboard, bool pad) {
    auto &mine = state(keyboard);
    for (UIView *view in [keyboard subviews]) [view removeFromSuperview];
    mine.rows.clear();
    mine.pad = pad;
    for (const Row &row : pad ? kPad : kPunctuation) {
        mine.rows.emplace_back();
        for (const auto &look : row) {
            UIKeyboardKey *key = sim::makeKey(look, pad);
            // The pad's lower left cell is no key.
            if (look.text[0] == ' ') [key setUserInteractionEnabled:NO], [key setAlpha:0];
            [keyboard addSubview:key];
            mine.rows.back().push_back(key);
        }
    }
    [keyboard setNeedsLayout];
}

} // namespace

@implementation UITextEffectsWindow

// The window covers the screen; only the keyboard takes touches.
- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event {
    return shown && CGRectContainsPoint([shown frame], point);
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [shown setFrame:restingFrame()];
}

@end

@implementation UIKeyboard

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    const auto &mine = state(self);
    CGSize size = [self bounds].size;
    CGFloat gap = mine.pad ? 0.5 : 8, margin = mine.pad ? 0 : 8;
    CGFloat height = (size.height - 2 * margin) / static_cast<CGFloat>(mine.rows.size());
    for (size_t row = 0; row < mine.rows.size(); ++row) {
        CGFloat width = (size.width - 2 * margin) / static_cast<CGFloat>(mine.rows[row].size());
        for (size_t i = 0; i < mine.rows[row].size(); ++i) {
            CGRect cell = CGRectMake(margin + width * static_cast<CGFloat>(i),
                                     margin + height * static_cast<CGFloat>(row), width, height);
            [mine.rows[row][i] setFrame:CGRectInset(cell, gap / 2, gap / 2)];
        }
    }
}

@end

namespace sim {

void showKeyboard(UIKeyboardType type) {
    bool pad = type == UIKeyboardTypeNumberPad && !device().pad;
    if (!window) {
        window = [[UITextEffectsWindow alloc] initWithFrame:CGRectZero];
        [window setWindowLevel:UIWindowLevelNormal + 1];
        setRole(window, WindowRole::application);
    }
    fillInterface(window);
    [window setHidden:NO];
    if (shown) return ::state(shown).pad == pad ? void() : fill(shown, pad);
    CGRect rest = restingFrame();
    shown = [[[UIKeyboard alloc] initWithFrame:CGRectOffset(rest, 0, rest.size.height)] autorelease];
    UIKeyboard *keyboard = shown;
    [keyboard setBackgroundColor:[UIColor colorWithRed:0.72 green:0.735 blue:0.765 alpha:1]];
    fill(keyboard, pad);
    [window addSubview:keyboard];
    [keyboard layoutIfNeeded];
    [UIView animateWithDuration:kSeconds animations:^{ [keyboard setFrame:rest]; }];
}

void hideKeyboard() {
    if (!shown) return;
    UIKeyboard *keyboard = std::exchange(shown, nil);
    [UIView animateWithDuration:kSeconds
        animations:^{
            CGRect frame = [keyboard frame];
            [keyboard setFrame:CGRectOffset(frame, 0, frame.size.height)];
        }
        completion:^(BOOL) {
            [keyboard removeFromSuperview];
            if (!shown) [window setHidden:YES];
        }];
}

UIKeyboardKey *keyboardKey(NSString *text) {
    if (!shown) return nil;
    for (const auto &row : ::state(shown).rows)
        for (UIKeyboardKey *key : row)
            if ([key isUserInteractionEnabled] && [[key title] isEqualToString:text]) return key;
    return nil;
}

void typeText(NSString *text) {
    UIResponder *receiver = firstResponder();
    if ([receiver respondsToSelector:@selector(insertText:)])
        [static_cast<id<UIKeyInput>>(receiver) insertText:text];
}

void typeDelete() {
    UIResponder *receiver = firstResponder();
    if ([receiver respondsToSelector:@selector(deleteBackward)])
        [static_cast<id<UIKeyInput>>(receiver) deleteBackward];
}

} // namespace sim
