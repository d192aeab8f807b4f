// "Did you mean …": the nearest of the words that would have been right.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sim {

// The edit distance with swaps of neighbours (optimal string alignment), ignoring case.
size_t editDistance(std::string_view a, std::string_view b);

// The known word nearest to `word`; empty when none is near enough to be meant.
std::string nearest(std::string_view word, const std::vector<std::string> &known);

// "; did you mean 'WORD'?", or nothing.
std::string suggestion(std::string_view word, const std::vector<std::string> &known);

// "a, b and c"
std::string listed(const std::vector<std::string> &words);

} // namespace sim
