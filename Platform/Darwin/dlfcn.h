// Functions and variables by name, for those that some versions of the system lack.
#pragma once

// Among all libraries that are loaded.
#define RTLD_DEFAULT ((void *)-2)

extern "C" {
// `name` without the leading underscore of the linker. A null pointer when nothing is called so.
void *dlsym(void *handle, const char *name);
}
