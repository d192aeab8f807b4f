// What several test files need: temporary folders, raw looks at the machine's files, events as text, crashes.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace support {

class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::string &path() const { return path_; }
    std::string operator/(const std::string &name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

void putFile(const std::string &path, const std::string &bytes);
// "<none>" when there is no such file.
std::string fileContent(const std::string &path);
// Sorted.
std::vector<std::string> namesIn(const std::string &folder);
// Asks the kernel, past everything that the process puts in between.
bool existsOnMachine(const std::string &path);

// The events since the last call without their times, each as "kind key=value key=value".
std::vector<std::string> events();

struct Death {
    int signal; // 0: it exited
    std::string report;
};
// What the crash handler reports of a process like this one that runs `action`.
Death deathBy(const std::function<void()> &action);

} // namespace support
