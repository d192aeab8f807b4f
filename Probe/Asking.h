// Remembers on disk what is being asked, so that a question that ends the home screen is not asked again
// after it has started anew.
#pragma once

#import <Foundation/Foundation.h>

namespace probe {

// Whether it may be asked; NO for what ended the home screen before. From then on until askedEverything() it
// counts as being asked.
BOOL mayAsk(NSString *name);

// The home screen goes on: nothing is being asked.
void askedEverything();

} // namespace probe
