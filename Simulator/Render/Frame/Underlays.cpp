#include "Underlays.hpp"

#include <algorithm>

namespace render {

namespace {

// For each tile: below what changes now, below what changed before it, and below a backdrop.
constexpr size_t kMost = 3;

// The new index of each item of the frame before; -1: it is gone.
std::vector<int> newIndexes(const Items &before, const Items &now) {
    std::vector<int> result(before.size(), -1);
    for (size_t i = 0; i < now.size(); i++)
        if (now[i].before >= 0) result[now[i].before] = static_cast<int>(i);
    return result;
}

} // namespace

void Underlays::drop(const PixelRect &area, int index) {
    grid_.forEach(area, [&](int tile) {
        std::erase_if(kept_[tile], [index](const Underlay &each) { return each.limit > index; });
    });
}

void Underlays::renumber(const Items &before, const Items &now) {
    frame_++;
    std::vector<int> indexes = newIndexes(before, now);
    for (auto &kept : kept_) {
        for (Underlay &each : kept) each.limit = indexes[each.limit];
        std::erase_if(kept, [](const Underlay &each) { return each.limit < 0; });
    }
}

const Underlays::Underlay *Underlays::find(int tile, int limit) {
    Underlay *best = nullptr;
    for (Underlay &each : kept_[tile])
        if (each.limit <= limit && (!best || each.limit > best->limit)) best = &each;
    if (best) best->used = frame_;
    return best;
}

const Bitmap &Underlays::keep(int tile, int limit, Bitmap picture) {
    auto &kept = kept_[tile];
    // Of those that served last in the same frame the highest goes: those below it serve more often.
    if (kept.size() == kMost)
        kept.erase(std::min_element(kept.begin(), kept.end(), [](const Underlay &one, const Underlay &other) {
            return one.used != other.used ? one.used < other.used : one.limit > other.limit;
        }));
    kept.push_back({limit, std::move(picture), frame_});
    return kept.back().picture;
}

} // namespace render
