#include "Progress.hpp"

#include "Runtime/Values/Json.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Supervisor/Boot/Package.hpp"

namespace sim {

namespace {

// What decides a run; how long it is may change.
Value identity(const MonkeyOptions &options) {
    return Object{{"seed", options.seed},
                  {"session", options.sessionEvents},
                  {"boot", options.boot.isNull() ? Value(Object{}) : options.boot}};
}

} // namespace

Tally readProgress(const MonkeyOptions &options) {
    if (options.progress.empty() || !std::filesystem::exists(options.progress)) return {};
    Value content;
    try {
        content = parseJson(readFile(options.progress));
        if (content["run"] == identity(options)) return Tally::of(content["done"]);
    } catch (const ValueError &error) {
        throw std::runtime_error(options.progress.string() + " tells of no run: " + error.what());
    }
    throw std::runtime_error(options.progress.string() + " tells of another run: " + toJson(content["run"]));
}

void writeProgress(const MonkeyOptions &options, const Tally &done) {
    if (options.progress.empty()) return;
    std::string text = toJson(Object{{"run", identity(options)}, {"done", done.value()}}) + '\n';
    if (!writeFileAtomically(options.progress.string(), text))
        throw std::runtime_error("cannot write " + options.progress.string());
}

} // namespace sim
