// The functions behind the hook table's rows that belong to the device's capabilities.
#pragma once

#include <SpringBoard/SpringBoard.h>

// Methods that the system does not have; callers see them through the category headers.
namespace pendix::added {

NSString *getSysInfoByName(SpringBoard *self, SEL _cmd, char *name);
NSString *modelIdentifier(SpringBoard *self, SEL _cmd);
BOOL hasTouchID(SpringBoard *self, SEL _cmd);
BOOL hasBigScreen(SpringBoard *self, SEL _cmd);

} // namespace pendix::added
