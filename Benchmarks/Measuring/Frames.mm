#include "Frames.hpp"

#include "Render/Renderer.hpp"
#include "Runtime/Time/Clock.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <utility>

namespace bench {

namespace {

Painted painted;

} // namespace

void drawScreen() {
    static render::Renderer renderer;
    const render::Bitmap &picture = renderer.draw(sim::currentScene());
    painted.width = picture.width;
    painted.height = picture.height;
    const auto &parts = renderer.repainted();
    painted.parts.insert(painted.parts.end(), parts.begin(), parts.end());
}

double secondsToNextFrame() {
    sim::Nanos now = sim::Clock::shared().now();
    return sim::toSeconds(sim::nextFrame(now) - now);
}

double Painted::pixels() const {
    double sum = 0;
    for (const auto &part : parts) sum += static_cast<double>(part.width) * part.height;
    return sum;
}

Painted takePainted() { return std::exchange(painted, {}); }

} // namespace bench
