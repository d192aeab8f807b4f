// Steps through the pages in Settings, each with the time that it takes to stand still: what the rules of the
// pages judge. An empty line where a step is none.
#pragma once

#include "Hand.hpp"

namespace sim {

constexpr const char *kPaneWait = " phone:wait(1.2)";
constexpr const char *kFirstPage = "PendixSettingsController", *kSecondPage = "configurationController";

// What the page says under that key, in the device's language.
std::string paneText(Hand &hand, const char *key);
// A call on the application, and the time.
std::string calmly(const char *name, const Array &arguments);

// The code in the settings file, more often right than not, now and then in two parts.
std::string typePaneCode(Hand &hand);
// A row of the page, whatever it does; an empty line for one that does nothing.
std::string usePaneRow(Hand &hand);
// Opens the page of the row with the text under that key. What stands in front is taken away first.
std::string openPane(Hand &hand, const char *key);
// One step towards the first page.
std::string leavePane(Hand &hand);

// The line that opens Settings; so often in a hundred with a code that locks panel and page. What closes them
// and takes the code away again, which would keep the rest from being reached, comes to the end of the plan.
std::string enterPane(Hand &hand, unsigned locked);

} // namespace sim
