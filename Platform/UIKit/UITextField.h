// A line of text that a user edits.
#pragma once

#include <UIKit/UIControl.h>
#include <UIKit/UILabel.h>

typedef NSInteger UIKeyboardType;
enum {
    UIKeyboardTypeDefault = 0,
    UIKeyboardTypeASCIICapable = 1,
    UIKeyboardTypeNumbersAndPunctuation = 2,
    UIKeyboardTypeURL = 3,
    UIKeyboardTypeNumberPad = 4
};

@protocol UIKeyInput <NSObject>
- (BOOL)hasText;
- (void)insertText:(NSString *)text;
- (void)deleteBackward;
@end

@class UITextField;

@protocol UITextFieldDelegate <NSObject>
@optional
- (BOOL)textFieldShouldBeginEditing:(UITextField *)textField;
- (void)textFieldDidBeginEditing:(UITextField *)textField;
- (BOOL)textFieldShouldEndEditing:(UITextField *)textField;
- (void)textFieldDidEndEditing:(UITextField *)textField;
- (BOOL)textField:(UITextField *)textField
    shouldChangeCharactersInRange:(NSRange)range
                replacementString:(NSString *)string;
@end

// The keyboard shows while the field is first responder. Typing sends the editing-changed event; setting the
// text does not. The keyboard type is a matter of its keys only: a hardware keyboard types any character.
@interface UITextField : UIControl <UIKeyInput> {
@public
    void *_textFieldState;
}
@property (nonatomic, copy) NSString *text; // never nil: empty when nothing is set
@property (nonatomic, copy) NSString *placeholder;
@property (nonatomic, retain) UIFont *font;
@property (nonatomic, retain) UIColor *textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic, assign) id<UITextFieldDelegate> delegate;
@property (nonatomic) UIKeyboardType keyboardType;
@property (nonatomic, readonly, getter=isEditing) BOOL editing;
@end
