#include "Sandbox.hpp"

#include "SandboxPath.hpp"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace sim {

namespace {

// Calls arrive before the first constructor has run, so this is ready at once.
constinit char root[PATH_MAX] = "";

std::string_view rootPath() { return root; }

// Places that only the device has or that only code of the device goes to.
constexpr std::string_view kDeviceFolders[] = {"/Applications",
                                               "/Developer",
                                               "/Library",
                                               "/System",
                                               "/User",
                                               "/bootstrap",
                                               "/private",
                                               "/usr/lib/TweakInject",
                                               "/usr/libexec/cydia",
                                               "/var/containers",
                                               "/var/db",
                                               "/var/lib",
                                               "/var/log",
                                               "/var/mobile",
                                               "/var/preferences",
                                               "/var/root",
                                               "/var/stash",
                                               "/var/tmp"};

// Links that every device has.
constexpr struct { std::string_view from, to; } kLinks[] = {{"/private", ""}, {"/User", "/var/mobile"}};

// The prefix is resolved.
struct Failure : WriteFailure {
    uint64_t calls = 0; // so far

    bool refuses(WriteCall made, const char *path) {
        if (!path || (call && *call != made) || !std::string_view(path).starts_with(prefix)) return false;
        ++calls;
        return calls >= first && calls - first < times;
    }
};

std::vector<Failure> &failures() {
    // Never destroyed: files are opened until the very end of the process.
    static auto &list = *new std::vector<Failure>;
    return list;
}

bool isAtOrBelow(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

bool isPlain(std::string_view path) {
    for (size_t slash = path.find('/'); slash != std::string_view::npos; slash = path.find('/', slash + 1)) {
        std::string_view rest = path.substr(slash + 1);
        if (rest.starts_with('/') || rest == "." || rest.starts_with("./") || rest.starts_with(".."))
            return false;
    }
    return true;
}

// Without empty parts, "." and "..".
std::string simplified(std::string_view path) {
    std::string result;
    for (size_t at = 0; at < path.size();) {
        size_t end = std::min(path.find('/', at), path.size());
        std::string_view part = path.substr(at, end - at);
        at = end + 1;
        if (part == "..") {
            result.resize(std::min(result.size(), result.rfind('/')));
        } else if (!part.empty() && part != ".") {
            result.append("/").append(part);
        }
    }
    return result.empty() ? "/" : result;
}

std::string withoutLinks(std::string_view path) {
    for (const auto &link : kLinks)
        if (isAtOrBelow(path, link.from)) return std::string(link.to).append(path.substr(link.from.size()));
    return std::string(path);
}

// Empty when the path stays as it is.
std::string moved(std::string_view path) {
    if (!root[0] || !path.starts_with('/')) return {};
    std::string plain;
    if (!isPlain(path)) path = plain = simplified(path);
    if (isAtOrBelow(path, rootPath())) return {};
    auto covers = [&](std::string_view folder) { return isAtOrBelow(path, folder); };
    if (std::none_of(std::begin(kDeviceFolders), std::end(kDeviceFolders), covers)) return {};
    return std::string(rootPath()) + withoutLinks(path);
}

} // namespace

void setSandboxRoot(const std::string &path) {
    char canonical[PATH_MAX];
    if (!realpath(path.c_str(), canonical)) throw std::runtime_error("no folder at " + path);
    strcpy(root, canonical);
    for (std::string_view folder : kDeviceFolders) {
        for (size_t slash = 0; (slash = folder.find('/', slash + 1)) != std::string_view::npos;) {
            std::string above = std::string(rootPath()).append(folder.substr(0, slash));
            if (mkdir(above.c_str(), 0755) != 0 && errno != EEXIST)
                throw std::runtime_error("cannot make " + above + ": " + strerror(errno));
        }
    }
}

std::string resolvePath(std::string_view devicePath) {
    std::string result = moved(devicePath);
    return result.empty() ? std::string(devicePath) : result;
}

std::string devicePathOf(std::string_view path) {
    if (!root[0] || !isAtOrBelow(path, rootPath())) return std::string(path);
    path.remove_prefix(rootPath().size());
    return path.empty() ? "/" : std::string(path);
}

void failWrites(std::string_view devicePathPrefix, int error) {
    if (error) {
        addWriteFailure({.prefix = std::string(devicePathPrefix), .error = error, .call = {}});
    } else {
        failures().clear();
    }
}

void addWriteFailure(WriteFailure failure) {
    failure.prefix = resolvePath(failure.prefix);
    failures().push_back({std::move(failure)});
}

SandboxPath::SandboxPath(const char *path) : text_(path) {
    if (!path) return;
    storage_ = sim::moved(path);
    if (moved()) text_ = storage_.c_str();
}

bool SandboxPath::refuses(WriteCall call) const {
    for (auto &failure : failures()) {
        if (!failure.refuses(call, text_)) continue;
        errno = failure.error;
        return true;
    }
    return false;
}

bool SandboxPath::refusesMoveTo(const SandboxPath &target) const {
    for (auto &failure : failures()) {
        // One move is one call, wherever both its ends lie.
        bool atSource = text_ && std::string_view(text_).starts_with(failure.prefix);
        if (!failure.refuses(WriteCall::rename, atSource ? text_ : target.text_)) continue;
        errno = failure.error;
        return true;
    }
    return false;
}

} // namespace sim
