// The extension's settings file, as other processes of the device write and read it.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <filesystem>
#include <optional>
#include <string>

namespace sim {

class SettingsFile {
public:
    explicit SettingsFile(std::filesystem::path path) : path_(std::move(path)) {}

    // The dictionary in any of the property list's forms; nothing when the file is absent or holds none. In
    // the latter case `*problem` says why, otherwise it is empty.
    std::optional<Value> read(std::string *problem) const;
    // A stamp that differs once the file was written, replaced or removed; cheap.
    std::string state() const;
    // Replaces the file atomically, as XML. Throws std::runtime_error and leaves the old file.
    void write(const Value &settings) const;
    // The bytes as they are.
    void writeText(const std::string &text) const;
    // Sets the named values and removes those that are null; a file that cannot be read is taken as empty.
    void change(const Object &values) const;
    void remove() const;

private:
    std::filesystem::path path_;
};

} // namespace sim
