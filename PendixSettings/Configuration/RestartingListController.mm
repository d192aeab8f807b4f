#include "PendixSettings/Configuration/RestartingListController.h"

#include "PendixSettings/Core/Alerts.h"

@implementation RestartingListController

// Of the alerts that come here only that one has a second button.
- (void)alertView:(UIAlertView *)alertView clickedButtonAtIndex:(NSInteger)index {
    pendix::pane::answerRestart(index);
}

@end
