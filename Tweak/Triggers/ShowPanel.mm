#include "Tweak/Triggers/ShowPanel.h"

#include "Tweak/Core/State.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

BOOL showPanel() {
    window1 = [[UIApplication sharedApplication] statusBarWindow];
    if (![Spring pendix]) {
        NSLog(@"<Pendix> Error while showing UI!");
        return NO;
    }
    bringUpPanel(Spring);
    return YES;
}

} // namespace pendix
