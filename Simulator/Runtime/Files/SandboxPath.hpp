// A path of the device, resolved for a call of the C library.
#pragma once

#include "Sandbox.hpp"

#include <string>
#include <string_view>

namespace sim {

// What resolvePath() makes of a path; costs next to nothing when that is the path itself.
class SandboxPath {
public:
    explicit SandboxPath(const char *path); // may be null

    operator const char *() const { return text_; }
    bool moved() const { return !storage_.empty(); }
    // Whether this call here is to fail; errno is set then.
    bool refuses(WriteCall call) const;
    // The same for a rename from here.
    bool refusesMoveTo(const SandboxPath &target) const;

private:
    const char *text_;
    std::string storage_;
};

} // namespace sim
