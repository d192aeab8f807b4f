#include "SimulatedScreen.hpp"

#include "Runtime/Values/Nanoseconds.hpp"
#include "SimulatedProcess.hpp"

#include <algorithm>

namespace sim {

Value SimulatedScreen::act(const char *request, Object arguments) {
    ++acts_;
    bool died;
    return perform(request, arguments, &died);
}

Value SimulatedScreen::ask(const char *request, Object arguments) {
    bool died;
    Value result = perform(request, arguments, &died);
    if (died)
        throw RequestError(std::string(processName()) + " crashed when it was asked for '" + request + "'");
    return result;
}

int64_t SimulatedScreen::settle(int64_t limit) {
    int64_t start = now();
    for (;;) {
        Value busy = ask("busy");
        if (busy.array().empty()) return now() - start;
        auto due = next();
        if (!due || *due > start + limit) {
            std::string text = "still busy after " + std::to_string(toSeconds(limit)) + " s: ";
            for (const auto &item : busy.array())
                text += (&item == &busy.array()[0] ? "" : "; ") + item.string();
            advance(start + limit - now());
            throw SettleError(text);
        }
        advance(std::max<int64_t>(*due - now(), 0));
    }
}

render::Bitmap SimulatedScreen::picture() {
    drawn_ = 0;
    ask("draw");
    return process().picture();
}

std::vector<PictureArea> SimulatedScreen::refresh(render::Bitmap &picture) {
    Value answer = ask("draw");
    std::vector<PictureArea> areas;
    auto pixels = [](const Value &number) { return static_cast<int>(number.integer()); };
    for (const auto &area : answer["areas"].array()) {
        const Array &numbers = area.array();
        areas.push_back({pixels(numbers[0]), pixels(numbers[1]), pixels(numbers[2]), pixels(numbers[3])});
    }
    interfaceOrientation_ = pixels(answer["interface"]);
    // What changed since another drawing says nothing of what changed since ours.
    if (drawn_ != generation()) picture = {};
    drawn_ = generation();
    return process().refresh(picture, areas);
}

} // namespace sim
