// A device that people use through a page: takes what pages send, lets time pass, and sends what has changed.
#pragma once

#include "Fingers.hpp"
#include "LiveClock.hpp"
#include "Viewers.hpp"

#include <filesystem>
#include <optional>

namespace sim {

struct LiveOptions {
    uint16_t port = 7070;         // 0: any that is free
    Value boot;                   // the table of `boot`
    double speed = 1;             // of the clock at the start: 1 is real time, 0 stands still
    std::filesystem::path script; // where to write at the end what was done; empty: nowhere
    std::optional<bool> pack;     // whether frames are packed; without it as the line of each page asks for
    bool tour = false;            // boot: what shows the extension, with badges and a word what to do
};

class LiveSession {
public:
    // Boots and starts serving. Throws BootError or ServerError.
    LiveSession(DeviceSetup setup, LiveOptions options);

    // "http://127.0.0.1:7070/"
    std::string address() const;
    // Serves until the program is interrupted. Throws std::runtime_error when the script cannot be written.
    void run();

private:
    using Time = std::chrono::steady_clock::time_point;
    using Client = WebServer::Client;
    struct Command;

    static const Command *findCommand(const std::string &name);
    void take(const WebServer::Message &message);
    void obey(Client client, const std::string &text);
    void touchDown(Client client, const Value &message);
    void touchMove(Client client, const Value &message);
    void touchUp(Client client, const Value &message);
    void call(Client client, const Value &message);
    void show(Client client, const Value &message);
    void boot(Client client, const Value &message);
    void setClock(Client client, const Value &message);
    void step(Client client, const Value &message);
    void replay(Client client, const Value &message);
    void sendScript(Client client, const Value &message);
    void acknowledge(Client client, const Value &message);
    void watch(Client client, const Value &message);
    void pick(Client client, const Value &message);

    void stayInTouch(Client client, const Value &message);

    void bootDevice();
    std::string greeting() const;
    Value clockMessage();
    void passTime();
    bool waitsForLift();
    void advance(int64_t frames);
    void look();
    void tellTime(bool thorough);
    bool isBusy() const;
    void waitForTick();
    void writeScript();

    DeviceSetup setup_;
    LiveOptions options_;
    LiveDevice device_;
    WebServer server_;
    Viewers viewers_;
    Fingers fingers_;
    LiveClock clock_;
    Time tick_, passed_, looked_;
    std::optional<Time> ripe_; // since when a touch is as long as a tap
    int64_t told_ = -1;        // the time that the pages know
    bool hurry_ = false;       // a replay runs as fast as it can
};

} // namespace sim
