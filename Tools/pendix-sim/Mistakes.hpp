// What is said of a call that is none.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace sim {

// `word` stands where a command should.
std::string unknownCommand(const std::string &word, const std::vector<std::string> &commands);
// The first word of the call that looks like an option and is none of them.
std::optional<std::string> unknownOption(const std::vector<std::string> &call,
                                         const std::vector<std::string> &options);
// `words` are left over; `options` are the command's, with their dashes.
std::string unexpectedWords(const std::string &command, const std::vector<std::string> &words,
                            const std::vector<std::string> &options);

} // namespace sim
