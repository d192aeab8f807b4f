// Lazily created state behind the opaque member of a platform class.
#pragma once

namespace sim {

template <typename State, typename Make>
State &lazyState(void *&member, Make make) {
    if (!member) member = make();
    return *static_cast<State *>(member);
}

template <typename State>
State &lazyState(void *&member) {
    return lazyState<State>(member, [] { return new State; });
}

} // namespace sim
