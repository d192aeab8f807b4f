// The page on which the events of one listener are assigned.
#pragma once

#include <UIKit/UIViewController.h>

@interface LAListenerSettingsViewController : UIViewController {
@public
    void *_listenerSettingsState;
}
@property (nonatomic, copy) NSString *listenerName;
@end
