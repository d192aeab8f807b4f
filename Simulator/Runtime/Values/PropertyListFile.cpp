#include "PropertyList.hpp"
#include "PropertyListReader.hpp"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace sim {

namespace {

struct Descriptor {
    int value;
    ~Descriptor() {
        if (value >= 0) ::close(value);
    }
    // A write may fail as late as here.
    bool close() { return ::close(std::exchange(value, -1)) == 0; }
};

mode_t permissionsFor(const std::string &path) {
    struct stat old;
    if (stat(path.c_str(), &old) == 0) return old.st_mode & 07777;
    mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<size_t>(count));
    }
    return true;
}

} // namespace

std::optional<std::string> readWholeFile(const std::string &path) {
    Descriptor file{open(path.c_str(), O_RDONLY | O_CLOEXEC)};
    struct stat info;
    if (file.value < 0 || fstat(file.value, &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
    if (static_cast<size_t>(info.st_size) > kLongestPropertyList) return std::nullopt;
    std::string bytes(static_cast<size_t>(info.st_size), '\0');
    size_t length = 0;
    while (length < bytes.size()) {
        ssize_t count = ::read(file.value, bytes.data() + length, bytes.size() - length);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        length += static_cast<size_t>(count);
    }
    bytes.resize(length);
    return bytes;
}

bool writeFileAtomically(const std::string &path, std::string_view bytes) {
    std::string temporary = path + ".XXXXXX";
    mode_t permissions = permissionsFor(path);
    Descriptor file{mkostemp(temporary.data(), O_CLOEXEC)};
    if (file.value < 0) return false;
    bool done = writeAll(file.value, bytes) && fchmod(file.value, permissions) == 0 && file.close() &&
                rename(temporary.c_str(), path.c_str()) == 0;
    if (done) return true;
    int reason = errno;
    unlink(temporary.c_str());
    errno = reason;
    return false;
}

} // namespace sim
