#pragma once

#include <UIKit/UIViewController.h>

// A page drawn for the portrait orientation alone.
@interface LockedUIViewController : UIViewController
@end
