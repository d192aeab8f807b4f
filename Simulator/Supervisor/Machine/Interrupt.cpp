#include "Interrupt.hpp"

#include <csignal>
#include <initializer_list>

namespace sim {

namespace {

volatile std::sig_atomic_t mark = 0;
void (*waker)() = nullptr;

void stop(int) {
    mark = 1;
    waker();
}

// Unlike an ignored signal, a handled one is back to its usual effect in the programs that are started.
void leaveAlone(int) {}

} // namespace

void watchInterrupts(void (*wake)(), bool debugger) {
    waker = wake;
    struct sigaction action {};
    for (int signal : {SIGINT, SIGTERM, SIGHUP}) {
        action.sa_handler = debugger && signal == SIGINT ? leaveAlone : stop;
        sigaction(signal, &action, nullptr);
    }
}

bool interrupted() { return mark != 0; }

} // namespace sim
