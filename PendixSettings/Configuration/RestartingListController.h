#pragma once

#include "PendixSettings/Core/PendixListController.h"

// A page some of whose changes need a restart of the home screen. It answers the alert that offers one.
@interface RestartingListController : PendixListController <UIAlertViewDelegate>
@end
