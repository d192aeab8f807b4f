#include "Channel.hpp"

#include "Runtime/Values/Json.hpp"

#include <cerrno>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace sim {

void Channel::send(const Value &message) {
    std::string line = toJson(message) + '\n';
    for (std::string_view rest = line; !rest.empty();) {
        // An end that is gone would otherwise end this process as well.
        ssize_t sent = ::send(descriptor_, rest.data(), rest.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent < 0) return;
        rest.remove_prefix(static_cast<size_t>(sent));
    }
}

std::optional<Value> Channel::receive() {
    for (;;) {
        if (size_t end = buffer_.find('\n', scanned_); end != std::string::npos) {
            Value message = parseJson(std::string_view(buffer_).substr(0, end));
            buffer_.erase(0, end + 1);
            scanned_ = 0;
            return message;
        }
        scanned_ = buffer_.size();
        char bytes[65536];
        ssize_t count = recv(descriptor_, bytes, sizeof bytes, 0);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return std::nullopt;
        buffer_.append(bytes, static_cast<size_t>(count));
    }
}

void Channel::close() {
    if (descriptor_ >= 0) ::close(descriptor_);
    descriptor_ = -1;
}

} // namespace sim
