#include "PendixSettings/Passcode/PasscodeSheet.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Passcode/DigitEntry.hpp"
#include "Tweak/Core/Names.h"

namespace pendix::pane {

namespace {

constexpr CGFloat kTextSize = 16, kFieldSide = 10;

UIViewController *presenter() { return [UIApplication sharedApplication].keyWindow.rootViewController; }

UIViewController *newRoot(const PasscodeSheet &sheet) {
    UIViewController *root = [UIViewController new];
    root.view.backgroundColor = [UIColor whiteColor];
    root.navigationItem.title = shownText(sheet.titleKey);
    UIBarButtonItem *cancel = [[UIBarButtonItem alloc] initWithTitle:shownText(@"cancel")
                                                               style:UIBarButtonItemStyleBordered
                                                              target:sheet.page
                                                              action:sheet.cancel];
    root.navigationItem.rightBarButtonItem = cancel;
    [cancel release];
    return root;
}

UILabel *addText(UIView *view, const DigitGroup &group, CGFloat below) {
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    label.text = shownText(group.key);
    label.font = [UIFont fontWithName:@"HelveticaNeue-Light" size:kTextSize];
    [label sizeToFit];
    const CGSize size = label.frame.size;
    const CGFloat screen = view.frame.size.width;
    label.frame = CGRectMake((screen - size.width) * 0.5 + group.screen * screen,
                             (below + size.height) * 0.25, size.width, size.height);
    [view addSubview:label];
    return label;
}

void addGroup(UIView *view, const DigitGroup &group, CGFloat below) {
    const CGRect text = addText(view, group, below).frame;
    UIImage *image = [UIImage imageWithContentsOfFile:names::supportFile(kDash)];
    const CGSize size = image.size;
    const CGFloat step = (text.size.width - size.width) / 3;
    for (size_t i = 0; i < kDigits; ++i) {
        UIImageView *dash = [[UIImageView alloc]
            initWithFrame:CGRectMake(text.origin.x + static_cast<CGFloat>(i) * step,
                                     (below + size.height) * 3 * 0.125, size.width, size.height)];
        dash.image = image;
        dash.backgroundColor = [UIColor clearColor];
        [view addSubview:dash];
        [dash release];
    }
}

// Outside what is seen; the keyboard belongs to it.
void addField(UIView *view, const PasscodeSheet &sheet) {
    const CGSize size = view.frame.size;
    UITextField *field =
        [[UITextField alloc] initWithFrame:CGRectMake(size.width, size.height, kFieldSide, kFieldSide)];
    field.keyboardType = UIKeyboardTypeNumberPad;
    [field addTarget:sheet.page action:sheet.typed forControlEvents:UIControlEventEditingChanged];
    [view addSubview:field];
    [field becomeFirstResponder];
    [field release];
}

} // namespace

void present(const PasscodeSheet &sheet) {
    UIViewController *root = newRoot(sheet);
    UINavigationController *navigation = [[UINavigationController alloc] initWithRootViewController:root];
    [presenter() presentViewController:navigation animated:YES completion:nil];
    // What stands on it is laid out for the size that it was presented in.
    [navigation.view layoutIfNeeded];
    const CGFloat below = root.view.frame.size.height - navigation.navigationBar.frame.size.height;
    for (const DigitGroup &group : sheet.groups) addGroup(root.view, group, below);
    addField(root.view, sheet);
    [navigation release];
    [root release];
}

void dismissSheet(void (^completion)(void)) {
    [presenter() dismissViewControllerAnimated:YES completion:completion];
}

} // namespace pendix::pane
