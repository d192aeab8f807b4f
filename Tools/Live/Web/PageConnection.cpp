#include "PageConnection.hpp"

#include <boost/asio/buffer.hpp>

namespace sim {

namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace websocket = beast::websocket;

constexpr size_t kLongestMessage = 64 << 10;  // bytes, from a client
constexpr size_t kLongestBacklog = 128 << 20; // bytes that wait for a client

} // namespace

void PageConnection::accept(const Request &request, std::function<void()> onEnd) {
    onEnd_ = std::move(onEnd);
    websocket::stream_base::timeout timeout{kPatience, kPatience, true};
    beast::get_lowest_layer(socket_).expires_never();
    socket_.set_option(timeout);
    socket_.read_message_max(kLongestMessage);
    socket_.auto_fragment(false);
    socket_.async_accept(request, [self = shared_from_this()](beast::error_code error) {
        if (error) return self->end();
        self->open_ = true;
        self->inbox_.add({WebServer::Message::Kind::opened, self->client_, ""});
        self->read();
    });
}

void PageConnection::send(Outgoing outgoing) {
    if (!open_ || closing_) return;
    waiting_ += outgoing.bytes.size();
    queue_.push_back(std::move(outgoing));
    if (waiting_ > kLongestBacklog) return drop();
    if (queue_.size() == 1) write();
}

void PageConnection::resume() {
    if (paused_ && !inbox_.isFull(client_)) {
        paused_ = false;
        read();
    }
}

void PageConnection::read() {
    socket_.async_read(buffer_, [self = shared_from_this()](beast::error_code error, size_t) {
        if (error) return self->end();
        self->take();
    });
}

void PageConnection::take() {
    if (socket_.got_text())
        inbox_.add({WebServer::Message::Kind::text, client_, beast::buffers_to_string(buffer_.data())});
    buffer_.consume(buffer_.size());
    paused_ = inbox_.isFull(client_);
    if (!paused_) read();
}

void PageConnection::write() {
    socket_.text(queue_.front().text);
    socket_.async_write(asio::buffer(queue_.front().bytes),
                        [self = shared_from_this()](beast::error_code error, size_t) {
                            if (error) return self->end();
                            self->waiting_ -= self->queue_.front().bytes.size();
                            self->queue_.pop_front();
                            if (!self->queue_.empty()) self->write();
                        });
}

void PageConnection::drop() {
    closing_ = true;
    beast::get_lowest_layer(socket_).cancel();
    beast::get_lowest_layer(socket_).close();
}

void PageConnection::end() {
    closing_ = true;
    if (std::exchange(open_, false)) inbox_.add({WebServer::Message::Kind::closed, client_, ""});
    if (auto tell = std::exchange(onEnd_, nullptr)) tell();
}

} // namespace sim
