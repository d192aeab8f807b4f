#include "PendixSettings/Core/Alerts.h"

#include "PendixSettings/Core/PaneTranslator.h"

#include <stdlib.h>

namespace pendix::pane {

void showNote(NSString *title, NSString *message, id delegate) {
    UIAlertView *alert = [[UIAlertView alloc] initWithTitle:shownText(title)
                                                    message:shownText(message)
                                                   delegate:delegate
                                          cancelButtonTitle:shownText(@"ok")
                                          otherButtonTitles:nil];
    [alert show];
    [alert release];
}

void offerRestart(id delegate) {
    UIAlertView *alert = [[UIAlertView alloc] initWithTitle:shownText(@"resp")
                                                    message:shownText(@"message_resp")
                                                   delegate:delegate
                                          cancelButtonTitle:shownText(@"cancel")
                                          otherButtonTitles:shownText(@"ok"), nil];
    [alert show];
    [alert release];
}

void answerRestart(NSInteger button) {
    if (button == 1) (void)system("killall SpringBoard");
}

} // namespace pendix::pane
