// The one unit that knows the library by which calls are read.
#include "Command.hpp"
#include "Mistakes.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

namespace sim {

namespace {

constexpr const char *kExamples =
    "A first look:\n"
    "  pendix-sim live                            a device in the browser\n"
    "  pendix-sim run FILE.lua --out pictures     a script, and the pictures it takes\n"
    "  pendix-sim shot home.png --device \"iPad 2\" --ios 7.1\n"
    "\"pendix-sim COMMAND --help\" teaches each command, \"pendix-sim help\" the calls of scripts.";

CLI::Validator oneOrMore() {
    auto check = [](const std::string &text) {
        int64_t number = 0;
        bool good = CLI::detail::lexical_cast(text, number) && number >= 1;
        return good ? "" : "must be a whole number of 1 or more, not " + text;
    };
    return {check, "1 or more"};
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
        if (auto option = unknownOption(call, optionNames(*chosen.front()))) words = {*option};
    if (chosen.empty() && !words.empty() && words.front().starts_with("-"))
        text = unexpectedWords("pendix-sim", words, optionNames(program));
    else if (chosen.empty())
        text = words.empty() ? "a command is missing" : unknownCommand(words.front(), commandNames(program));
    else if (!words.empty())
        text = unexpectedWords(command, words, optionNames(*chosen.front()));
    return "pendix-sim: " + text + "\n\"pendix-sim " + (command.empty() ? "" : command + " ") +
           "--help\" tells what can be said.\n";
}

bool isSeparator(const char *argument) { return std::string_view(argument) == "--"; }

} // namespace

template <typename Value>
CLI::Option *Options::add(const OptionRow &row, Value &value) {
    auto *option = command_.add_option(row.names, value, row.about.text())->required(row.required);
    if (row.value) option->type_name(row.value);
    return option;
}

void Options::flag(const OptionRow &row, bool &value, const char *environment) {
    auto *option = command_.add_flag(row.names, value, row.about.text());
    if (environment) option->envname(environment);
}

void Options::text(const OptionRow &row, std::string &value) { add(row, value); }

void Options::path(const OptionRow &row, std::filesystem::path &value) {
    auto *option = add(row, value);
    if (!value.empty()) option->capture_default_str();
}

void Options::number(const OptionRow &row, int64_t &value) { add(row, value)->capture_default_str(); }

void Options::port(const OptionRow &row, uint16_t &value) { add(row, value)->capture_default_str(); }

void Options::real(const OptionRow &row, double &value, double least, double most) {
    add(row, value)->check(CLI::Range(least, most))->capture_default_str();
}

void Options::count(const OptionRow &row, int64_t &value) {
    add(row, value)->capture_default_str()->check(oneOrMore());
}

void Options::file(const OptionRow &row, std::filesystem::path &value) {
    add(row, value)->check(CLI::ExistingFile);
}

void Options::places(const OptionRow &row, std::vector<std::filesystem::path> &values) {
    add(row, values)->check(CLI::ExistingPath);
}

void Options::repeatable(const OptionRow &row, std::vector<std::string> &values) {
    add(row, values)->expected(1)->take_all();
}

void Options::words(const OptionRow &row, std::vector<std::string> &values) { add(row, values); }

void Options::footer(const std::string &text) { command_.footer(text); }

Outcome runCommand(std::span<const CommandRow> rows, int count, char **arguments) {
    CLI::App app("A simulated home screen, driven by scripts or by hand.");
    // What follows "--" is the script's own.
    char **end = arguments + count;
    char **own = std::find_if(arguments, end, isSeparator);
    try {
        app.require_subcommand(1);
        app.set_version_flag("--version", "pendix-sim " PENDIX_VERSION);
        app.footer(kExamples);
        std::vector<std::unique_ptr<Command>> commands;
        for (const auto &row : rows) {
            commands.push_back(row.make());
            Options options(*app.add_subcommand(row.name, row.about.text()));
            commands.back()->describe(options);
        }
        Program program{.commands = commandNames(app),
                        .helpText = [&](const auto &name) { return commandHelp(app, name); },
                        .arguments =
                            own == end ? std::vector<std::string>() : std::vector<std::string>(own + 1, end)};
        app.parse(static_cast<int>(own - arguments), arguments);
        size_t chosen = 0;
        while (!app.got_subcommand(rows[chosen].name)) ++chosen;
        return commands[chosen]->run(program);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) return static_cast<Outcome>(app.exit(error)); // --help, --version
        std::cerr << explain(app, {arguments + 1, own}, error);
    } catch (const std::exception &error) {
        std::cerr << "pendix-sim: " << error.what() << '\n';
    }
    return Outcome::refused;
}

} // namespace sim
