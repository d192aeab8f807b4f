// Foundation's headers ask for this file when blocks are on; the functions are the process's own.
#pragma once

extern "C" {
void *_Block_copy(const void *block);
void _Block_release(const void *block);
}

#define Block_copy(...) ((__typeof(__VA_ARGS__))_Block_copy((const void *)(__VA_ARGS__)))
#define Block_release(...) _Block_release((const void *)(__VA_ARGS__))
