#include "Extension.hpp"

#include <stdexcept>
#include <unistd.h>

namespace sim {

void becomeExtensionTool(std::vector<std::string> arguments) {
    std::string tool = CLONE "/scripts/extension";
    arguments.insert(arguments.begin(), tool);
    std::vector<char *> words;
    for (auto &argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    execv(tool.c_str(), words.data());
    throw std::runtime_error("cannot start " + tool);
}

} // namespace sim
