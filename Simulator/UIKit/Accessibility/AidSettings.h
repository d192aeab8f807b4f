// What the user has set to be helped, as this process knows it.
#pragma once

#include "Runtime/Values/Aids.hpp"

#import <Foundation/Foundation.h>

namespace sim {

const Aids &aids();
// Takes the settings over; for each that changes, those who observe it are told. At a process's start nobody
// is.
void setAids(const Aids &next);

} // namespace sim
