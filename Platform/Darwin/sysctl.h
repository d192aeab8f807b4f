// The system's settings by name, such as the model of the device.
#pragma once

#include <stddef.h>

extern "C" {
// Fills `value`, of `*size` bytes, with the named setting and stores the bytes used in `*size`; with a null
// value only the size is asked for. 0, or -1 for an unknown name or too small a buffer.
int sysctlbyname(const char *name, void *value, size_t *size, void *newValue, size_t newSize);
}
