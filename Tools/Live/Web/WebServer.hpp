// Serves a page's files and one WebSocket, on this machine's own address and to this page only. Everything
// of the network runs in a thread of its own.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

// The server cannot start; the text says what to do.
struct ServerError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct PageFile {
    std::string type; // "text/html; charset=utf-8"
    std::string body;
};

class WebServer {
public:
    using Client = uint64_t;
    struct Message {
        enum class Kind { opened, text, closed } kind;
        Client client;
        std::string text;
    };
    using Time = std::chrono::steady_clock::time_point;

    // Files by path ("/", "/page.css"); the socket is at /device. Port 0 takes any that is free. Throws
    // ServerError.
    WebServer(uint16_t port, std::map<std::string, PageFile> files);
    ~WebServer();
    WebServer(const WebServer &) = delete;
    WebServer &operator=(const WebServer &) = delete;

    uint16_t port() const;

    // What has come in, in order. Waits for it until `until`; with `early` no longer than for the first
    // message. A client whose messages are not taken is not read from.
    std::vector<Message> receive(Time until, bool early);

    // To a client that is gone: nothing happens. One that does not read what it is sent is dropped.
    void sendText(Client client, std::string text);
    void sendBytes(Client client, std::string bytes);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace sim
