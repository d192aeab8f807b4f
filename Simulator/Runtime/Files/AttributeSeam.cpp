// The calls that look at files and folders and change what is noted about them, on paths of the simulated
// device.
#include "FileSeam.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <sys/time.h>
#include <unistd.h>
#include <utime.h>

using sim::SandboxPath;

SEAM int stat(const char *path, struct stat *info) noexcept { return NEXT(stat)(SandboxPath(path), info); }
SEAM int stat64(const char *path, struct stat64 *info) noexcept {
    return NEXT(stat64)(SandboxPath(path), info);
}
SEAM int lstat(const char *path, struct stat *info) noexcept { return NEXT(lstat)(SandboxPath(path), info); }
SEAM int lstat64(const char *path, struct stat64 *info) noexcept {
    return NEXT(lstat64)(SandboxPath(path), info);
}

SEAM int fstatat(int folder, const char *path, struct stat *info, int flags) noexcept {
    return NEXT(fstatat)(folder, SandboxPath(path), info, flags);
}

SEAM int fstatat64(int folder, const char *path, struct stat64 *info, int flags) noexcept {
    return NEXT(fstatat64)(folder, SandboxPath(path), info, flags);
}

SEAM int statx(int folder, const char *path, int flags, unsigned wanted, struct statx *info) noexcept {
    return NEXT(statx)(folder, SandboxPath(path), flags, wanted, info);
}

SEAM int access(const char *path, int kind) noexcept { return NEXT(access)(SandboxPath(path), kind); }

SEAM int faccessat(int folder, const char *path, int kind, int flags) noexcept {
    return NEXT(faccessat)(folder, SandboxPath(path), kind, flags);
}

SEAM int statvfs(const char *path, struct statvfs *info) noexcept {
    return NEXT(statvfs)(SandboxPath(path), info);
}
SEAM int statvfs64(const char *path, struct statvfs64 *info) noexcept {
    return NEXT(statvfs64)(SandboxPath(path), info);
}
SEAM int statfs(const char *path, struct statfs *info) noexcept {
    return NEXT(statfs)(SandboxPath(path), info);
}
SEAM int statfs64(const char *path, struct statfs64 *info) noexcept {
    return NEXT(statfs64)(SandboxPath(path), info);
}

SEAM int chmod(const char *path, mode_t mode) noexcept { return NEXT(chmod)(SandboxPath(path), mode); }
SEAM int chown(const char *path, uid_t user, gid_t group) noexcept {
    return NEXT(chown)(SandboxPath(path), user, group);
}
SEAM int lchown(const char *path, uid_t user, gid_t group) noexcept {
    return NEXT(lchown)(SandboxPath(path), user, group);
}

SEAM int utime(const char *path, const struct utimbuf *times) noexcept {
    return NEXT(utime)(SandboxPath(path), times);
}
SEAM int utimes(const char *path, const struct timeval times[2]) noexcept {
    return NEXT(utimes)(SandboxPath(path), times);
}
SEAM int utimensat(int folder, const char *path, const struct timespec times[2], int flags) noexcept {
    return NEXT(utimensat)(folder, SandboxPath(path), times, flags);
}

SEAM int truncate(const char *path, off_t length) noexcept {
    SandboxPath place(path);
    return place.refuses(sim::WriteCall::other) ? -1 : NEXT(truncate)(place, length);
}

SEAM int truncate64(const char *path, off64_t length) noexcept {
    SandboxPath place(path);
    return place.refuses(sim::WriteCall::other) ? -1 : NEXT(truncate64)(place, length);
}
