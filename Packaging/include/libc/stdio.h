// What libc++'s headers name of the device's standard input and output; the product itself uses none of it.
#pragma once

#include <stdarg.h>
#include <stddef.h>

#define EOF (-1)

#ifdef __cplusplus
extern "C" {
#endif
// Hides behind std::remove, the algorithm, unless it is declared.
int remove(const char *path);
int rename(const char *from, const char *to);
int snprintf(char *buffer, size_t size, const char *format, ...) __attribute__((format(printf, 3, 4)));
int vsnprintf(char *buffer, size_t size, const char *format, va_list arguments);
#ifdef __cplusplus
}
#endif
