// The rows of Settings that belong to the system.
#pragma once

#import <Foundation/Foundation.h>

namespace sim {

// Groups and rows. Their pages are empty: nothing of the system can be set here.
NSArray *stockRows();

} // namespace sim
