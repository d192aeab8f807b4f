#include "Symbolise.hpp"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace sim {

namespace {

// They take the same arguments. The first reads every form of debugging data that clang writes.
constexpr std::array<const char *, 3> kTools = {"llvm-addr2line-14", "llvm-addr2line", "addr2line"};
constexpr std::string_view kMark = "frame ";

struct Frame {
    std::string path, offset;
};

bool splitFrame(const std::string &line, Frame *frame) {
    size_t plus = line.rfind("+0x");
    if (!line.starts_with(kMark) || plus == std::string::npos) return false;
    *frame = {line.substr(kMark.size(), plus - kMark.size()), line.substr(plus + 1)};
    return true;
}

// What the program prints; empty when it cannot be started or fails.
std::string outputOf(std::vector<std::string> arguments) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return {};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<char *> pointers;
    for (auto &argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    pid_t process;
    int failure = posix_spawnp(&process, pointers[0], &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::string output;
    char bytes[4096];
    ssize_t count;
    while (!failure && ((count = read(ends[0], bytes, sizeof bytes)) > 0 || (count < 0 && errno == EINTR)))
        if (count > 0) output.append(bytes, static_cast<size_t>(count));
    close(ends[0]);
    int status = 0;
    if (failure) return {};
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {}
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? output : std::string();
}

std::string lastPart(const std::string &path) { return path.substr(path.rfind('/') + 1); }

// The answer for each offset is two lines, the function and the place in the source; "??" stands for not
// known.
void explain(const std::string &path, const std::vector<std::string> &offsets,
             std::map<std::string, std::string> &names) {
    for (const char *tool : kTools) {
        std::vector<std::string> arguments = {tool, "-f", "-C", "-e", path};
        arguments.insert(arguments.end(), offsets.begin(), offsets.end());
        std::istringstream answer(outputOf(arguments));
        std::string function, place;
        bool answered = false;
        for (const auto &offset : offsets) {
            if (!std::getline(answer, function) || !std::getline(answer, place)) break;
            answered = true;
            if (function == "??") continue;
            bool known = !place.starts_with("??");
            names[path + "+" + offset] =
                function + (known ? " (" + lastPart(place) + ")" : "") + " in " + lastPart(path);
        }
        if (answered) return;
    }
}

} // namespace

std::string symbolise(const std::string &report) {
    std::map<std::string, std::vector<std::string>> offsets; // by library
    Frame frame;
    std::istringstream first(report);
    for (std::string line; std::getline(first, line);)
        if (splitFrame(line, &frame) && frame.path.starts_with('/'))
            offsets[frame.path].push_back(frame.offset);
    std::map<std::string, std::string> names;
    for (const auto &[path, list] : offsets) explain(path, list, names);

    std::string result;
    std::istringstream second(report);
    for (std::string line; std::getline(second, line);) {
        auto name = splitFrame(line, &frame) ? names.find(frame.path + "+" + frame.offset) : names.end();
        result += (name == names.end() ? line : name->second) + "\n";
    }
    return result;
}

} // namespace sim
