#include "ViewNames.hpp"

#include "LuaText.hpp"

#include <utility>
#include <vector>

namespace sim {

namespace {

constexpr int kDeepest = 2; // views by which one is found that has no mark of its own

using Criteria = std::vector<std::pair<const char *, std::string>>;

std::string table(const Criteria &criteria) {
    std::string text;
    for (const auto &[name, value] : criteria)
        text += (text.empty() ? " " : ", ") + std::string(name) + " = " + value;
    return "{" + text + " }";
}

bool isWritten(const Value &view, const char *field) {
    return view.has(field) && view[field].isString() && !view[field].string().empty();
}

// What there is to say of a view by itself, the most telling first.
std::vector<Criteria> marksOf(const Value &view) {
    std::vector<Criteria> marks;
    std::string kind = luaText(view["class"]);
    for (const char *field : {"name", "text"})
        if (isWritten(view, field)) marks.push_back({{field, luaText(view[field])}});
    if (view["tag"].integer() != 0) {
        marks.push_back({{"tag", luaText(view["tag"])}});
        marks.push_back({{"class", kind}, {"tag", luaText(view["tag"])}});
    }
    marks.push_back({{"class", kind}});
    return marks;
}

class Search {
public:
    Search(LivePhone &phone, const Value &answer, std::string_view object)
        : phone_(phone), line_(answer["line"].array()), object_(object) {
        if (object == "phone") window_ = {{"window", luaText(answer["window"])}};
    }

    std::string find(size_t place, int depth) {
        for (const auto &mark : marksOf(line_[place]))
            for (bool visible : {false, true})
                if (auto found = attempt(place, window_, mark, visible); !found.empty()) return found;
        if (depth == kDeepest) return "";
        for (size_t outer = place + 1; outer < line_.size(); ++outer) {
            std::string holder = find(outer, depth + 1);
            if (holder.empty()) continue;
            const char *how = outer == place + 1 ? "parent" : "inside";
            for (const auto &mark : marksOf(line_[place]))
                if (auto found = attempt(place, {{how, holder}}, mark, false); !found.empty()) return found;
            return "";
        }
        return "";
    }

private:
    // The query of both parts, if it gives that view alone.
    std::string attempt(size_t place, const Criteria &where, const Criteria &mark, bool visible) {
        Criteria all = where;
        all.insert(all.end(), mark.begin(), mark.end());
        if (visible) all.emplace_back("visible", "true");
        std::string query = table(all), found = object_ + ":find" + query;
        if (phone_.number("#" + object_ + ":all" + query) != 1) return "";
        auto sight = phone_.look(found);
        return sight && sight->number == line_[place]["number"].integer() ? found : "";
    }

    LivePhone &phone_;
    const Array &line_;
    std::string object_;
    Criteria window_;
};

} // namespace

std::string queryFor(LivePhone &phone, const Value &answer, size_t place, std::string_view object) {
    return Search(phone, answer, object).find(place, 0);
}

} // namespace sim
