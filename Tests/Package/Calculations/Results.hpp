// The product's plain calculations on inputs that are the same on every processor: numbers that a float holds
// exactly. Each result goes to `report` under a name of its own.
#pragma once

#include <initializer_list>

namespace results {

using Report = void (*)(const char *name, double value);

void badges(Report report);
void clock(Report report);
void digits(Report report);
void lock(Report report);
void panel(Report report);
void pulse(Report report);
void strip(Report report);

} // namespace results

// What the emulated processor and the program for this machine call.
extern "C" __attribute__((visibility("default"))) void reportCalculations(results::Report report);
