#include "Render/Renderer.hpp"
#include "Requests.h"
#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Objc/Census.hpp"
#include "Runtime/Time/Timers.hpp"
#include "Supervisor/Protocol/Descriptors.hpp"
#include "Supervisor/Protocol/PictureMemory.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <objc/runtime.h>

namespace sim {

namespace {

bool isKind(const std::string &name, Class wanted) {
    for (Class candidate = objc_lookUpClass(name.c_str()); candidate;
         candidate = class_getSuperclass(candidate))
        if (candidate == wanted) return true;
    return false;
}

Value counters(const Value &) {
    FileCounts files = fileCounts();
    Object live;
    int64_t views = 0;
    for (const auto &[name, count] : liveObjects()) {
        live.emplace(name, count);
        if (isKind(name, [UIView class])) views += static_cast<int64_t>(count);
    }
    return Object{{"settings_reads", files.reads},
                  {"settings_writes", files.writes},
                  {"timers", scheduledTimers()},
                  {"windows", allWindows().size()},
                  {"views", views},
                  {"blocks", liveBlocks()},
                  {"observers", observersAdded()},
                  {"live", live}};
}

Value resetCounters(const Value &) {
    resetFileCounts();
    return {};
}

// Puts the screen of this moment into the supervisor's picture file: {"areas": [[x, y, width, height]]
// outside of which no pixel differs from the draw before, "interface": the way the interface is turned}.
Value draw(const Value &) {
    static render::Renderer renderer;
    static PictureMemory memory(kPictureDescriptor);
    const render::Bitmap &picture = renderer.draw(currentScene());
    std::vector<PictureArea> changed;
    for (const auto &rect : renderer.repainted())
        changed.push_back({rect.x, rect.y, rect.width, rect.height});
    Array areas;
    for (const auto &area : memory.update(picture, changed))
        areas.push_back(Array{area.x, area.y, area.width, area.height});
    auto interface = static_cast<int>([[UIApplication sharedApplication] statusBarOrientation]);
    return Object{{"areas", areas}, {"interface", interface}};
}

} // namespace

std::span<const Request> observingRequests() {
    static const Request requests[] = {
        {"counters", counters}, {"reset_counters", resetCounters}, {"draw", draw}};
    return requests;
}

} // namespace sim
