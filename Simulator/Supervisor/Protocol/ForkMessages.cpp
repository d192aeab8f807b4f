#include "ForkMessages.hpp"

#include "Descriptors.hpp"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace sim {

namespace {

using Descriptors = std::array<int, 5>;

// Room for the descriptors that travel beside a packet.
struct Attachment {
    alignas(cmsghdr) char bytes[CMSG_SPACE(sizeof(Descriptors))] = {};
};

// The order has nothing to say besides, but a packet without a byte would be the end.
struct Envelope {
    char byte = 0;
    iovec part{&byte, 1};
    Attachment attachment;
    msghdr header{};

    Envelope() {
        header.msg_iov = &part;
        header.msg_iovlen = 1;
        header.msg_control = attachment.bytes;
        header.msg_controllen = sizeof attachment.bytes;
    }
};

template <typename Call>
ssize_t uninterrupted(Call call) {
    ssize_t result;
    do result = call();
    while (result < 0 && errno == EINTR);
    return result;
}

int movedUp(int descriptor) {
    int result = fcntl(descriptor, F_DUPFD_CLOEXEC, kFirstFreeDescriptor);
    ::close(descriptor);
    return result;
}

} // namespace

bool sendOrder(int socket, const ProcessFiles &files) {
    Envelope envelope;
    Descriptors descriptors = {files.channel, files.crash, files.picture, files.time, files.output};
    cmsghdr *attached = CMSG_FIRSTHDR(&envelope.header);
    attached->cmsg_level = SOL_SOCKET;
    attached->cmsg_type = SCM_RIGHTS;
    attached->cmsg_len = CMSG_LEN(sizeof descriptors);
    std::memcpy(CMSG_DATA(attached), descriptors.data(), sizeof descriptors);
    return uninterrupted([&] { return sendmsg(socket, &envelope.header, MSG_NOSIGNAL); }) == 1;
}

std::optional<ProcessFiles> receiveOrder(int socket) {
    Envelope envelope;
    if (uninterrupted([&] { return recvmsg(socket, &envelope.header, MSG_CMSG_CLOEXEC); }) != 1) return {};
    const cmsghdr *attached = CMSG_FIRSTHDR(&envelope.header);
    Descriptors descriptors;
    if (!attached || attached->cmsg_len != CMSG_LEN(sizeof descriptors)) return {};
    std::memcpy(descriptors.data(), CMSG_DATA(attached), sizeof descriptors);
    for (int &descriptor : descriptors) descriptor = movedUp(descriptor);
    auto [channel, crash, picture, time, output] = descriptors;
    return ProcessFiles{channel, crash, picture, time, output};
}

bool sendReport(int socket, const ForkReport &report) {
    return uninterrupted([&] { return send(socket, &report, sizeof report, MSG_NOSIGNAL); }) == sizeof report;
}

std::optional<ForkReport> receiveReport(int socket) {
    ForkReport report;
    if (uninterrupted([&] { return recv(socket, &report, sizeof report, 0); }) != sizeof report) return {};
    return report;
}

} // namespace sim
