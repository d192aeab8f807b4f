// What whoever drives a device knows and remembers while choosing what to do next.
#pragma once

#include "Random.hpp"
#include "Snapshot.hpp"
#include "Tools/Monkey/Rules/PaneSight.hpp"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace sim {

struct Hand {
    // `boot` is the table that the phone was booted with.
    // `pane` is the Settings application as the watcher saw it last; it stays the watcher's.
    Hand(Random &random, LivePhone &phone, const std::optional<PaneSight> &pane, const Value &boot);

    // Looks again. To be called before each choice.
    void refresh();
    // Remembers what a line did that the device took.
    void note(const std::string &line);

    Random &random;
    LivePhone &phone;
    const std::optional<PaneSight> &pane;
    std::vector<std::string> applications;
    Snapshot snapshot;
    double width = 0, height = 0; // of the screen as the device is held
    std::map<int, Place> fingers; // those that are down, and where
    // What follows on the line before, each by what is to be seen then; an empty line is left out.
    std::deque<std::function<std::string(Hand &)>> plan;
    bool dark = false, locked = false;
    bool enabled = true;       // the extension, as far as the settings file was written from here
    bool settingsOpen = false; // the Settings application

private:
    void turn(int orientation);

    unsigned generation_;
};

// A point anywhere on the screen, most often not at its very edge.
Place anywhere(Hand &hand);
// {x, y} as a script writes it.
std::string pointText(const Place &place);
// A number of points or seconds as a script writes it.
std::string numberText(double number);

} // namespace sim
