#include "Keyboard.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/Text/FontState.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UITextField+Further.h"

#include <UIKit/UITextField.h>

namespace {

struct FieldState {
    NSString *text = @"", *placeholder = nil; // retained
    UIFont *font = nil;                       // retained, as the next
    UIColor *color = nil;
    NSTextAlignment alignment = NSTextAlignmentLeft;
    id<UITextFieldDelegate> delegate = nil; // not retained
    UIKeyboardType keyboard = UIKeyboardTypeDefault;
    bool secure = false;
    bool wantsFocus = false; // asked for while it was in no window
};

FieldState &state(UITextField *field) {
    return sim::lazyState<FieldState>(field->_textFieldState, [] {
        constexpr CGFloat kDefaultSize = 17;
        return new FieldState{.font = [[UIFont systemFontOfSize:kDefaultSize] retain],
                              .color = [[UIColor blackColor] retain]};
    });
}

template <typename Object>
void replace(Object *&slot, Object *retained) {
    [slot release];
    slot = retained;
}

// The text is typed at its end: the field has no cursor to be moved.
void change(UITextField *field, NSRange range, NSString *text) {
    auto &mine = state(field);
    if ([mine.delegate respondsToSelector:@selector(textField:
                                              shouldChangeCharactersInRange:replacementString:)] &&
        ![mine.delegate textField:field shouldChangeCharactersInRange:range replacementString:text])
        return;
    [field setText:[mine.text stringByReplacingCharactersInRange:range withString:text]];
    [field sendActionsForControlEvents:UIControlEventEditingChanged];
}

NSString *shownText(const FieldState &field) {
    if (!field.secure) return field.text;
    return [@"" stringByPaddingToLength:[field.text length] withString:@"•" startingAtIndex:0];
}

} // namespace

@implementation UITextField

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        [self setOpaque:NO];
        [self setClipsToBounds:YES];
        [self addTarget:self
                      action:@selector(becomeFirstResponder)
            forControlEvents:UIControlEventTouchUpInside];
    }
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    if ([self isFirstResponder]) sim::hideKeyboard();
    [mine.text release];
    [mine.placeholder release];
    [mine.font release];
    [mine.color release];
    delete &mine;
    [super dealloc];
}

- (NSString *)text {
    return state(self).text;
}
- (void)setText:(NSString *)text {
    replace(state(self).text, static_cast<NSString *>(text ? [text copy] : @""));
}

- (NSString *)placeholder {
    return state(self).placeholder;
}
- (void)setPlaceholder:(NSString *)placeholder {
    replace(state(self).placeholder, static_cast<NSString *>([placeholder copy]));
}

- (UIFont *)font {
    return state(self).font;
}
- (void)setFont:(UIFont *)font {
    if (font) replace(state(self).font, [font retain]);
}

- (UIColor *)textColor {
    return state(self).color;
}
- (void)setTextColor:(UIColor *)color {
    replace(state(self).color, [color ? color : [UIColor blackColor] retain]);
}

- (NSTextAlignment)textAlignment {
    return state(self).alignment;
}
- (void)setTextAlignment:(NSTextAlignment)alignment {
    state(self).alignment = alignment;
}

- (id<UITextFieldDelegate>)delegate {
    return state(self).delegate;
}
- (void)setDelegate:(id<UITextFieldDelegate>)delegate {
    state(self).delegate = delegate;
}

- (UIKeyboardType)keyboardType {
    return state(self).keyboard;
}
- (void)setKeyboardType:(UIKeyboardType)type {
    state(self).keyboard = type;
    if ([self isFirstResponder]) sim::showKeyboard(type);
}

- (BOOL)isSecureTextEntry {
    return state(self).secure;
}
- (void)setSecureTextEntry:(BOOL)secure {
    state(self).secure = secure;
}

- (BOOL)isEditing {
    return [self isFirstResponder];
}

- (BOOL)canBecomeFirstResponder {
    return [self isEnabled];
}

// Outside a window the wish is kept until the field comes into one.
- (BOOL)becomeFirstResponder {
    auto &mine = state(self);
    if ([self isFirstResponder]) return YES;
    if (![self window]) {
        mine.wantsFocus = true;
        return NO;
    }
    if ([mine.delegate respondsToSelector:@selector(textFieldShouldBeginEditing:)] &&
        ![mine.delegate textFieldShouldBeginEditing:self])
        return NO;
    if (![super becomeFirstResponder]) return NO;
    sim::showKeyboard(mine.keyboard);
    if ([mine.delegate respondsToSelector:@selector(textFieldDidBeginEditing:)])
        [mine.delegate textFieldDidBeginEditing:self];
    return YES;
}

- (BOOL)resignFirstResponder {
    auto &mine = state(self);
    mine.wantsFocus = false;
    if (![self isFirstResponder]) return YES;
    if ([mine.delegate respondsToSelector:@selector(textFieldShouldEndEditing:)] &&
        ![mine.delegate textFieldShouldEndEditing:self])
        return NO;
    [super resignFirstResponder];
    sim::hideKeyboard();
    if ([mine.delegate respondsToSelector:@selector(textFieldDidEndEditing:)])
        [mine.delegate textFieldDidEndEditing:self];
    return YES;
}

- (void)didMoveToWindow {
    [super didMoveToWindow];
    if ([self window] && state(self).wantsFocus) {
        state(self).wantsFocus = false;
        [self becomeFirstResponder];
    }
    if (![self window]) [self resignFirstResponder];
}

- (BOOL)hasText {
    return [state(self).text length] > 0;
}

- (void)insertText:(NSString *)text {
    change(self, NSMakeRange([state(self).text length], 0), text);
}

- (void)deleteBackward {
    NSUInteger length = [state(self).text length];
    if (length) change(self, [state(self).text rangeOfComposedCharacterSequenceAtIndex:length - 1], @"");
}

- (void)appendDrawingsTo:(render::Node &)node {
    const auto &mine = state(self);
    bool empty = [mine.text length] == 0;
    NSString *text = empty ? mine.placeholder : shownText(mine);
    if ([text length] == 0) return;
    render::TextRun run{.text = [text UTF8String],
                        .style = sim::textStyle(mine.font),
                        .color = empty ? render::Rgba{0.78, 0.78, 0.8, 1}
                                       : sim::flatColor(sim::object([mine.color CGColor])->paint),
                        .pattern = {},
                        .box = node.bounds};
    run.style.alignment = static_cast<render::Alignment>(mine.alignment);
    node.drawings.push_back(std::move(run));
}

@end
