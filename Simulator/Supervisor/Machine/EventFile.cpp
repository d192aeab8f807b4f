#include "EventFile.hpp"

#include "Runtime/Values/Packed.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace sim {

namespace {

// A file that nobody else can see; -1 when there can be none.
int openUnnamed() {
    std::error_code error;
    std::string folder = std::filesystem::temp_directory_path(error).string();
    if (error) return -1;
    std::string name = folder + "/pendix-sim-events-XXXXXX";
    int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor >= 0) unlink(name.c_str());
    return descriptor;
}

// Moves all the bytes, or fails.
bool transfer(auto *bytes, size_t size, size_t begin, auto &&move) {
    for (size_t done = 0; done < size;) {
        ssize_t count = move(bytes + done, size - done, static_cast<off_t>(begin + done));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        done += static_cast<size_t>(count);
    }
    return true;
}

constexpr size_t kMostBits = 64;

} // namespace

EventFile::~EventFile() {
    if (descriptor_ >= 0) close(descriptor_);
}

// Of a kind that is not known: none.
uint64_t EventFile::bit(const std::string &kind) const {
    auto place = static_cast<size_t>(std::ranges::find(kinds_, kind) - kinds_.begin());
    return place == kinds_.size() && place < kMostBits ? 0 : uint64_t{1} << std::min(place, kMostBits - 1);
}

uint64_t EventFile::newBit(const std::string &kind) {
    if (!bit(kind)) kinds_.push_back(kind);
    return bit(kind);
}

bool EventFile::append(std::span<const Value> events) {
    if (descriptor_ < 0) descriptor_ = openUnnamed();
    if (descriptor_ < 0) return false;
    Block block{.kinds = 0, .begin = end_, .length = 0, .count = events.size()};
    std::string bytes;
    for (const auto &event : events) {
        block.kinds |= newBit(event["kind"].string());
        pack(event, bytes);
    }
    block.length = bytes.size();
    auto write = [&](const char *from, size_t size, off_t at) { return pwrite(descriptor_, from, size, at); };
    if (!transfer(bytes.data(), bytes.size(), block.begin, write)) return false;
    blocks_.push_back(block);
    end_ += block.length;
    size_ += block.count;
    return true;
}

void EventFile::visit(size_t first, const std::string &kind, const Visitor &visitor) const {
    uint64_t wanted = kind.empty() ? ~uint64_t{0} : bit(kind);
    std::string bytes;
    size_t place = 0;
    auto read = [&](char *to, size_t size, off_t at) { return pread(descriptor_, to, size, at); };
    for (const auto &block : blocks_) {
        size_t begin = place;
        place += block.count;
        if (place <= first || !(block.kinds & wanted)) continue;
        bytes.resize(block.length);
        if (!transfer(bytes.data(), block.length, block.begin, read))
            throw std::runtime_error("old events cannot be read again");
        std::string_view rest = bytes;
        for (size_t at = begin; at < place; ++at) {
            Value event = unpack(rest);
            if (at >= first && (kind.empty() || event["kind"].string() == kind)) visitor(event);
        }
    }
}

} // namespace sim
