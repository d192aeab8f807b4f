// A path on its way into the C library.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// What resolvePath() makes of a path; costs next to nothing when that is the path itself.
class SandboxPath {
public:
    explicit SandboxPath(const char *path); // may be null

    operator const char *() const { return text_; }
    bool moved() const { return !storage_.empty(); }
    // Whether writes here are to fail; errno is set then.
    bool refusesWrites() const;

private:
    const char *text_;
    std::string storage_;
};

} // namespace sim
