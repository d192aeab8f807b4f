#include "Channel.hpp"

#include "Runtime/Values/Packed.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace sim {

namespace {

using Length = uint32_t;

} // namespace

void Channel::send(const Value &message) {
    outgoing_.assign(sizeof(Length), '\0');
    packPlain(message, outgoing_);
    const auto length = static_cast<Length>(outgoing_.size() - sizeof(Length));
    std::memcpy(outgoing_.data(), &length, sizeof length);
    for (std::string_view rest = outgoing_; !rest.empty();) {
        // An end that is gone would otherwise end this process as well.
        ssize_t sent = ::send(descriptor_, rest.data(), rest.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent < 0) return;
        rest.remove_prefix(static_cast<size_t>(sent));
    }
}

// What has come and was not taken yet.
std::string_view Channel::waiting() const {
    return std::string_view(incoming_).substr(begin_, end_ - begin_);
}

// Waits until at least so much has come. False when the other end is gone.
bool Channel::fill(size_t wanted) {
    constexpr size_t kRoom = 65536;
    if (waiting().size() >= wanted) return true;
    incoming_.erase(0, begin_);
    end_ -= begin_;
    begin_ = 0;
    if (incoming_.size() < std::max(wanted, kRoom)) incoming_.resize(std::max(wanted, kRoom));
    while (end_ < wanted) {
        ssize_t count = recv(descriptor_, incoming_.data() + end_, incoming_.size() - end_, 0);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        end_ += static_cast<size_t>(count);
    }
    return true;
}

std::optional<Value> Channel::receive() {
    Length length;
    if (!fill(sizeof length)) return std::nullopt;
    std::memcpy(&length, waiting().data(), sizeof length);
    if (!fill(sizeof length + length)) return std::nullopt;
    std::string_view bytes = waiting().substr(sizeof length, length);
    begin_ += sizeof length + length;
    return unpack(bytes);
}

void Channel::close() {
    if (descriptor_ >= 0) ::close(descriptor_);
    descriptor_ = -1;
}

} // namespace sim
