#include "Shot.hpp"

#include "LuaText.hpp"
#include "Runtime/Values/Json.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "Supervisor/Machine/OutputFile.hpp"

#include <iostream>

namespace sim {

namespace {

std::pair<std::string, std::string> split(const std::string &text, const char *form) {
    size_t at = text.find('=');
    if (at == std::string::npos || at == 0) throw CallError("'" + text + "' should look like " + form);
    return {text.substr(0, at), text.substr(at + 1)};
}

} // namespace

void takeShot(const DeviceSetup &setup, const ShotOptions &options) {
    pictureName(options.file.string());
    LivePhone phone(setup, options.boot);
    for (const auto &statement : options.statements) phone.run(statement);
    phone.device().advance(fromSeconds(options.wait));
    writeOutput(options.file, render::encodePng(phone.device().picture()));
    for (const auto &warning : phone.device().events().ofKind("warning"))
        std::cerr << "warning: " << warning["text"].string() << '\n';
}

std::string badgeStatement(const std::string &text) {
    auto [application, number] = split(text, "com.apple.mobilemail=3");
    if (number.empty() || number.size() > 9 || number.find_first_not_of("0123456789") != std::string::npos)
        throw CallError("a badge is a number, not '" + number + "'");
    return luaCall("badge", {application, std::stol(number)});
}

std::pair<std::string, Value> settingFrom(const std::string &text) {
    auto [key, value] = split(text, "tint=cyan");
    try {
        Value plain = parseJson(value);
        if (plain.isBool() || plain.isNumber()) return {key, plain};
    } catch (const ValueError &) {
        // Then it is a text.
    }
    return {key, value};
}

} // namespace sim
