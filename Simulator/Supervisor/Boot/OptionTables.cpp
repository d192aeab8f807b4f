#include "OptionTables.hpp"

#include "AidOptions.hpp"

namespace sim {

namespace {

OptionTable makeBootOptionTable() {
    return {
        "boot",
        "All of them may be left out.",
        {{"device", "\"iPhone 6\" without it; `help devices` lists all"},
         {"ios", "system version; \"8.1\" without it"},
         {"language", "\"en\" without it, or \"it\", \"es\" …"},
         {"clock",
          "the device's local time at the start, in the zone UTC; \"2015-03-01 10:20:30\" without it"},
         {"settings",
          "table of keys and values, written as the settings file before the launch; no file without it"},
         {"settings_text", "instead, all bytes of that file"},
         {"apps",
          "list of tables in home-screen order, running ones most recent first; without it 24 stock ones, "
          "without badges"},
         {"extension", "false leaves the library out; true without it"},
         {"extensions", "list of paths of other extensions to load, beside the package's or, with `extension "
                        "= false`, instead of "
                        "it: folders that were built, or libraries with their filters beside them; as seen "
                        "from the script's "
                        "folder"},
         {"hide_classes",
          "list of class names made absent; one that the library names statically is refused, one "
          "that does not exist gives a `warning` event"},
         {"hide_methods",
          "list of \"Class selector\" (\"Class +selector\" of a class) that a loaded library which "
          "asks for them finds absent; the system's own code does not notice"},
         {"nil_methods", "the same list, of methods that give a loaded library nil, NO or 0"},
         {"missing_files",
          "list of absolute device paths of installed files or folders to leave out; one that is "
          "not installed gives a `warning` event"},
         {"fail_writes", "list of tables: writes that fail; each process counts for itself"},
         {"color_badges", "the other extension that colours badges: true, or a table; false without it"},
         {"passcode", "true: the device has a passcode, 1234; false without it"},
         {"passcode_locked", "true: it has one and starts locked with the display on; false without it"},
         {"apex", "true: the package list of another known extension is there; false without it"},
         {"interface_turns",
          "true: everything turns with the device, false: nothing. Without it tablets turn in every "
          "direction, the iPhone 6 Plus turns its home screen on its sides, the home and lock "
          "screens of other phones stay upright, and applications on phones turn on their sides"},
         {"root",
          "folder for the device's file system, kept, relative to the current one; a temporary one without "
          "it"}}};
}

} // namespace

const OptionTable &bootOptionTable() {
    static const OptionTable table = [] {
        OptionTable all = makeBootOptionTable();
        all.options.insert(all.options.end(), aidOptions().begin(), aidOptions().end());
        return all;
    }();
    return table;
}

const OptionTable &applicationOptionTable() {
    static const OptionTable table = {
        "apps",
        "An entry of `apps`.",
        {{"id", "its identifier; the only one that is needed"},
         {"name", "the stock application's without it, else the last part of `id`"},
         {"badge", "a number, drawn before `boot` returns; 0 without it"},
         {"running", "whether it runs; false without it"},
         {"folder", "the name of the folder that it lies in"},
         {"icon", "false gives the placeholder icon"},
         {"snapshot", "false: the switcher has no picture of it"},
         {"status_bar", "false hides the status bar while it is in front"}}};
    return table;
}

const OptionTable &colorBadgeOptionTable() {
    static const OptionTable table = {"color_badges",
                                      "The table of `color_badges`.",
                                      {{"enabled", "true without it"}, {"borders", "true without it"}}};
    return table;
}

const OptionTable &failingWriteOptionTable() {
    static const OptionTable table = {"fail_writes",
                                      "An entry of `fail_writes`.",
                                      {{"path", "absolute on the device; names that begin with it are meant"},
                                       {"error", "\"ENOSPC\" without it, \"EACCES\", \"EROFS\" or \"EIO\""},
                                       {"call", "\"open\" or \"rename\"; each kind without it"},
                                       {"first", "the number of the first call to fail; 1 without it"},
                                       {"times", "how many fail; all without it"}}};
    return table;
}

} // namespace sim
