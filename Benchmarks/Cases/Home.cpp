// What the extension does on a home screen.
#include "Measuring/Case.hpp"
#include "Measuring/Frames.hpp"
#include "Measuring/ViewTree.hpp"

namespace bench {

namespace {

constexpr int kFrames = 30;
constexpr int kPanelTag = 3, kBadgeTag = 99, kKeypadTag = 46, kKeyTag = 50, kDeleteTag = -2;

std::string identifier(int number) { return "org.example." + std::to_string(number); }

// An iPhone 6 with so many applications, each with a badge, and these settings besides `enable`.
sim::Value phone(int applications, sim::Object settings = {}) {
    sim::Array list;
    for (int i = 1; i <= applications; ++i)
        list.push_back(
            sim::Object{{"id", identifier(i)}, {"name", "App " + std::to_string(i)}, {"badge", 1 + i % 9}});
    settings.emplace("enable", true);
    return sim::Object{
        {"device", "iPhone 6"}, {"ios", "8.1"}, {"apps", std::move(list)}, {"settings", std::move(settings)}};
}

// At the same distance from the poll of the settings every time.
void touchIndicator(Device &device) {
    device.advanceToSecond();
    device.down(device.indicator());
    device.advance(0.1);
}

void open(Device &device) {
    touchIndicator(device);
    device.up();
    device.settle();
}

void touchOutside(Device &device) {
    device.advanceToSecond();
    device.down(sim::Object{{"x", 30}, {"y", 600}});
    device.advance(0.1);
}

void close(Device &device) {
    touchOutside(device);
    device.up();
    device.settle();
    // The follower ends with its next tick.
    device.advance(0.2);
    if (device.overlayViews(kPanelTag)) throw std::runtime_error("the panel has not closed");
}

Step expectItems(int count) {
    return [count](Device &device) {
        open(device);
        auto found = static_cast<int>(device.overlayViews(kBadgeTag));
        if (found != count)
            throw std::runtime_error("the panel lists " + std::to_string(found) + " of " +
                                     std::to_string(count));
        close(device);
    };
}

void lift(Device &device) { device.up(); }

void finishAndClose(Device &device) {
    device.settle();
    close(device);
}

Case launch(const char *name, bool extension) {
    Case result{.name = name, .options = phone(24), .launch = true};
    result.options.set("extension", extension);
    return result;
}

// A second in which nothing happens but the poll of the settings.
Case tick() {
    return {.name = "tick",
            .options = phone(24),
            .prepare = [](Device &device) { device.advanceToSecond(); },
            .work = [](Device &device) { device.advance(1); }};
}

// One badge after the other changes, with the settings for which every change looks through all.
Case badge(int count) {
    auto next = std::make_shared<int>(0);
    return {.name = "badge/" + std::to_string(count),
            .options = phone(count, {{"hide_t", true}, {"glow", true}}),
            .work = [next, count](Device &device) {
                int step = (*next)++;
                device.ask("badge", {{"id", identifier(1 + step % count)}, {"value", 10 + step % 7}});
            }};
}

// From the finger that lifts off the indicator to the built and laid-out panel.
Case opening(int count) {
    return {.name = "opening/" + std::to_string(count),
            .options = phone(count),
            .setUp = expectItems(count),
            .prepare = touchIndicator,
            .work = lift,
            .restore = finishAndClose};
}

// The floor of opening: its views built once more, with their images, and laid out.
Case openingBare(int count) {
    auto tree = std::make_shared<ViewTree>();
    return {.name = "opening_bare/" + std::to_string(count),
            .options = phone(count),
            .setUp =
                [tree, count](Device &device) {
                    expectItems(count)(device);
                    tree->begin();
                    open(device);
                    tree->record();
                    close(device);
                    if (tree->views() < 6 * count) throw std::runtime_error("views are missing");
                },
            .work =
                [tree](Device &device) {
                    tree->build();
                    device.advance(0);
                },
            .restore =
                [tree](Device &device) {
                    tree->remove();
                    device.settle();
                }};
}

// From the finger that lifts outside the panel to the moment at which its views are gone.
Case closing(int count) {
    return {.name = "closing/" + std::to_string(count),
            .options = phone(count),
            .setUp = expectItems(count),
            .prepare =
                [](Device &device) {
                    open(device);
                    touchOutside(device);
                },
            .work =
                [](Device &device) {
                    device.up();
                    device.advance(0.6);
                },
            .restore = [](Device &device) { device.settle(); }};
}

void drawFrames(Device &device) {
    for (int i = 0; i < kFrames; ++i) {
        device.advance(secondsToNextFrame());
        drawScreen();
    }
}

// The frames of the half second in which the panel grows.
Case openingFrame(bool blur) {
    return {.name = blur ? "opening_frame_blurred" : "opening_frame",
            .options = phone(10, {{"blur", blur}}),
            .prepare =
                [](Device &device) {
                    touchIndicator(device);
                    device.up();
                    drawScreen();
                },
            .work = drawFrames,
            .restore =
                [](Device &device) {
                    finishAndClose(device);
                    drawScreen();
                },
            .units = kFrames};
}

void drawMoving(Device &device, double step) {
    for (int i = 0; i < kFrames; ++i) {
        device.ask("touch_move", {{"x", 150 + step * i}, {"y", 90}});
        device.advance(secondsToNextFrame());
        drawScreen();
    }
}

// The frames of an open panel on which a finger moves the strip.
Case openFrame(bool blur) {
    return {.name = blur ? "open_frame_blurred" : "open_frame",
            .options = phone(10, {{"blur", blur}}),
            .setUp =
                [](Device &device) {
                    open(device);
                    drawScreen();
                },
            .prepare =
                [](Device &device) {
                    device.advanceToSecond();
                    device.down(sim::Object{{"x", 250}, {"y", 90}});
                    device.ask("touch_move", {{"x", 150}, {"y", 90}});
                    device.advance(secondsToNextFrame());
                    drawScreen();
                },
            .work = [](Device &device) { drawMoving(device, -3); },
            .restore =
                [](Device &device) {
                    device.ask("touch_move", {{"x", 350}, {"y", 90}});
                    device.advance(0.2);
                    device.up();
                    device.settle();
                    drawScreen();
                },
            .units = kFrames};
}

// One digit entered; deleting it again is not measured.
Case keypadDigit() {
    return {.name = "keypad_digit",
            .options = phone(10, {{"pass", true}, {"password", "1234"}, {"where", "every"}, {"clear", true}}),
            .setUp =
                [](Device &device) {
                    open(device);
                    device.overlayView(kKeypadTag);
                },
            .prepare =
                [](Device &device) {
                    device.advanceToSecond();
                    device.down(device.overlayView(kKeyTag));
                    device.advance(0.1);
                },
            .work =
                [](Device &device) {
                    device.up();
                    device.advance(0.25);
                },
            .restore =
                [](Device &device) {
                    device.settle();
                    device.tap(device.overlayView(kDeleteTag));
                    device.settle();
                }};
}

} // namespace

std::vector<Case> allCases() {
    std::vector<Case> cases = {launch("launch", true), launch("launch_without", false), tick()};
    for (int count : {1, 20, 200}) cases.push_back(badge(count));
    for (int count : {1, 10, 50, 200, 500}) cases.push_back(opening(count));
    cases.push_back(openingBare(200));
    for (int count : {1, 10, 50, 200, 500}) cases.push_back(closing(count));
    for (bool blur : {false, true}) cases.push_back(openingFrame(blur));
    for (bool blur : {false, true}) cases.push_back(openFrame(blur));
    cases.push_back(keypadDigit());
    return cases;
}

} // namespace bench
