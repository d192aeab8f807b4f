#include "PendixSettings/Core/Alerts.h"

#include "PendixSettings/Core/Kept.h"
#include "PendixSettings/Core/PaneTranslator.h"

#include <stdlib.h>

namespace pendix::pane {

namespace {

// An alert does not keep its delegate.
void show(UIAlertView *alert) {
    keepWith(alert, alert.delegate);
    [alert show];
    [alert release];
}

} // namespace

void showNote(NSString *title, NSString *message, id delegate) {
    UIAlertView *alert = [[UIAlertView alloc] initWithTitle:shownText(title)
                                                    message:shownText(message)
                                                   delegate:delegate
                                          cancelButtonTitle:shownText(@"ok")
                                          otherButtonTitles:nil];
    show(alert);
}

void offerRestart(id delegate) {
    UIAlertView *alert = [[UIAlertView alloc] initWithTitle:shownText(@"resp")
                                                    message:shownText(@"message_resp")
                                                   delegate:delegate
                                          cancelButtonTitle:shownText(@"cancel")
                                          otherButtonTitles:shownText(@"ok"), nil];
    show(alert);
}

void answerRestart(NSInteger button) {
    if (button == 1) (void)system("killall SpringBoard");
}

} // namespace pendix::pane
