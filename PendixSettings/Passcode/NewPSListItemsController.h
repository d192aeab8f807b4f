#pragma once

#include <Preferences/Preferences.h>

// A list of choices that records that it was shown, so that the page it belongs to knows it is returned to.
@interface NewPSListItemsController : PSListItemsController
@end
