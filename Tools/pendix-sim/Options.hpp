// What a command takes, as its help lists it and as the call is read.
#pragma once

#include "Supervisor/Reference/About.hpp"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace sim {

struct OptionRow {
    const char *names; // "--out", "FILE" for a word of the call, "BOOT,--boot" for what may be either
    About about;
    const char *value = nullptr; // what help calls the value; null: its kind
    bool required = false;
};

// Where the values go must outlive the reading of the call. What is there before is the default, and help
// tells it of paths and numbers that are not empty.
class Options {
public:
    explicit Options(CLI::App &command) : command_(command) {}

    void flag(const OptionRow &row, bool &value, const char *environment = nullptr);
    void text(const OptionRow &row, std::string &value);
    void path(const OptionRow &row, std::filesystem::path &value);
    void number(const OptionRow &row, int64_t &value);
    void port(const OptionRow &row, uint16_t &value);
    // From `least` to `most`; other values are refused.
    void real(const OptionRow &row, double &value, double least, double most);
    // From 1 on.
    void count(const OptionRow &row, int64_t &value);
    // A file that must be there, and the same or a folder, several of them.
    void file(const OptionRow &row, std::filesystem::path &value);
    void places(const OptionRow &row, std::vector<std::filesystem::path> &values);
    // One value each time that the option is given.
    void repeatable(const OptionRow &row, std::vector<std::string> &values);
    // All the words that are left.
    void words(const OptionRow &row, std::vector<std::string> &values);

    // What help says last.
    void footer(const std::string &text);

private:
    template <typename Value>
    CLI::Option *add(const OptionRow &row, Value &value);

    CLI::App &command_;
};

} // namespace sim
