#include "Life.hpp"

#include "Acts.hpp"
#include "BootTable.hpp"
#include "Device/Live/LuaText.hpp"
#include "Device/Supervisor/Machine/Interrupt.hpp"
#include "Trial.hpp"

namespace sim {

namespace {

void step(Trial &trial, Hand &hand, Life &life, const Listener &listener) {
    Event event = chooseEvent(hand);
    Tally &tally = life.tally;
    ++tally.events;
    ++tally.acts[event.act];
    if (hand.sight.panelOpen()) ++tally.open;
    if (hand.locked) ++tally.locked;
    life.lines.push_back(event.line);
    listener(event.line);
    if (trial.run(event.line)) {
        hand.note(event.line);
    } else {
        ++tally.refused;
    }
    life.broken = trial.broken();
}

} // namespace

Life live(const DeviceSetup &setup, const LifePlan &plan, const Listener &listener) {
    Random random(plan.seed);
    Life life;
    life.boot = bootTable(random, plan.given);
    life.tally.lives = 1;
    listener(bootLine(life.boot));
    Trial trial(setup, life.boot);
    life.broken = trial.broken();
    if (!life.broken.empty()) return life;

    Hand hand(random, trial.phone(), life.boot);
    while (life.broken.empty() && !interrupted() && life.tally.events < plan.events)
        step(trial, hand, life, listener);
    life.interrupted = interrupted();
    life.tally.virtualTime = trial.phone().device().now();
    if (!life.broken.empty() || life.interrupted) return life;
    trial.end();
    life.broken = trial.broken();
    return life;
}

std::string bootLine(const Value &boot) { return "local phone = boot" + luaText(boot); }

} // namespace sim
