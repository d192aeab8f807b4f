// Reads and validates a table of options: unknown names and values of the wrong type are refused.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

// A device that cannot be booted as asked; the text says what to change.
struct BootError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Every accessor marks its option as known and returns nothing when it is absent. Throws BootError.
class OptionReader {
public:
    // `where` names the table in messages: "boot", "boot: apps[2]".
    OptionReader(const Value &table, std::string where);

    std::optional<bool> boolean(const char *name);
    std::optional<int64_t> integer(const char *name);
    std::optional<std::string> string(const char *name);
    // A list; an empty table is one.
    std::optional<Array> list(const char *name);
    std::optional<std::vector<std::string>> strings(const char *name);
    // A table with names; an empty one is one.
    std::optional<Object> table(const char *name);
    // Of any kind; null when absent.
    const Value &any(const char *name);

    // To be called at the end: throws for an option that nobody asked for.
    void finish() const;

    [[noreturn]] void fail(const std::string &what) const;

private:
    [[noreturn]] void expected(const char *name, const char *wanted) const;

    Object options_;
    std::string where_;
    std::vector<std::string> known_;
};

} // namespace sim
