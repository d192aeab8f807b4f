#include "Changes.hpp"

#include "NodeComparison.hpp"

#include <unordered_map>

namespace render {

namespace {

using Siblings = std::vector<int>; // indexes of items, in order

Siblings siblings(const Items &items, int first, int end) {
    Siblings result;
    for (int i = first; i < end; i = items[i].end) result.push_back(i);
    return result;
}

bool hasOutlineShadow(const Node &node) { return isVisible(node.shadow) && !node.shadow->path; }

// True when only what the item itself paints may differ, not how its subtree is shown.
bool sameSetting(const Item &one, const Item &other) {
    const Node &old = *one.node, &now = *other.node;
    return one.toDevice == other.toDevice && old.opacity == now.opacity && sameShape(old, now);
}

void handOn(const Item &before, Item &now) {
    const Node &old = *before.node, &node = *now.node;
    if (before.material && node.backdrop && before.material->style() == *node.backdrop)
        now.material = before.material;
    if (before.outlineShadow && hasOutlineShadow(node) && old.shadow->radius == node.shadow->radius &&
        linearPart(before.toDevice) == linearPart(now.toDevice) && sameLook(old, node))
        now.outlineShadow = before.outlineShadow;
}

class Comparison {
public:
    Comparison(const Items &before, Items &now) : before_(before), now_(now), stays_(before.size()) {}

    std::vector<Change> run() {
        compareAll(siblings(before_, 0, static_cast<int>(before_.size())),
                   siblings(now_, 0, static_cast<int>(now_.size())), false);
        return std::move(changes_);
    }

private:
    bool isSame(int old, int now) const { return before_[old].node->id == now_[now].node->id; }

    void pair(int old, int now) {
        now_[now].before = old;
        stays_[old] = true;
    }

    // Same beginnings and ends are paired one by one, between them those that kept their order.
    void pairSiblings(const Siblings &old, const Siblings &now) {
        size_t first = 0, oldEnd = old.size(), nowEnd = now.size();
        for (; first < oldEnd && first < nowEnd && isSame(old[first], now[first]); first++)
            pair(old[first], now[first]);
        for (; first < oldEnd && first < nowEnd && isSame(old[oldEnd - 1], now[nowEnd - 1]);
             oldEnd--, nowEnd--)
            pair(old[oldEnd - 1], now[nowEnd - 1]);
        std::unordered_map<uint64_t, size_t> places;
        for (size_t i = first; i < oldEnd; i++)
            if (before_[old[i]].node->id) places.emplace(before_[old[i]].node->id, i);
        size_t next = first;
        for (size_t i = first; i < nowEnd; i++) {
            auto found = places.find(now_[now[i]].node->id);
            if (found == places.end() || found->second < next) continue;
            pair(old[found->second], now[i]);
            next = found->second + 1;
        }
    }

    // `reported`: a change that covers all of these has been noted already.
    void compareAll(const Siblings &old, const Siblings &now, bool reported) {
        pairSiblings(old, now);
        for (int index : now) {
            const Item &item = now_[index];
            if (item.before < 0) {
                if (!reported) changes_.push_back({0, 0, index, item.end});
                continue;
            }
            compare(item.before, index, reported);
        }
        if (reported) return;
        for (int index : old)
            if (!stays_[index]) changes_.push_back({index, before_[index].end, 0, 0});
    }

    void compare(int oldIndex, int newIndex, bool reported) {
        const Item &old = before_[oldIndex];
        Item &item = now_[newIndex];
        handOn(old, item);
        bool outline = hasOutlineShadow(*old.node) || hasOutlineShadow(*item.node);
        bool surface = sameSurface(*old.node, *item.node) && old.node->shadow == item.node->shadow &&
                       (!outline || sameLook(*old.node, *item.node));
        if (!reported && !sameSetting(old, item)) {
            changes_.push_back({oldIndex, old.end, newIndex, item.end});
            reported = true;
        } else if (!reported && !surface) {
            changes_.push_back({oldIndex, oldIndex + 1, newIndex, newIndex + 1});
        }
        compareAll(siblings(before_, oldIndex + 1, old.end), siblings(now_, newIndex + 1, item.end),
                   reported);
    }

    const Items &before_;
    Items &now_;
    std::vector<bool> stays_; // which of the items before were found again
    std::vector<Change> changes_;
};

} // namespace

std::vector<Change> compareFrames(const Items &before, Items &now) { return Comparison(before, now).run(); }

} // namespace render
