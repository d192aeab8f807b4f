#include "PendixSettings/Core/Sheets.h"

#include "PendixSettings/Core/Kept.h"

namespace pendix::pane {

namespace {

UIViewController *presenter() { return [UIApplication sharedApplication].keyWindow.rootViewController; }

} // namespace

BOOL sheetIsUp() { return presenter().presentedViewController != nil; }

BOOL presentSheet(UIViewController *sheet, id page, void (^completion)(void)) {
    if (sheetIsUp()) return NO;
    keepWith(sheet.view, page);
    [presenter() presentViewController:sheet animated:YES completion:completion];
    return presenter().presentedViewController == sheet;
}

void dismissSheet(void (^completion)(void)) {
    [presenter() dismissViewControllerAnimated:YES completion:completion];
}

} // namespace pendix::pane
