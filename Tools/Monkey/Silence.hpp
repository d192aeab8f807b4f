// Keeps what is said on the standard error stream from being heard while it lives.
#pragma once

#include <iostream>

namespace sim {

// A crash is told on the standard error stream; once is enough.
class Silence {
public:
    Silence() : before_(std::cerr.rdbuf(nullptr)) {}
    ~Silence() {
        std::cerr.rdbuf(before_);
        std::cerr.clear();
    }
    Silence(const Silence &) = delete;

private:
    std::streambuf *before_;
};

} // namespace sim
