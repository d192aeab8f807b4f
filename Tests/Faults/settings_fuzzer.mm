// A home screen with the extension in it, and in the same process what the pane writes with, goes through
// thousands of settings files without a restart: it never ends, and one key that is written never changes
// another one.
//
// settings_fuzzer [--first N] [--count N] [--trace | --careless]
// --trace names each file before it is tried. --careless puts a writer in the place of the extension's that
// forgets what stood in the file, to see that the checks notice.
#include "SettingsFiles.hpp"

#include "PendixSettings/Applications/appController.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/PendixListController.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/HookTable.h"
#include "Tweak/Start/SpringBoard+Settings.h"
#include "Tweak/Triggers/ShowPanel.h"

#include "Product/SwitchRow.h"
#include "Runtime/Values/PropertyList.hpp"
#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

#include <Preferences/Preferences.h>

#include <cstdlib>
#include <cstring>

namespace {

using sim::Object;
using sim::Value;

constexpr char kFile[] = "/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist";
constexpr uint64_t kOpenEvery = 25;
const char *const kApplications[] = {"com.apple.mobilemail", "org.example.1", "org.example.2"};

struct Tally {
    uint64_t readable = 0, unreadable = 0, opened = 0, failures = 0;
};
Tally tally;
bool careless = false;

void fail(uint64_t number, const std::string &what) {
    fprintf(stderr, "file %llu: %s\n", static_cast<unsigned long long>(number), what.c_str());
    ++tally.failures;
}

std::string content(const harness::Sandbox &sandbox) {
    return sim::readWholeFile(sandbox.path(kFile)).value_or("");
}

// The settings that a reader has to find in those bytes; nothing when they are no settings.
std::optional<Object> settingsIn(const std::string &bytes) {
    auto value = sim::parsePropertyList(bytes, nullptr);
    if (!value || !value->isObject()) return std::nullopt;
    return value->object();
}

std::optional<std::string> textOf(const Object &settings) try {
    return sim::toXmlPropertyList(settings);
} catch (const sim::ValueError &) {
    return std::nullopt; // holds a null, which no file in the other forms can
}

// Everything that runs by itself, and now and then the panel.
void use(uint64_t number) {
    [pendix::Spring preferenceChangesByMe];
    sim::setBadge(kApplications[number % 3], static_cast<int>(number % 4));
    if (number % kOpenEvery != 0) return;
    // Most of these files switch the indicator off, and without it there is no panel.
    pendix::statusbaritem.visible = YES;
    harness::wait(0.1);
    pendix::showPanel();
    tally.opened += pendix::isShow;
    harness::wait(0.8);
    if (pendix::isShow) [pendix::Spring dismisPendixUI];
    harness::wait(1.3);
    if (pendix::isShow || [pendix::window.subviews count] != 2) fail(number, "the panel stays");
}

PSSpecifier *rowOf(NSString *key) { return harness::switchRow(pendix::pane::Translator(key)); }

// Writes one entry in one of the ways there are; its name comes back.
std::string writeOne(uint64_t number) {
    const auto &names = faults::settingNames();
    std::string name = names[number / 3 % names.size()];
    NSString *key = [NSString stringWithUTF8String:name.c_str()];
    NSNumber *value = [NSNumber numberWithBool:number % 2 == 0];
    switch (number % 3) {
    case 0:
        careless ? pendix::writeSettings([NSDictionary dictionaryWithObject:value forKey:key])
                 : pendix::writeSetting(key, value);
        return name;
    case 1: {
        // "light" stands on a page, whatever the language.
        PendixListController *page = [[PendixListController new] autorelease];
        [page setValue:value forSpecifier:rowOf(@"light")];
        return "light";
    }
    default: {
        appController *page = [[appController new] autorelease];
        name = kApplications[number / 3 % 3];
        page.navigationItem.title = [NSString stringWithUTF8String:name.c_str()];
        [page setValue:value forSpecifier:rowOf(@"hide_perapp")];
        return name;
    }
    }
}

// Of an application, the other entries below its name stay as well.
void checkApplication(uint64_t number, const Value &before, const Value &after) {
    Object left = before.isObject() ? before.object() : Object{}, right = after.object();
    left.erase("hide_perapp");
    right.erase("hide_perapp");
    if (textOf(left) != textOf(right)) fail(number, "an application's other setting changed");
}

// What a write of that entry leaves as it is.
Object withoutReplaced(Object settings, const std::string &name, uint64_t number) {
    const auto entry = settings.find(name);
    if (entry == settings.end()) return settings;
    if (number % 3 == 2 && entry->second.isObject()) {
        Object inner = entry->second.object();
        inner.erase("hide_perapp");
        entry->second = std::move(inner);
    } else {
        settings.erase(entry);
    }
    return settings;
}

void checkWrite(uint64_t number, const harness::Sandbox &sandbox, const std::string &bytes) {
    auto before = settingsIn(bytes);
    ++(before ? tally.readable : tally.unreadable);
    std::string name = writeOne(number);
    std::string now = content(sandbox);
    if (before && !textOf(withoutReplaced(*before, name, number))) {
        if (now != bytes) fail(number, "what cannot be written was written");
        return;
    }
    auto after = settingsIn(now);
    if (!after || !after->contains(name)) return fail(number, name + " was not written");
    const Value old = before && before->contains(name) ? before->at(name) : Value();
    if (number % 3 == 2) checkApplication(number, old, after->at(name));
    Object left = before.value_or(Object{}), right = *after;
    left.erase(name);
    right.erase(name);
    if (textOf(left) != textOf(right)) fail(number, "writing " + name + " changed another key");
}

void check(uint64_t number, const harness::Sandbox &sandbox) {
    std::string bytes = faults::oddSettingsFile(number);
    std::ofstream(sandbox.path(kFile), std::ios::binary) << bytes;
    if ((pendix::readSettings() != nil) != settingsIn(bytes).has_value())
        fail(number, "read as settings, or not, against the file's content");
    use(number);
    if (content(sandbox) != bytes) fail(number, "reading changed the file");
    checkWrite(number, sandbox, bytes);
}

void bootWithExtension(const harness::Sandbox &sandbox) {
    auto languages = sandbox.path("/Library/Application Support/Pendix/Languages");
    std::filesystem::create_directories(languages);
    std::filesystem::copy(LANGUAGES "/en.plist", languages);
    std::filesystem::create_directories(sandbox.path(kFile).parent_path());
    auto device = harness::profile("iPhone 6");
    device.machine = "iPhone7,2";
    device.touchSensor = true;
    harness::boot(device, harness::applications(), [] {
        pendix::createBadgeList();
        pendix::installHooks();
    });
}

uint64_t argument(int argc, char **argv, const char *name, uint64_t otherwise) {
    for (int i = 1; i + 1 < argc; ++i)
        if (strcmp(argv[i], name) == 0) return strtoull(argv[i + 1], nullptr, 10);
    return otherwise;
}

int run(uint64_t first, uint64_t count, bool trace) {
    harness::Sandbox sandbox;
    bootWithExtension(sandbox);
    for (uint64_t number = first; number < first + count && tally.failures < 10; ++number) {
        if (trace) fprintf(stderr, "file %llu\n", static_cast<unsigned long long>(number));
        @autoreleasepool {
            check(number, sandbox);
        }
        sim::takeEvents();
    }
    printf("files %llu to %llu: %llu settings, %llu not, panel opened %llu times, %llu failures\n",
           static_cast<unsigned long long>(first), static_cast<unsigned long long>(first + count - 1),
           static_cast<unsigned long long>(tally.readable), static_cast<unsigned long long>(tally.unreadable),
           static_cast<unsigned long long>(tally.opened), static_cast<unsigned long long>(tally.failures));
    // Neither kind is rare; otherwise the files prove little.
    bool balanced = count < 200 || (tally.readable > count / 10 && tally.unreadable > count / 10);
    if (!balanced) fprintf(stderr, "too few files of one kind\n");
    bool opens = count < 200 || tally.opened > count / kOpenEvery / 2;
    if (!opens) fprintf(stderr, "the panel hardly ever opened\n");
    return tally.failures == 0 && balanced && opens ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    harness::preparePlatform();
    bool trace = argc > 1 && strcmp(argv[argc - 1], "--trace") == 0;
    careless = argc > 1 && strcmp(argv[argc - 1], "--careless") == 0;
    @autoreleasepool {
        return run(argument(argc, argv, "--first", 0), argument(argc, argv, "--count", 500), trace);
    }
}
