#pragma once

#include <UIKit/UIKit.h>

// What a passcode sheet shows: groups of a text and four dashes, and a hidden field that takes the digits. Of
// the subviews group g has those from 5g on, the text first; the field is the last. The group that is typed
// stands in the middle, those before it a screen to the left, those after it one to the right: laid out anew
// whenever the view gets another size, with whatever the dashes show by then.
// For VoiceOver it is one element: the group's text, the step, and how many digits are typed.
@interface PasscodeView : UIView {
    NSInteger _group, _first;
}
@property (nonatomic) NSInteger group; // the one that is typed; the next placing counts
- (void)addGroup:(NSString *)text;
// Its changes are told to the target. It takes the keyboard.
- (void)addFieldFor:(id)target action:(SEL)typed;
- (void)placeGroups;
// VoiceOver goes to it, after the system has sent it to the bar above.
- (void)takeFocus;
@end
