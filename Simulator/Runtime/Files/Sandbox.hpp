// The folder that stands for the device's file system. Paths of the device land in it wherever the process
// hands them to the C library, and so for every way of reaching files that Foundation has.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sim {

// From now on paths of the device lie below `root`, which must exist; also makes the folders above the
// device's own in it. Before the first call all paths stay as they are. Throws std::runtime_error.
void setSandboxRoot(const std::string &root);

// The host's path for a path of the device: below the root. Other paths (relative, below the root already,
// or of places that the machine's own libraries need, such as /usr/share, /etc or /tmp) are returned
// unchanged.
std::string resolvePath(std::string_view devicePath);

// The inverse: the device's path for one below the root; other paths are returned unchanged.
std::string devicePathOf(std::string_view path);

// From now on every call that would make or change a file or folder at or below the path fails with that
// error, as on a full or damaged disk. Reading and removing go on as before. The path need not end at a
// name's end: "/var/a" is in front of "/var/abc" as well. An error of 0 ends all of this.
void failWrites(std::string_view devicePathPrefix, int error);

// The calls by which a file is written; folders, links and truncation are `other`.
enum class WriteCall { open, rename, other };

struct WriteFailure {
    std::string prefix; // of paths of the device, as above
    int error = 0;
    std::optional<WriteCall> call; // absent: each of them
    // Of the calls that it is about, this one fails, counted from 1, and so many more as `times` says.
    uint64_t first = 1;
    uint64_t times = UINT64_MAX;
};
void addWriteFailure(WriteFailure failure);

} // namespace sim
