// The pages that look at the device, and what each of them has been told.
#pragma once

#include "FrameParts.hpp"
#include "LiveDevice.hpp"
#include "Packing.hpp"
#include "Tools/Live/Web/WebServer.hpp"

#include <map>

namespace sim {

class Viewers {
public:
    // `pack`: whether frames are packed; without it that is decided for each page.
    Viewers(WebServer &server, LiveDevice &device, std::optional<bool> pack)
        : server_(server), device_(device), pack_(pack) {}

    bool empty() const { return viewers_.empty(); }
    // `welcome` is sent first.
    void add(WebServer::Client client, const Value &welcome);
    void remove(WebServer::Client client) { viewers_.erase(client); }
    // The page has drawn the frame of that number.
    void acknowledge(WebServer::Client client, int64_t frame);
    // Whether the page shows views and counters, and so wants to be told of them.
    void watch(WebServer::Client client, bool views, bool counters);

    // To one page, or to all of them.
    void tell(WebServer::Client client, const Value &message);
    void tellAll(const Value &message);

    // Brings all up to date: frames, events, settings, script. Looks at views and counters when `thorough`.
    void update(bool thorough);

private:
    struct Viewer {
        UnseenParts unseen;
        uint32_t sent = 0, seen = 0; // numbers of frames
        Packing packing;
        bool views = false, counters = false;
    };
    void tellDevice();
    void tellEvents();
    void tellSettings();
    void tellScript();
    void tellWatched();
    // Sends only what differs from what was told before.
    void tellNews(std::string &before, const Value &message, bool Viewer::*wanted);
    void showScreen();
    void sendFrames();
    void sendFrame(WebServer::Client client, Viewer &viewer);

    WebServer &server_;
    LiveDevice &device_;
    std::optional<bool> pack_;
    std::map<WebServer::Client, Viewer> viewers_;
    render::Bitmap screen_;
    bool ofSettings_ = false; // what screen_ shows
    // What the pages know of the device.
    struct Known {
        unsigned boots = 0, generation = 0;
        bool running = false;
        int64_t turned = 1;
        int interface = 1;
        bool settings = false;
        bool operator==(const Known &) const = default;
    };
    Known known() const;
    Known known_;
    size_t events_ = 0;
    std::string settings_, views_, counters_, state_; // as told last
    std::string settingsState_;
};

} // namespace sim
