// What the system's own items tell.
#pragma once

#include <functional>
#include <string>

namespace sim {

struct StatusBarData {
    std::string carrier = "Carrier";
    int signalBars = 4;     // of 5
    int wifiBars = 3;       // of 3
    int batteryLevel = 100; // per cent
};

// Fixed: a simulated device stands still on a full battery.
const StatusBarData &statusBarData();

// The time of day on the device, as its language writes it: "10:20 AM", "10:20".
std::string statusBarTime();

// Calls at the beginning of every minute of the device's clock, for the life of the process.
void everyMinute(std::function<void()> task);

} // namespace sim
