// pendix-sim: simulated devices, driven by scripts or by people.
#include "Extension.hpp"
#include "Help.hpp"
#include "Mistakes.hpp"
#include "Runtime/Values/Json.hpp"
#include "Supervisor/Boot/Extensions.hpp"
#include "Supervisor/Profiles/Profiles.hpp"
#include "Supervisor/Script/Script.hpp"
#include "Tools/Live/LiveSession.hpp"
#include "Tools/Live/Shot.hpp"
#include "Tools/Monkey/Monkey.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

namespace {

constexpr const char *kExamples =
    "A first look:\n"
    "  pendix-sim live                            a device in the browser\n"
    "  pendix-sim run FILE.lua --out pictures     a script, and the pictures it takes\n"
    "  pendix-sim shot home.png --device \"iPad 2\" --ios 7.1\n"
    "\"pendix-sim COMMAND --help\" teaches each command, \"pendix-sim help\" the calls of scripts.";

struct CommandLine {
    sim::ScriptOptions script;
    sim::LiveOptions live;
    sim::ShotOptions shot;
    sim::MonkeyOptions monkey;
    sim::HelpRequest help;
    std::string finding;                          // a script that the monkey wrote
    std::string boot;                             // JSON
    std::map<std::string, std::string> bootTexts; // single options of boot
    std::vector<std::string> settings, badges, calls, extensions;
    std::string extension; // to make or to build
    bool phone = false;    // builds it for one, too
    bool debugger = false, fresh = false;
};

sim::DeviceSetup setupOf(const CommandLine &commandLine) {
    sim::Installation installation = sim::findInstallation();
    sim::DeviceSetup setup{.installation = installation,
                           .package = sim::readPackage(installation.manifest),
                           .debugger = commandLine.debugger,
                           .extensions =
                               sim::absolutePaths(commandLine.extensions, std::filesystem::current_path())};
    if (commandLine.fresh) setup.nurseries = nullptr;
    return setup;
}

sim::Value bootTable(const CommandLine &commandLine) {
    sim::Value table =
        commandLine.boot.empty() ? sim::Value(sim::Object{}) : sim::parseJson(commandLine.boot);
    if (!table.isObject()) throw sim::BootError("the boot options must be a JSON object");
    for (const auto &[name, text] : commandLine.bootTexts)
        if (!text.empty()) table.set(name, text);
    if (!commandLine.settings.empty()) {
        sim::Value settings = table.has("settings") ? table["settings"] : sim::Value(sim::Object{});
        for (const auto &text : commandLine.settings) {
            auto [key, value] = sim::settingFrom(text);
            settings.set(key, value);
        }
        table.set("settings", settings);
    }
    return table;
}

void addExtensions(CLI::App &command, CommandLine &commandLine) {
    command
        .add_option("--extension", commandLine.extensions,
                    "Another extension for every device: a library, or a folder that was built (repeatable)")
        ->type_name("PATH")
        ->expected(1)
        ->take_all();
}

void addFresh(CLI::App &command, CommandLine &commandLine) {
    command
        .add_flag("--fresh", commandLine.fresh,
                  "Start each simulated process by itself instead of forking one that is prepared; the same "
                  "comes of it, later")
        ->envname("PENDIX_SIM_FRESH");
}

void addBootOptions(CLI::App &command, CommandLine &commandLine) {
    addExtensions(command, commandLine);
    addFresh(command, commandLine);
    command.add_option("--device", commandLine.bootTexts["device"],
                       "\"iPhone 6\"; pendix-sim profiles lists all");
    command.add_option("--ios", commandLine.bootTexts["ios"], "System version: 8.1");
    command.add_option("--language", commandLine.bootTexts["language"], "en, it or es");
    command.add_option("--clock", commandLine.bootTexts["clock"],
                       "The device's time: \"2015-03-01 10:20:30\"");
    command.add_option("--set", commandLine.settings, "A setting before the start: enable=true (repeatable)")
        ->type_name("KEY=VALUE")
        ->expected(1)
        ->take_all();
    command.add_option("BOOT,--boot", commandLine.boot, "More boot options as JSON: '{\"passcode\": true}'");
}

sim::Outcome runScript(CommandLine &commandLine) {
    return sim::Script(setupOf(commandLine), std::move(commandLine.script)).run();
}

sim::Outcome runLive(CommandLine &commandLine) {
    sim::DeviceSetup setup = setupOf(commandLine);
    commandLine.live.boot = bootTable(commandLine);
    sim::LiveSession session(setup, commandLine.live);
    std::cout << "The device is at " << session.address() << "  (Ctrl-C ends it)" << std::endl;
    session.run();
    if (!commandLine.live.script.empty())
        std::cout << "What was done is in " << commandLine.live.script.string() << '\n';
    return sim::Outcome::passed;
}

sim::Outcome runShot(CommandLine &commandLine) {
    commandLine.shot.boot = bootTable(commandLine);
    auto &statements = commandLine.shot.statements;
    for (const auto &badge : commandLine.badges) statements.push_back(sim::badgeStatement(badge));
    statements.insert(statements.end(), commandLine.calls.begin(), commandLine.calls.end());
    sim::takeShot(setupOf(commandLine), commandLine.shot);
    return sim::Outcome::passed;
}

sim::Outcome runMonkey(CommandLine &commandLine) {
    if (!commandLine.finding.empty()) return sim::replayFinding(setupOf(commandLine), commandLine.finding);
    commandLine.monkey.boot = bootTable(commandLine);
    return sim::runMonkey(setupOf(commandLine), commandLine.monkey);
}

CLI::App *addRun(CLI::App &program, CommandLine &commandLine) {
    auto *run = program.add_subcommand("run", "Run a script");
    run->add_option("FILE", commandLine.script.file, "The script (Lua 5.4)")
        ->required()
        ->check(CLI::ExistingFile);
    run->add_option("--out", commandLine.script.pictures, "Folder for pictures")->capture_default_str();
    run->add_option("--seed", commandLine.script.seed, "Seed of math.random")->capture_default_str();
    addExtensions(*run, commandLine);
    run->add_flag("--gdb", commandLine.debugger, "Start the simulated processes under gdb in this terminal");
    addFresh(*run, commandLine);
    run->footer(
        "What follows -- on the command line is in the script's global `args`.\n"
        "Exits with 0 when every expectation held, 1 when one failed, 2 when the call or a boot was wrong.");
    return run;
}

CLI::App *addLive(CLI::App &program, CommandLine &commandLine, const char *name, const char *what) {
    auto *live = program.add_subcommand(name, what);
    live->add_option("--port", commandLine.live.port, "On 127.0.0.1; 0 takes any that is free")
        ->capture_default_str();
    live->add_option("--speed", commandLine.live.speed, "Of its clock at the start; 0 stops it")
        ->check(CLI::Range(0.0, 1.0))
        ->capture_default_str();
    addBootOptions(*live, commandLine);
    live->footer("Only this machine can open the page, and only the page can talk to the device.\n"
                 "Example: pendix-sim live --device \"iPhone 5s\" --ios 7.1 --set enable=true");
    return live;
}

CLI::App *addShot(CLI::App &program, CommandLine &commandLine) {
    auto *shot = program.add_subcommand("shot", "Take one picture of a device");
    shot->add_option("FILE", commandLine.shot.file, "Where to write the picture (PNG)")->required();
    addBootOptions(*shot, commandLine);
    shot->add_option("--badge", commandLine.badges, "First, a badge: com.apple.mobilemail=3 (repeatable)")
        ->type_name("ID=N")
        ->expected(1)
        ->take_all();
    shot->add_option("--do", commandLine.calls, "Then, a statement of a script (repeatable)")
        ->type_name("LUA")
        ->expected(1)
        ->take_all();
    shot->add_option("--wait", commandLine.shot.wait, "Then let so many seconds pass")
        ->check(CLI::Range(0.0, 86400.0));
    shot->footer("Example: pendix-sim shot panel.png --set enable=true --badge com.apple.mobilemail=3 \\\n"
                 "             --do 'phone:tap(phone:indicator().view)' --wait 1");
    return shot;
}

CLI::Validator oneOrMore() {
    auto check = [](const std::string &text) {
        int64_t number = 0;
        bool good = CLI::detail::lexical_cast(text, number) && number >= 1;
        return good ? "" : "must be a whole number of 1 or more, not " + text;
    };
    return {check, "1 or more"};
}

CLI::App *addMonkey(CLI::App &program, CommandLine &commandLine) {
    auto &options = commandLine.monkey;
    auto *monkey =
        program.add_subcommand("monkey", "Do random things to random devices, and watch for faults");
    auto count = [&](const char *name, int64_t &value, const char *what) {
        monkey->add_option(name, value, what)->capture_default_str()->check(oneOrMore());
    };
    monkey->add_option("--seed", options.seed, "Decides all that is done")->capture_default_str();
    count("--events", options.events, "How many events, in all");
    count("--session,--life", options.sessionEvents, "Events between one boot and the next");
    count("--replays", options.mostReplays, "How often what was found is done again to make it short");
    monkey->add_option("--script", options.script, "Where to write what was found, as a script")
        ->capture_default_str()
        ->type_name("FILE.lua");
    monkey->add_option("--resume", options.progress, "Keep the progress there, and go on from it")
        ->type_name("FILE");
    monkey->add_option("--replay", commandLine.finding, "Instead, do again what was found")
        ->type_name("FILE.lua")
        ->check(CLI::ExistingFile);
    monkey->add_option("--trace", options.trace, "Write every line that is done")->type_name("FILE");
    addBootOptions(*monkey, commandLine);
    monkey->footer(
        "What is given of the boot options stays; chance chooses the rest.\n"
        "Exits with 0 when nothing was found, 1 when something was, 2 when it was interrupted or the "
        "call was wrong.\n"
        "Example: pendix-sim monkey --seed 7 --events 100000 --resume soak.json");
    return monkey;
}

CLI::App *addNew(CLI::App &program, CommandLine &commandLine) {
    auto *made =
        program.add_subcommand("new", "Make an extension to begin with: a hook, a filter and a test");
    made->add_option("NAME", commandLine.extension, "Its name, and that of its folder")->required();
    return made;
}

CLI::App *addBuild(CLI::App &program, CommandLine &commandLine) {
    auto *build = program.add_subcommand("build", "Build an extension for the simulated devices");
    build->add_option("DIR", commandLine.extension, "The folder of its sources")->required();
    build->add_flag("--phone", commandLine.phone, "And the package for a phone");
    build->footer("docs/extensions.md teaches more.");
    return build;
}

CLI::App *addHelp(CLI::App &program, CommandLine &commandLine) {
    auto *help =
        program.add_subcommand("help", "Tell about a call, an option, an event, a device, a setting");
    help->add_option("NAME", commandLine.help.words, "Of what; without it, what there is");
    help->add_flag("--markdown", commandLine.help.page, "All of it, as docs/reference.md has it");
    return help;
}

std::vector<std::string> commandNames(const CLI::App &program) {
    std::vector<std::string> names;
    for (const auto *command : program.get_subcommands([](const CLI::App *) { return true; }))
        names.push_back(command->get_name());
    return names;
}

std::string commandHelp(const CLI::App &program, const std::string &name) {
    for (const auto &known : commandNames(program))
        if (known == name) return program.get_subcommand(name)->help();
    return "";
}

std::vector<std::string> optionNames(const CLI::App &command) {
    std::vector<std::string> names;
    for (const auto *option : command.get_options())
        for (const auto &name : option->get_lnames()) names.push_back("--" + name);
    return names;
}

// A call that the program does not understand, in words that say what to do about it.
std::string explain(const CLI::App &program, const std::vector<std::string> &call,
                    const CLI::ParseError &error) {
    auto chosen = program.get_subcommands();
    std::string command = chosen.empty() ? "" : chosen.front()->get_name();
    auto words = program.remaining(true);
    std::string text = error.what();
    // An unknown option is what is wrong first, for its value is taken for something else.
    if (!chosen.empty())
        if (auto option = sim::unknownOption(call, optionNames(*chosen.front()))) words = {*option};
    if (chosen.empty() && !words.empty() && words.front().starts_with("-"))
        text = sim::unexpectedWords("pendix-sim", words, optionNames(program));
    else if (chosen.empty())
        text = words.empty() ? "a command is missing"
                             : sim::unknownCommand(words.front(), commandNames(program));
    else if (!words.empty())
        text = sim::unexpectedWords(command, words, optionNames(*chosen.front()));
    return "pendix-sim: " + text + "\n\"pendix-sim " + (command.empty() ? "" : command + " ") +
           "--help\" tells what can be said.\n";
}

bool isSeparator(const char *argument) { return std::string_view(argument) == "--"; }

sim::Outcome run(CLI::App &program, int count, char **arguments) {
    CommandLine commandLine;
    // What follows "--" is the script's own.
    char **end = arguments + count;
    char **own = std::find_if(arguments, end, isSeparator);
    if (own != end) commandLine.script.arguments.assign(own + 1, end);

    program.require_subcommand(1);
    program.set_version_flag("--version", "pendix-sim " PENDIX_VERSION);
    program.footer(kExamples);
    auto *run = addRun(program, commandLine);
    auto *live = addLive(program, commandLine, "live", "Show a device as a web page on this machine");
    auto *record = addLive(program, commandLine, "record", "The same, and write what was done as a script");
    record->add_option("--script", commandLine.live.script, "Where to write it")
        ->required()
        ->type_name("FILE.lua");
    auto *shot = addShot(program, commandLine);
    auto *monkey = addMonkey(program, commandLine);
    auto *made = addNew(program, commandLine);
    auto *build = addBuild(program, commandLine);
    program.add_subcommand("profiles", "List the devices and their system versions");
    auto *help = addHelp(program, commandLine);
    program.parse(static_cast<int>(own - arguments), arguments);

    if (made->parsed()) sim::becomeExtensionTool({"new", commandLine.extension});
    if (build->parsed()) {
        std::vector<std::string> arguments{"build", commandLine.extension};
        if (commandLine.phone) arguments.push_back("--phone");
        sim::becomeExtensionTool(arguments);
    }
    if (run->parsed()) return runScript(commandLine);
    if (live->parsed() || record->parsed()) return runLive(commandLine);
    if (shot->parsed()) return runShot(commandLine);
    if (monkey->parsed()) return runMonkey(commandLine);
    std::cout << (help->parsed() ? sim::help(
                                       commandLine.help, sim::findInstallation(),
                                       [&](const auto &name) { return commandHelp(program, name); },
                                       commandNames(program))
                                 : sim::profileTable());
    return sim::Outcome::passed;
}

} // namespace

int main(int count, char **arguments) {
    CLI::App program("A simulated home screen, driven by scripts or by hand.");
    try {
        return static_cast<int>(run(program, count, arguments));
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) return program.exit(error); // --help, --version
        char **end = std::find_if(arguments, arguments + count, isSeparator);
        std::cerr << explain(program, {arguments + 1, end}, error);
        return static_cast<int>(sim::Outcome::refused);
    } catch (const std::exception &error) {
        std::cerr << "pendix-sim: " << error.what() << '\n';
        return static_cast<int>(sim::Outcome::refused);
    }
}
