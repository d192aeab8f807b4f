#pragma once

#include "PendixSettings/Root/LockedUIViewController.h"

// What the extension is: its name, its version, what it does. Covers everything and is left by its button.
@interface creatorsController : LockedUIViewController
@end
