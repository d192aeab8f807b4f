// What somebody knows of the panel's lock who does things to the phone, sees what it shows and can read the
// settings file: whether the lock is armed, what has been entered, and whether the panel may show its list.
// It is never certain of what it has not seen.
#pragma once

#include "Deeds.hpp"
#include "PanelSight.hpp"

#include <map>
#include <optional>
#include <set>
#include <string>

namespace sim {

struct Moment;

enum class Sure { no, maybe, yes };

// What a finger on the screen may be for.
struct Touched {
    enum class What { nothing, digit, button, anything };
    What what = What::nothing;
    char digit = 0;
    bool certain = false; // it counts for sure, otherwise perhaps
};

class LockModel {
public:
    // Takes in what was done since the last look, and what came of it.
    void follow(const Moment &moment);

    // Whether the panel that stands, or the one that is closing, must not show its list.
    Sure guarded() const { return guarded_; }

private:
    struct Step; // one look
    void arm(const Moment &moment);
    void doubt(const Moment &moment);
    void openPanel(const Moment &moment);
    void enter(const Step &step);
    void touch(const Touched &touched, int64_t at);
    void sense(const Step &step, bool first);
    void compare(const Step &step, int64_t now);
    void goDark(const Moment &moment);
    void forget();
    void pass();

    Sure armed_ = Sure::no;
    Sure guarded_ = Sure::no;
    // What the dots may hold, '?' for any digit; with four it is about to be compared.
    std::set<std::string> entered_{""};
    std::optional<int64_t> comparing_;   // since when there may be four
    bool steady_ = false;                // since then nothing but the right code, in the same file
    std::map<int64_t, Touched> fingers_; // those that are down
};

} // namespace sim
