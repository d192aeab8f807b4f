// What the extension does in the Settings application.
#include "Measuring/Case.hpp"

namespace bench {

namespace {

sim::Value rowNamed(Device &device, const char *label) {
    sim::Value place = device.ask("place_row", {{"label", label}, {"kinds", sim::Array{"link"}}});
    if (place.isNull()) throw std::runtime_error(std::string("the page has no row ") + label);
    return place;
}

// From the finger that lifts off the row to the page that has slid in.
Case page(const char *label) {
    return {.name = std::string("pane_page"),
            .options = sim::Object{{"device", "iPhone 6"},
                                   {"ios", "8.1"},
                                   {"settings", sim::Object{{"enable", true}, {"amount", "3"}}}},
            .setUp = [](Device &device) { device.settle(); },
            .prepare =
                [label](Device &device) {
                    device.down(rowNamed(device, label));
                    device.advance(0.1);
                },
            .work =
                [](Device &device) {
                    device.up();
                    device.advance(1);
                },
            .restore =
                [](Device &device) {
                    device.settle();
                    device.tap(device.ask("place_back"));
                    device.settle();
                }};
}

} // namespace

std::vector<Case> allCases() { return {page("Configuration")}; }

} // namespace bench
