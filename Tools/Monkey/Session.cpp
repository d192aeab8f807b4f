#include "Session.hpp"

#include "Acts.hpp"
#include "BootTable.hpp"
#include "Replay.hpp"
#include "Supervisor/Machine/Interrupt.hpp"
#include "Tools/Live/LuaText.hpp"

namespace sim {

namespace {

void step(Replay &replay, Hand &hand, Session &session, const Listener &listener) {
    Event event = chooseEvent(hand);
    Tally &tally = session.tally;
    ++tally.events;
    ++tally.acts[event.act];
    if (hand.snapshot.panelOpen()) ++tally.open;
    if (hand.locked) ++tally.locked;
    session.lines.push_back(event.line);
    listener(event.line);
    if (replay.run(event.line)) {
        hand.note(event.line);
    } else {
        ++tally.refused;
    }
    session.broken = replay.broken();
}

} // namespace

Session live(const DeviceSetup &setup, const SessionPlan &plan, const Listener &listener) {
    Random random(plan.seed);
    Session session;
    session.boot = bootTable(random, plan.given);
    session.tally.sessions = 1;
    listener(bootLine(session.boot));
    Replay replay(setup, session.boot);
    session.broken = replay.broken();
    if (!session.broken.empty()) return session;

    Hand hand(random, replay.phone(), replay.pane(), session.boot);
    while (session.broken.empty() && !interrupted() && session.tally.events < plan.events)
        step(replay, hand, session, listener);
    session.interrupted = interrupted();
    session.tally.virtualTime = replay.phone().device().now();
    if (!session.broken.empty() || session.interrupted) return session;
    replay.end();
    session.broken = replay.broken();
    return session;
}

std::string bootLine(const Value &boot) { return "local phone = boot" + luaText(boot); }

} // namespace sim
