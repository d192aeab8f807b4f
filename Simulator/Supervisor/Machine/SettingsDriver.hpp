// Drives the Settings application: finds rows and buttons by what is written on them and touches them,
// scrolling to what is off screen.
#pragma once

#include "Finger.hpp"

#include <string>
#include <vector>

namespace sim {

// Throws RequestError, with what there is instead, when there is no such row, button or key.
class SettingsDriver {
public:
    SettingsDriver(SimulatedScreen &settings, Finger &finger) : settings_(settings), finger_(finger) {}

    // A row that leads to another page.
    void open(const std::string &label);
    // The switch of a row.
    void toggle(const std::string &label);
    // A segment of the row, or a choice of the list that the row leads to (which is opened unless it is there
    // already, and stays open).
    void choose(const std::string &label, const std::string &title);
    // A button of an alert, of a bar, or a button row.
    void press(const std::string &title);
    void back();

    // With the keys that the keyboard has, the rest as from a hardware keyboard.
    void type(const std::string &text);
    void erase(int64_t count);

    // Whether a finger reaches a row where it is, without scrolling; `place` is an answer to "place_row".
    static bool isInReach(const Value &place);

    // The finger goes that way over the middle of the cards.
    void swipe(bool left);

private:
    void rest();
    Value find(const std::string &label, const std::vector<std::string> &kinds, Object more);
    // Brings the row on screen; returns where it is then.
    Value bringOnScreen(const std::string &label, const std::vector<std::string> &kinds, const Object &more);
    void tapAt(const Value &place);
    bool tapKey(const std::string &text);

    SimulatedScreen &settings_;
    Finger &finger_;
};

} // namespace sim
