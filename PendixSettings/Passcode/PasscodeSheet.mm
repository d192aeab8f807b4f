#include "PendixSettings/Passcode/PasscodeSheet.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Passcode/PasscodeView.h"

namespace pendix::pane {

namespace {

UIViewController *presenter() { return [UIApplication sharedApplication].keyWindow.rootViewController; }

UIViewController *newRoot(const PasscodeSheet &sheet) {
    UIViewController *root = [UIViewController new];
    PasscodeView *view = [[PasscodeView alloc] initWithFrame:CGRectZero];
    view.backgroundColor = [UIColor whiteColor];
    view.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
    root.view = view;
    // Nothing else keeps it, and it may be left under the sheet by a finger that lay on the way back.
    [view.layer setValue:sheet.page forKey:@"pageThatStays"];
    [view release];
    root.navigationItem.title = shownText(sheet.titleKey);
    UIBarButtonItem *cancel = [[UIBarButtonItem alloc] initWithTitle:shownText(@"cancel")
                                                               style:UIBarButtonItemStyleBordered
                                                              target:sheet.page
                                                              action:sheet.cancel];
    root.navigationItem.rightBarButtonItem = cancel;
    [cancel release];
    return root;
}

} // namespace

BOOL present(const PasscodeSheet &sheet) {
    if (presenter().presentedViewController) return NO;
    UIViewController *root = newRoot(sheet);
    UINavigationController *navigation = [[UINavigationController alloc] initWithRootViewController:root];
    PasscodeView *view = (PasscodeView *)root.view;
    [presenter() presentViewController:navigation animated:YES completion:^{ [view takeFocus]; }];
    // What stands on it is laid out for the size that it was presented in.
    [navigation.view layoutIfNeeded];
    view.group = sheet.first;
    for (NSString *key : sheet.groups) [view addGroup:shownText(key)];
    [view addFieldFor:sheet.page action:sheet.typed];
    const BOOL presented = presenter().presentedViewController == navigation;
    [navigation release];
    [root release];
    return presented;
}

void dismissSheet(void (^completion)(void)) {
    [presenter() dismissViewControllerAnimated:YES completion:completion];
}

} // namespace pendix::pane
