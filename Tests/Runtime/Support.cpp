#include "Support.hpp"

#include "Runtime/Process/Crash.hpp"
#include "Runtime/Process/Events.hpp"
#include "Runtime/Values/Json.hpp"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    path_ = (fs::temp_directory_path() / "runtime-tests-XXXXXX").string();
    if (!mkdtemp(path_.data())) abort();
    path_ = fs::canonical(path_);
}

TemporaryFolder::~TemporaryFolder() { fs::remove_all(path_); }

void putFile(const std::string &path, const std::string &bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string fileContent(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return "<none>";
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<std::string> namesIn(const std::string &folder) {
    std::vector<std::string> names;
    for (const auto &entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

bool existsOnMachine(const std::string &path) {
    return syscall(SYS_faccessat, AT_FDCWD, path.c_str(), F_OK) == 0;
}

std::vector<std::string> events() {
    std::vector<std::string> lines;
    for (const auto &event : sim::takeEvents()) {
        std::string line = event["kind"].string();
        for (const auto &[key, value] : event.object())
            if (key != "kind" && key != "t")
                line += " " + key + "=" + (value.isString() ? value.string() : sim::toJson(value));
        lines.push_back(line);
    }
    return lines;
}

Death deathBy(const std::function<void()> &action) {
    int ends[2];
    if (pipe(ends) != 0) abort();
    pid_t child = fork();
    if (child == 0) {
        sim::installCrashHandler(ends[1]);
        action();
        _exit(0);
    }
    close(ends[1]);
    Death death{};
    char bytes[512];
    for (ssize_t count; (count = read(ends[0], bytes, sizeof bytes)) > 0;)
        death.report.append(bytes, static_cast<size_t>(count));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    death.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    return death;
}

} // namespace support
