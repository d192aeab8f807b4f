// The least that a panel's views cost: the same views built again, with the same images and nothing else.
#pragma once

#include <memory>

namespace bench {

// A copy of views as a list of what was set of them; building goes through the list.
class ViewTree {
public:
    ViewTree();
    ~ViewTree();
    ViewTree(const ViewTree &) = delete;
    ViewTree &operator=(const ViewTree &) = delete;

    // Remembers the views that the windows hold now; what comes later is copied.
    void begin();
    // Copies the views that came since `begin`.
    void record();
    // Builds the copied views where they were, and lays them out.
    void build();
    // Takes away what was built.
    void remove();

    int views() const; // that were copied

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace bench
