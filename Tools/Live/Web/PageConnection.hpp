// One client's socket. Its methods run in the network's thread.
#pragma once

#include "Inbox.hpp"

#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>

#include <chrono>
#include <deque>
#include <functional>

namespace sim {

// How long is waited for a request, and for a sign of life.
constexpr auto kPatience = std::chrono::seconds(30);

class PageConnection : public std::enable_shared_from_this<PageConnection> {
public:
    using Request = boost::beast::http::request<boost::beast::http::string_body>;
    struct Outgoing {
        bool text;
        std::string bytes;
    };

    PageConnection(boost::beast::tcp_stream stream, WebServer::Client client, Inbox &inbox)
        : socket_(std::move(stream)), client_(client), inbox_(inbox) {}

    // Answers the request for a WebSocket and reads from it until the end, which `onEnd` is told.
    void accept(const Request &request, std::function<void()> onEnd);
    // One that lets too much wait for it is dropped.
    void send(Outgoing outgoing);
    // Reads on, once the inbox has room again.
    void resume();

private:
    void read();
    void take();
    void write();
    // At once, without a word: the client takes none.
    void drop();
    void end();

    boost::beast::websocket::stream<boost::beast::tcp_stream> socket_;
    WebServer::Client client_;
    Inbox &inbox_;
    std::function<void()> onEnd_;
    boost::beast::flat_buffer buffer_;
    std::deque<Outgoing> queue_;
    size_t waiting_ = 0; // bytes in the queue
    bool open_ = false, closing_ = false, paused_ = false;
};

} // namespace sim
