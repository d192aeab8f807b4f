// The calls that make, remove, rename and link files and folders, on paths of the simulated device.
#include "FileSeam.hpp"
#include "Sandbox.hpp"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using sim::SandboxPath;

namespace {

template <typename Next>
int make(Next next, const char *path) {
    SandboxPath place(path);
    return place.refuses(sim::WriteCall::other) ? -1 : next(place);
}

template <typename Next>
int move(Next next, const char *from, const char *to) {
    SandboxPath source(from), target(to);
    return source.refusesMoveTo(target) ? -1 : next(source, target);
}

// What a link holds, as the device names it.
template <typename Next>
ssize_t readLink(Next next, const char *path, char *buffer, size_t size) {
    char content[PATH_MAX];
    ssize_t length = next(SandboxPath(path), content, sizeof content);
    if (length < 0) return length;
    std::string target = sim::devicePathOf(std::string_view(content, static_cast<size_t>(length)));
    size_t count = std::min(size, target.size());
    memcpy(buffer, target.data(), count);
    return static_cast<ssize_t>(count);
}

} // namespace

SEAM int mkdir(const char *path, mode_t mode) noexcept {
    return make([&](const char *place) { return NEXT(mkdir)(place, mode); }, path);
}

SEAM int mkdirat(int folder, const char *path, mode_t mode) noexcept {
    return make([&](const char *place) { return NEXT(mkdirat)(folder, place, mode); }, path);
}

SEAM int rmdir(const char *path) noexcept { return NEXT(rmdir)(SandboxPath(path)); }
SEAM int unlink(const char *path) noexcept { return NEXT(unlink)(SandboxPath(path)); }
SEAM int unlinkat(int folder, const char *path, int flags) noexcept {
    return NEXT(unlinkat)(folder, SandboxPath(path), flags);
}
SEAM int remove(const char *path) noexcept { return NEXT(remove)(SandboxPath(path)); }

SEAM int rename(const char *from, const char *to) noexcept { return move(NEXT(rename), from, to); }

SEAM int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept {
    auto next = [&](const char *source, const char *target) {
        return NEXT(renameat)(fromFolder, source, toFolder, target);
    };
    return move(next, from, to);
}

SEAM int link(const char *from, const char *to) noexcept { return move(NEXT(link), from, to); }

// A link to a place of the device leads there whatever follows it.
SEAM int symlink(const char *content, const char *path) noexcept {
    return make([&](const char *place) { return NEXT(symlink)(SandboxPath(content), place); }, path);
}

SEAM ssize_t readlink(const char *path, char *buffer, size_t size) noexcept {
    return readLink(NEXT(readlink), path, buffer, size);
}

SEAM ssize_t readlinkat(int folder, const char *path, char *buffer, size_t size) noexcept {
    auto next = [&](const char *place, char *content, size_t length) {
        return NEXT(readlinkat)(folder, place, content, length);
    };
    return readLink(next, path, buffer, size);
}

SEAM char *realpath(const char *path, char *buffer) noexcept {
    SandboxPath place(path);
    if (!place.moved()) return NEXT(realpath)(path, buffer);
    char resolved[PATH_MAX];
    if (!NEXT(realpath)(place, resolved)) return nullptr;
    std::string named = sim::devicePathOf(resolved);
    return buffer ? strcpy(buffer, named.c_str()) : strdup(named.c_str());
}

// What calls with a buffer of known size become in libraries that were compiled with such checks.
SEAM char *__realpath_chk(const char *path, char *buffer, size_t) noexcept { return realpath(path, buffer); }
SEAM ssize_t __readlink_chk(const char *path, char *buffer, size_t size, size_t) noexcept {
    return readlink(path, buffer, size);
}

SEAM int chdir(const char *path) noexcept { return NEXT(chdir)(SandboxPath(path)); }
