// The applications of the device, as the list of them that extensions show knows them.
#pragma once

#include <string>
#include <vector>

namespace sim {

struct InstalledApplication {
    std::string identifier, name;
    bool icon = true; // false: without a picture of its own
};

// Before the first page is opened. The system's own helper without a picture is added when it is not among
// them.
void setInstalledApplications(std::vector<InstalledApplication> applications);
const std::vector<InstalledApplication> &installedList();

} // namespace sim
