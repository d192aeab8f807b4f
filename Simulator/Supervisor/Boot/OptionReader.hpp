// Reads and validates a table of options: unknown names and values of the wrong type are refused.
#pragma once

#include "Runtime/Values/Value.hpp"
#include "Supervisor/Reference/About.hpp"

#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

// A device that cannot be booted as asked; the text says what to change.
struct BootError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Every accessor returns nothing when its option is absent. Throws BootError; std::logic_error for an option
// that is read without having a row in the table of options.
class OptionReader {
public:
    // `where` names the table in messages: "boot", "boot: apps[2]".
    OptionReader(const Value &table, std::string where, const std::vector<Described> &options);

    std::optional<bool> boolean(const char *name);
    std::optional<int64_t> integer(const char *name);
    std::optional<std::string> string(const char *name);
    // A list; an empty table is one.
    std::optional<Array> list(const char *name);
    std::optional<std::vector<std::string>> strings(const char *name);
    // A table with names; an empty one is one.
    std::optional<Object> table(const char *name);
    // For eachField(): an absent option leaves the member as it is.
    template <typename Member>
    void operator()(const char *name, Member &member) {
        if (auto value = read(name, member)) member = std::move(*value);
    }
    // Of any kind; null when absent.
    const Value &any(const char *name);

    // To be called at the end: throws for an option that is unknown; std::logic_error for a row of the table
    // of options that nobody read.
    void finish() const;

    [[noreturn]] void fail(const std::string &what) const;

private:
    auto read(const char *name, const bool &) { return boolean(name); }
    auto read(const char *name, const std::optional<bool> &) { return boolean(name); }
    auto read(const char *name, const int64_t &) { return integer(name); }
    auto read(const char *name, const std::optional<int64_t> &) { return integer(name); }
    auto read(const char *name, const std::string &) { return string(name); }
    auto read(const char *name, const std::vector<std::string> &) { return strings(name); }
    [[noreturn]] void expected(const char *name, const char *wanted) const;

    Object options_;
    std::string where_;
    std::vector<std::string> known_;
    std::set<std::string> read_;
};

} // namespace sim
