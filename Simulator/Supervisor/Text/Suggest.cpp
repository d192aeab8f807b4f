#include "Suggest.hpp"

#include <algorithm>
#include <cctype>

namespace sim {

namespace {

bool sameLetter(char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

} // namespace

size_t editDistance(std::string_view a, std::string_view b) {
    std::vector<std::vector<size_t>> cost(a.size() + 1, std::vector<size_t>(b.size() + 1));
    for (size_t i = 0; i <= a.size(); ++i) {
        for (size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                cost[i][j] = i + j;
                continue;
            }
            bool same = sameLetter(a[i - 1], b[j - 1]);
            cost[i][j] =
                std::min({cost[i - 1][j] + 1, cost[i][j - 1] + 1, cost[i - 1][j - 1] + (same ? 0 : 1)});
            bool swapped = i > 1 && j > 1 && sameLetter(a[i - 1], b[j - 2]) && sameLetter(a[i - 2], b[j - 1]);
            if (swapped) cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
        }
    }
    return cost[a.size()][b.size()];
}

std::string nearest(std::string_view word, const std::vector<std::string> &known) {
    // A short word may be wrong in one letter, a long one in a third of them; the start of a word is enough
    // too.
    size_t limit = std::max<size_t>(1, word.size() / 3) + 1;
    std::string best;
    for (const auto &candidate : known) {
        size_t distance = editDistance(word, candidate);
        if (word.size() >= 3 && candidate.starts_with(word)) distance = std::min<size_t>(distance, 1);
        if (distance >= limit || distance >= candidate.size()) continue;
        limit = distance;
        best = candidate;
    }
    return best;
}

std::string listed(const std::vector<std::string> &words) {
    std::string result;
    for (size_t i = 0; i < words.size(); ++i)
        result += (i == 0 ? "" : i + 1 == words.size() ? " and " : ", ") + words[i];
    return result;
}

std::string suggestion(std::string_view word, const std::vector<std::string> &known) {
    std::string meant = nearest(word, known);
    return meant.empty() ? "" : "; did you mean '" + meant + "'?";
}

} // namespace sim
