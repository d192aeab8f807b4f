#include "DeviceReport.hpp"

#include "ViewDump.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr size_t kLastEvents = 20;
constexpr size_t kMostLines = 50;

// One that lets every touch through is kept for later.
bool isInFront(const Value &windows) {
    const auto &views = windows["views"].array();
    return std::ranges::any_of(windows["matches"].array(), [&](const Value &number) {
        auto view = std::ranges::find_if(
            views, [&](const Value &candidate) { return candidate["number"] == number; });
        return view != views.end() && !(*view)["hidden"].boolean() && (*view)["interactive"].boolean();
    });
}

std::string tree(const Value &windows, const std::string &window) {
    std::string title = window + ":\n", tree = viewDump(windows);
    size_t end = 0, lines = 0;
    for (; end < tree.size() && lines < kMostLines; ++lines) end = tree.find('\n', end) + 1;
    auto left = std::count(tree.begin() + static_cast<std::ptrdiff_t>(end), tree.end(), '\n');
    if (left == 0) return title + tree;
    return title + tree.substr(0, end) + "  … and " + std::to_string(left) + " lines more: :dump(\"" +
           window + "\")\n";
}

// The window that a person would look at: what lies above the rest, else the home screen and its status bar.
std::string frontTree(SimulatedScreen &screen) {
    for (const char *window : {"overlay", "alert", "lock", "app"}) {
        Value answer = screen.ask("windows", {{"window", window}});
        if (isInFront(answer)) return tree(answer, window);
    }
    std::string trees;
    for (const char *window : {"statusbar", "home"})
        trees += tree(screen.ask("windows", {{"window", window}}), window);
    return trees;
}

} // namespace

std::string deviceReport(SimulatedScreen &screen) {
    std::string report = "  on " + screen.description() + "\n";
    try {
        report += frontTree(screen);
    } catch (const std::runtime_error &error) {
        report += std::string("no view to show: ") + error.what() + "\n";
    }
    return report + "last events, hooked calls left out:\n" + screen.events().tail(kLastEvents);
}

} // namespace sim
