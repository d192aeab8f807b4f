// A phone that is driven by one call of the scripts' contract at a time, through the very functions that
// scripts call.
#pragma once

#include "Supervisor/Script/Phone.hpp"

#include <optional>
#include <string>

namespace sim {

// A call that was refused; the text is for the person who made it.
struct CallError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class LivePhone {
public:
    // Boots; `options` is the table of `boot`. Throws BootError.
    LivePhone(const DeviceSetup &setup, const Value &options);

    SimulatedDevice &device() { return *phone_->owner; }
    // The Settings application that was opened last; nullptr when none runs.
    SettingsProcess *settings() const;
    // The same, also when it has ended since.
    const SettingsProcess *lastSettings() const;
    // Runs statements in which `phone` is the phone, and `pane` what they put there. Throws CallError.
    void run(const std::string &statements);
    // The whole number that an expression gives. Throws CallError.
    int64_t number(const std::string &expression);
    // The view that an expression gives on that screen; nothing when it gives nil, or fails.
    struct Sight {
        int64_t number = 0;
        double x = 0, y = 0; // its centre, upright
    };
    std::optional<Sight> look(const std::string &expression);

private:
    void evaluate(const std::string &expression);

    Script script_;
    Phone *phone_ = nullptr;
};

// Throws BootError when a device cannot be booted with this table.
BootOptions checkBootOptions(const DeviceSetup &setup, const Value &table);

// The methods of a phone that people may call: those that act on it, and neither wait nor write pictures.
bool isAction(const std::string &name);

} // namespace sim
