// What was done to a device since its boot, as a script that does the same again.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace sim {

class Journal {
public:
    // One call, at a virtual time in nanoseconds since the boot.
    struct Step {
        int64_t time;
        std::string call; // as a script writes it
    };

    // `options` is the table that the device was booted with. Throws ValueError as luaText does.
    explicit Journal(Value options);

    const Value &options() const { return options_; }
    const std::vector<Step> &steps() const { return steps_; }

    // Times must not decrease. Once the journal is full it says so in the script and takes no more.
    void add(int64_t time, std::string call);
    // The same for fingers, which are numbered from 1, on the screen of "phone" or "pane"; a touch that keeps
    // still with nothing else going on becomes one call. `target` is what the touch is given, as a script
    // writes it; `tap` the call that reads better for a tap there, if there is one.
    void addDown(int64_t time, const std::string &target, int64_t finger, std::string_view screen = "phone",
                 const std::string &tap = "");
    void addMove(int64_t time, double x, double y, int64_t finger, std::string_view screen = "phone");
    void addUp(int64_t time, int64_t finger, std::string_view screen = "phone");

    // What the script begins with once the device is booted.
    void setPrelude(const std::vector<std::string> &lines);

    // The script as it is so far, without the last step's line break.
    const std::vector<std::string> &lines() const { return lines_; }
    // The first line that is new or has changed since the last call of this.
    size_t takeChange();
    // A whole script that ends at the given time.
    std::string script(int64_t end) const;

private:
    struct Touch {
        int64_t finger = 0; // 0: none
        int64_t start = 0;
        size_t steps = 0, lines = 0; // how many there were before it
        std::string target, tap;
    };
    void write(std::string line);

    Value options_;
    std::vector<Step> steps_;
    std::vector<std::string> lines_;
    Touch touch_; // a touch that began with the last step
    int64_t written_ = 0;
    size_t changed_ = 0;
    size_t prelude_ = 0; // lines
    bool full_ = false;
};

// "OBJECT:NAME(TARGET, MORE)"; a table alone needs no brackets.
std::string touchCall(std::string_view screen, const char *name, const std::string &target,
                      const std::string &more = "");

// How long a tap takes, in nanoseconds.
constexpr int64_t kTapDuration = 100'000'000;

// "0.25": a time in nanoseconds as the seconds that give it again.
std::string secondsText(int64_t nanoseconds);

} // namespace sim
