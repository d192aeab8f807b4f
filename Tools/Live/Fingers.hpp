// The pointers of all pages as fingers on one screen.
#pragma once

#include "LiveDevice.hpp"

#include <map>
#include <vector>

namespace sim {

// A pointer is known by the page that it belongs to and a number of that page's.
struct Pointer {
    uint64_t page = 0;
    int64_t number = 0;
    auto operator<=>(const Pointer &) const = default;
};

// Calls throw CallError when the device refuses. Moves and lifts of pointers that are not down are ignored.
class Fingers {
public:
    explicit Fingers(LiveDevice &device) : device_(device) {}

    // Points of the screen as seen upright. A pointer that is down already is lifted first; an eleventh
    // finger is refused.
    void down(Pointer pointer, double x, double y);
    // Takes effect at commit() or follow(), for a frame shows one place only. A finger that hardly moves
    // keeps still.
    void move(Pointer pointer, double x, double y);
    // A touch lasts: one that keeps still takes at least as long as a tap, and ends at a later commit().
    void up(Pointer pointer);
    void liftAll(uint64_t page);
    void liftAll();
    // Moves fingers to where they were last said to be, and lifts those that are due.
    void commit();
    // The same between two frames, for places that come unevenly: of two that came for one frame the later
    // waits for the next, which may bring none. So a finger that goes on moves in each frame, at most one
    // place behind.
    void follow();
    // Whether the only finger becomes a tap if it is let go now, and a longer touch if time goes on.
    bool mayBeTap() const;
    // So many frames of those may pass that no touch which may be a tap grows longer unseen.
    int64_t atMost(int64_t frames) const;
    // Forgets them: the device that they were on is gone.
    void clear() { down_.clear(); }

private:
    struct Place {
        double x, y;
    };
    struct Finger {
        int64_t number;        // from 1
        double x, y;           // of the pointer
        double shiftX, shiftY; // from there to where the finger is
        int64_t began;         // virtual time
        bool still = true, lifting = false;
        // Of the pointer, and not yet the finger's; the last one is the newest.
        std::vector<Place> waiting = {};
    };
    bool mayLift(const Finger &finger) const;
    void lift(Pointer pointer);
    void liftDue();
    void commit(Finger &finger);
    void put(const Finger &finger, Place place);

    LiveDevice &device_;
    std::map<Pointer, Finger> down_;
};

} // namespace sim
