// What a script did, step by step, for a page that shows it: of each step a picture, the views and the
// events.
#pragma once

#include "Supervisor/Machine/SimulatedScreen.hpp"
#include "TracePictures.hpp"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace sim {

// A line of a script.
struct TracePlace {
    std::string file;
    int line = 0;
};

// What a call may change of a device: time, what its process was told to do, its starts, the settings file.
struct TraceMoment {
    explicit TraceMoment(const SimulatedScreen &screen);
    bool operator==(const TraceMoment &) const = default;

    int64_t now;
    uint64_t acts;
    unsigned generation;
    std::string settings;
};

class Trace {
public:
    explicit Trace(std::filesystem::path script) : script_(std::move(script)) {}

    // A call that began at `before` has ended. `places` are where it stands and what called that; `serial`
    // tells screens apart. Notes what there is of a device that cannot be asked any more.
    void addStep(SimulatedScreen &screen, uint64_t serial, const std::string &call,
                 const std::vector<TracePlace> &places, const TraceMoment &before);
    // "file:line: what failed" is a step on what the last one left.
    void addFailure(const std::string &text);
    // What follows belongs to that test; empty: to none.
    void setTest(const std::string &name) { test_ = name; }

    // All of it as JSON that can stand in HTML. It has the members
    //   script   the path
    //   sources  [{file, text}] of the scripts that ran
    //   screens  [what each is called]
    //   lines    [a view, indented by its depth, a tab, and its place on the screen: x y w h]
    //   trees    [[place in `lines`]]
    //   pictures see TracePictures
    //   steps    [{call, failure, places: [[place in `sources`, line]], screen, from, to (seconds), picture,
    //            tree, events: [[seconds, kind, text]], test}]; screen, picture and tree are places or null
    std::string json() const;

private:
    struct Screen {
        size_t place;
        size_t events = 0; // that were told
    };
    Screen &screenOf(SimulatedScreen &screen, uint64_t serial);
    Value picture(SimulatedScreen &screen);
    Value tree(SimulatedScreen &screen);
    Value places(const std::vector<TracePlace> &places);
    size_t line(const std::string &text);

    std::filesystem::path script_;
    std::string test_;
    std::map<uint64_t, Screen> known_;
    Array screens_, steps_, trees_, lines_, sources_;
    std::map<std::string, size_t> lineNumbers_, sourceNumbers_;
    std::map<std::vector<size_t>, size_t> treeNumbers_;
    TracePictures pictures_;
};

} // namespace sim
