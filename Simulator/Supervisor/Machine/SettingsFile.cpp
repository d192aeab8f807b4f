#include "SettingsFile.hpp"

#include "Runtime/Values/PropertyList.hpp"
#include "Supervisor/Boot/Package.hpp"

#include <stdexcept>
#include <sys/stat.h>

namespace sim {

namespace fs = std::filesystem;

std::optional<Value> SettingsFile::read(std::string *problem) const {
    problem->clear();
    if (!fs::exists(path_)) return std::nullopt;
    auto content = parsePropertyList(readFile(path_), problem);
    if (content && !content->isObject()) {
        *problem = std::string("it holds no dictionary but a value of kind ") + content->kind();
        return std::nullopt;
    }
    return content;
}

std::string SettingsFile::state() const {
    struct stat status {};
    if (stat(path_.c_str(), &status) != 0) return "absent";
    return std::to_string(status.st_ino) + " " + std::to_string(status.st_size) + " " +
           std::to_string(status.st_mtim.tv_sec) + "." + std::to_string(status.st_mtim.tv_nsec);
}

void SettingsFile::write(const Value &settings) const { writeText(toXmlPropertyList(settings)); }

void SettingsFile::writeText(const std::string &text) const {
    fs::create_directories(path_.parent_path());
    if (!writeFileAtomically(path_, text)) throw std::runtime_error("cannot write " + path_.string());
}

void SettingsFile::change(const Object &values) const {
    std::string problem;
    Value settings = read(&problem).value_or(Object{});
    for (const auto &[key, value] : values) {
        if (value.isNull()) {
            settings.object().erase(key);
        } else {
            settings.set(key, value);
        }
    }
    write(settings);
}

void SettingsFile::remove() const { fs::remove(path_); }

} // namespace sim
