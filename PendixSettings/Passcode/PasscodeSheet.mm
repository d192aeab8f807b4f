#include "PendixSettings/Passcode/PasscodeSheet.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Sheets.h"
#include "PendixSettings/Passcode/PasscodeView.h"

namespace pendix::pane {

namespace {

UIViewController *newRoot(const PasscodeSheet &sheet) {
    UIViewController *root = [UIViewController new];
    PasscodeView *view = [[PasscodeView alloc] initWithFrame:CGRectZero];
    view.backgroundColor = [UIColor whiteColor];
    view.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
    root.view = view;
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
    UIViewController *root = newRoot(sheet);
    UINavigationController *navigation = [[UINavigationController alloc] initWithRootViewController:root];
    PasscodeView *view = (PasscodeView *)root.view;
    const BOOL presented = presentSheet(navigation, sheet.page, ^{ [view takeFocus]; });
    // What stands on it is laid out for the size that it was presented in.
    [navigation.view layoutIfNeeded];
    view.group = sheet.first;
    for (NSString *key : sheet.groups) [view addGroup:shownText(key)];
    [view addFieldFor:sheet.page action:sheet.typed];
    [navigation release];
    [root release];
    return presented;
}

} // namespace pendix::pane
