// The lock's page in Settings asks for the code whenever it is entered, while there is one and the lock is
// on. It is left for its own list and for its own sheets without being entered anew.
#include "Gate.hpp"

#include "Rules.hpp"
#include "Settings.hpp"

namespace sim {

namespace {

constexpr const char *kPage = "passwordController", *kList = "NewPSListItemsController";
// A sheet that comes or goes, and the page below it.
constexpr int64_t kMoving = 1'000'000'000;

// Nothing when the page is open to everybody.
std::optional<std::string> codeIn(const Value &settings) {
    const Value &code = settings["password"];
    if (!isOn(settings, "pass") || !code.isString() || code.string().empty()) return std::nullopt;
    return code.string();
}

// What is typed in that line, '?' for a finger that may have met any key.
std::string typedIn(const std::string &call) {
    constexpr std::string_view kType = "pane:type(\"";
    std::string typed;
    for (size_t at = call.find("pane:"); at != call.npos; at = call.find("pane:", at + 1)) {
        const std::string_view rest = std::string_view(call).substr(at);
        if (rest.starts_with(kType))
            typed += rest.substr(kType.size(), rest.find('"', kType.size()) - kType.size());
        for (const char *touch : {"pane:tap", "pane:up", "pane:drag", "pane:fling", "pane:hold"})
            if (rest.starts_with(touch)) typed += '?';
    }
    return typed;
}

} // namespace

void GateModel::enter(const Moment &moment) {
    code_ = codeIn(moment.settings);
    given_ = 0;
    entry_ = code_ && codeIn(moment.settingsBefore) == code_ ? Entry::guarded : Entry::open;
}

// Whatever was taken back or refused in between: as long as the digits have not been there in their order,
// nobody has given the code.
void GateModel::type(const Moment &moment) {
    for (char digit : typedIn(moment.call))
        if (given_ < code_->size() && (digit == '?' || digit == (*code_)[given_])) ++given_;
    if (given_ == code_->size()) entry_ = Entry::open;
}

bool GateModel::follow(const Moment &moment) {
    if (!moment.paneNow || moment.call.find("open_settings") != moment.call.npos) {
        *this = {};
        return false;
    }
    const PaneSight &now = *moment.paneNow;
    const bool page = now.type == kPage, asked = now.sheet.has_value();
    if (!page && !asked && now.type != kList) {
        *this = {};
        return false;
    }
    // Its sheets are known by what they look like; they come over no other page.
    if (entry_ == Entry::outside) enter(moment);
    if (entry_ == Entry::guarded && codeIn(moment.settings) != code_) entry_ = Entry::open;
    if (entry_ == Entry::guarded && moment.paneBefore && moment.paneBefore->sheet) type(moment);
    if (entry_ == Entry::open || asked || now.alert) {
        openSince_.reset();
        return false;
    }
    if (!openSince_) openSince_ = moment.to;
    return moment.to - *openSince_ > kMoving;
}

void checkGate(const Moment &moment, Memory &memory, Findings &findings) {
    if (memory.gate.follow(moment))
        findings.push_back("the lock's page lies open, and nobody has typed the code since it was entered");
}

} // namespace sim
