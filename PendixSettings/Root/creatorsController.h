#pragma once

#include "PendixSettings/Core/PendixListController.h"

// What the extension is: its name, its version, what it does.
@interface creatorsController : PendixListController
@end

// The page's header: glyph, name and version.
@interface creatorsHeader : PSTableCell <PSHeaderFooterView>
@end
