// A home screen at one moment, as far as the rules need it.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace sim {

struct Area {
    double x = 0, y = 0, w = 0, h = 0;
    bool operator==(const Area &) const = default;
};

class RowReader;
// x, y, width, height. Throws as RowReader does.
Area readArea(RowReader &row);

// A view of an overlay window. Areas are in points.
struct SeenView {
    int64_t depth = 0; // 0: the window itself
    std::string type;  // its class
    int64_t tag = 0;
    bool seen = false;   // a part of it is on the screen
    bool finite = false; // its geometry is made of numbers
    bool interactive = false;
    Area onScreen; // what it shows at this moment, upright
    Area frame;    // model
    std::string name, text, image;
    int64_t recognizers = 0;
    bool moving = false; // an animation of its own is under way
    // How it is drawn at this moment. Colours are "#rrggbbaa", empty for none.
    double alpha = 1;
    std::string background;
    double radius = 0, border = 0;
    std::string ink; // of its text, else its tint
    double font = 0; // points; 0 for what shows no text
    bool picture = false;
    double scrolled = 0, contentWidth = 0; // of what scrolls
};

struct SeenWindow {
    bool interactive = false, hidden = false;
    int64_t touchable = 0;       // of nine points over the screen, those whose touches it takes
    std::vector<SeenView> views; // depth first

    // Places in `views` of the direct subviews of one.
    std::vector<size_t> childrenOf(size_t parent) const;
    // The first of them with that tag, or npos.
    size_t child(size_t parent, int64_t tag) const;
    // The place after the last view that lies below this one.
    size_t endOf(size_t view) const;
    static constexpr size_t npos = static_cast<size_t>(-1);
};

struct SeenTimer {
    std::string target, selector;
    double interval = 0; // seconds; 0: fires once
    int64_t due = 0;     // nanoseconds
};

// Runs since the observation before; `state` has a bit for each flag of kHookFlags.
struct SeenHook {
    std::string type, selector;
    int64_t state = 0, entered = 0, previous = 0;
};

// A view on an icon of the home screen.
struct SeenMark {
    std::string type;
    int64_t tag = 0;
    double alpha = 0; // 0 for what is hidden
    std::string tint;
};

struct SeenBadge {
    std::string application;
    int64_t value = 0;
    bool inFolder = false;
    std::vector<SeenMark> parts; // of its icon
    bool operator==(const SeenBadge &other) const {
        return application == other.application && value == other.value && inFolder == other.inFolder;
    }
};

// The indicator's own drawing.
struct SeenGlow {
    double alpha = 1, opacity = 0, radius = 0;
    std::string colour;
};

struct SeenApplication {
    std::string identifier, name;
    bool running = false;
    bool ownIcon = true; // false: shows the placeholder
};

// The extension's own variables.
struct ExtensionState {
    bool isShow = false, isEditing = false, locked = false, needToPulse = false;
    std::vector<std::string> datas;
};

struct Observation {
    std::vector<SeenWindow> overlays;
    std::map<std::string, int64_t> windows; // how many of each kind
    std::vector<SeenTimer> timers;
    std::vector<SeenHook> hooks;
    std::vector<SeenBadge> badges; // of the applications that have one
    ExtensionState extension;
    std::vector<SeenApplication> applications; // all that are installed
    std::vector<std::string> switcher;         // as the system's switcher lists them, the most recent first
    std::string foreground;                    // the application in front; empty on the home screen
    bool itemPresent = false, itemVisible = false;
    std::string itemImage;
    std::optional<Area> itemPlace; // of the indicator's view, upright; nothing without one
    SeenGlow itemGlow;
    std::vector<std::string>
        spoken;                // what VoiceOver would read of the overlay while a face of the lock shows
    bool screenLocked = false; // the lock screen is up
    double iconWidth = 0, iconHeight = 0; // of the home screen's icons
    bool display = true, passcodeLocked = false;
    double screenWidth = 0, screenHeight = 0; // upright
    int64_t settingsWrites = 0;               // of the process since its start
};

// Reads the answers to "inspect" of one process, which leave out what did not change.
class ObservationReader {
public:
    // What to ask with.
    const Value &since() const { return since_; }
    // Throws ValueError.
    const Observation &read(const Value &answer);

private:
    void readOverlays(const Value &answer);

    Value since_;
    std::vector<SeenView> views_; // of all windows
    Observation last_;
};

// The arguments of the request "watch" that goes before the first "inspect" of a process. Hooks are counted
// apart by kHookEditing and kHookShown.
Object watchArguments();
constexpr int64_t kHookEditing = 1, kHookShown = 2;

} // namespace sim
