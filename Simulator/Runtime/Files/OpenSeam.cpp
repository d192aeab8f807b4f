// The calls that open files and folders, on paths of the simulated device.
#include "FileSeam.hpp"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>

using sim::SandboxPath;

namespace {

bool writes(int flags) { return (flags & O_ACCMODE) != O_RDONLY || flags & (O_CREAT | O_TRUNC); }
bool writes(const char *mode) { return strpbrk(mode, "wa+"); }

mode_t modeOf(int flags, va_list rest) { return flags & (O_CREAT | __O_TMPFILE) ? va_arg(rest, mode_t) : 0; }

template <typename Next>
int openPath(Next next, const char *path, int flags, va_list rest) {
    mode_t mode = modeOf(flags, rest);
    SandboxPath place(path);
    if (writes(flags) && place.refuses(sim::WriteCall::open)) return -1;
    return next(place, flags, mode);
}

template <typename Next>
FILE *openStream(Next next, const char *path, const char *mode) {
    SandboxPath place(path);
    if (writes(mode) && place.refuses(sim::WriteCall::open)) return nullptr;
    return next(place, mode);
}

// The six letters chosen come back in the caller's own template.
template <typename Next>
auto openTemporary(Next next, char *pattern, decltype(next(pattern)) failed) {
    SandboxPath place(pattern);
    if (place.refuses(sim::WriteCall::open)) return failed;
    if (!place.moved()) return next(pattern);
    std::string moved(place);
    auto result = next(moved.data());
    size_t length = strlen(pattern);
    memcpy(pattern, moved.data() + moved.size() - length, length);
    return result;
}

} // namespace

SEAM int open(const char *path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    int result = openPath(NEXT(open), path, flags, rest);
    va_end(rest);
    return result;
}

SEAM int open64(const char *path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    int result = openPath(NEXT(open64), path, flags, rest);
    va_end(rest);
    return result;
}

SEAM int openat(int folder, const char *path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    auto next = [&](const char *place, int, mode_t mode) { return NEXT(openat)(folder, place, flags, mode); };
    int result = openPath(next, path, flags, rest);
    va_end(rest);
    return result;
}

SEAM int openat64(int folder, const char *path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    auto next = [&](const char *place, int, mode_t mode) {
        return NEXT(openat64)(folder, place, flags, mode);
    };
    int result = openPath(next, path, flags, rest);
    va_end(rest);
    return result;
}

// What opening without a mode becomes in libraries that were compiled with checks.
SEAM int __open_2(const char *path, int flags) { return open(path, flags); }
SEAM int __open64_2(const char *path, int flags) { return open64(path, flags); }

SEAM int creat(const char *path, mode_t mode) { return open(path, O_CREAT | O_WRONLY | O_TRUNC, mode); }
SEAM int creat64(const char *path, mode_t mode) { return open64(path, O_CREAT | O_WRONLY | O_TRUNC, mode); }

SEAM FILE *fopen(const char *path, const char *mode) { return openStream(NEXT(fopen), path, mode); }
SEAM FILE *fopen64(const char *path, const char *mode) { return openStream(NEXT(fopen64), path, mode); }

SEAM FILE *freopen(const char *path, const char *mode, FILE *stream) {
    auto next = [&](const char *place, const char *) { return NEXT(freopen)(place, mode, stream); };
    return openStream(next, path, mode);
}

SEAM FILE *freopen64(const char *path, const char *mode, FILE *stream) {
    auto next = [&](const char *place, const char *) { return NEXT(freopen64)(place, mode, stream); };
    return openStream(next, path, mode);
}

SEAM DIR *opendir(const char *path) { return NEXT(opendir)(SandboxPath(path)); }

SEAM int mkstemp(char *pattern) { return openTemporary(NEXT(mkstemp), pattern, -1); }
SEAM int mkstemp64(char *pattern) { return openTemporary(NEXT(mkstemp64), pattern, -1); }

SEAM int mkostemp(char *pattern, int flags) {
    return openTemporary([&](char *place) { return NEXT(mkostemp)(place, flags); }, pattern, -1);
}

SEAM int mkostemp64(char *pattern, int flags) { return mkostemp(pattern, flags); }

SEAM char *mkdtemp(char *pattern) noexcept {
    auto next = [](char *place) { return NEXT(mkdtemp)(place); };
    return openTemporary(next, pattern, nullptr) ? pattern : nullptr;
}
