#include "Mistakes.hpp"

#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>

namespace sim {

std::string unknownCommand(const std::string &word, const std::vector<std::string> &commands) {
    if (word.ends_with(".lua"))
        return "'" + word + "' is no command; did you mean 'pendix-sim run " + word + "'?";
    return "there is no command '" + word + "'" + suggestion(word, commands);
}

std::optional<std::string> unknownOption(const std::vector<std::string> &call,
                                         const std::vector<std::string> &options) {
    for (const auto &word : call) {
        std::string name = word.substr(0, word.find('='));
        if (name.starts_with("--") && !std::ranges::count(options, name)) return word;
    }
    return std::nullopt;
}

std::string unexpectedWords(const std::string &command, const std::vector<std::string> &words,
                            const std::vector<std::string> &options) {
    const std::string &first = words.front();
    if (!first.starts_with("-")) return "'" + command + "' does not expect the word '" + first + "'";
    std::string name = first.substr(0, first.find('='));
    if (std::ranges::count(options, name))
        return "'" + name + "' stands after '" + command + "', not before it";
    return "'" + command + "' has no option '" + name + "'" + suggestion(name, options);
}

} // namespace sim
