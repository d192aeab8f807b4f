#include "PendixSettings/Core/Alerts.h"

#include "PendixSettings/Core/PaneTranslator.h"

#include <stdlib.h>

namespace pendix::pane {

void showNote(NSString *title, NSString *message, id delegate) {
    UIAlertView *alert = [[UIAlertView alloc] initWithTitle:Translator(title)
                                                    message:Translator(message)
                                                   delegate:delegate
                                          cancelButtonTitle:Translator(@"ok")
                                          otherButtonTitles:nil];
    [alert show];
    [alert release];
}

void offerRestart(id delegate) {
    UIAlertView *alert = [[UIAlertView alloc] initWithTitle:Translator(@"resp")
                                                    message:Translator(@"message_resp")
                                                   delegate:delegate
                                          cancelButtonTitle:Translator(@"cancel")
                                          otherButtonTitles:Translator(@"ok"), nil];
    [alert show];
    [alert release];
}

void answerRestart(NSInteger button) {
    if (button == 1) (void)system("killall SpringBoard");
}

} // namespace pendix::pane
