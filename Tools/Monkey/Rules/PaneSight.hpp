// The Settings application as somebody sees it who uses the extension's pages.
#pragma once

#include "Tools/Monkey/Observation.hpp"

#include <optional>
#include <string>
#include <vector>

namespace sim {

class SettingsProcess;

struct PaneRow {
    std::string label, kind, footer, icon;
    Value value; // a switch's state
    std::vector<std::string> choices;
};

struct PaneView {
    SeenView view;
    std::vector<size_t> children; // places in PaneSight::views
    double shadowRadius = 0, shadowOpacity = 0;
    std::string shadow; // its colour
};

// A sheet for a code.
struct PaneSheet {
    int64_t group = 0, dots = 0;
    std::string title, label;
    bool operator==(const PaneSheet &) const = default;
};

struct PaneSight {
    std::string type, title; // of the page in front
    std::vector<PaneRow> rows;
    std::optional<std::string> alert; // its title
    std::optional<PaneSheet> sheet;
    std::vector<PaneView> views; // of the application's window

    // The first view of that class; nullptr without one.
    const PaneView *find(std::string_view type) const;
    std::vector<const PaneView *> childrenOf(const PaneView &view) const;
    // The first among them with that tag.
    const PaneView *child(const PaneView &view, int64_t tag) const;
    const PaneRow *row(std::string_view label) const;
};

// Looks at one Settings application after the other.
class PaneReader {
public:
    // Nothing while no such application runs, and when it cannot answer. Throws ValueError.
    std::optional<PaneSight> look(SettingsProcess *settings);

private:
    void read(const Value &answer);

    Value since_;
    PaneSight last_;
};

} // namespace sim
