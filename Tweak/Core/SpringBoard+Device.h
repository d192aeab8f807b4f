// What the extension knows about the device it runs on; methods that it adds to the home screen's
// application.
#pragma once

#include <SpringBoard/SpringBoard.h>

@interface SpringBoard (PendixDevice)
// A system setting by its sysctl name.
- (NSString *)getSysInfoByName:(char *)name;
// "hw.machine", for example "iPhone7,2".
- (NSString *)modelIdentifier;
// Whether the model is one of nine with a Touch ID sensor. Newer models read as NO.
- (BOOL)hasTouchID;
// Every iPad, and the two iPhones of 4.7 and 5.5 inches.
- (BOOL)hasBigScreen;
@end
