#include "Conversion.hpp"
#include "Phone.hpp"
#include "Record.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "Supervisor/Machine/EventKinds.hpp"
#include "Supervisor/Machine/FilmStrip.hpp"
#include "Supervisor/Machine/OutputFile.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

int log(lua_State *lua, Phone &phone, Script &) {
    push(lua, phone.device.events().log());
    return 1;
}

int events(lua_State *lua, Phone &phone, Script &) {
    std::string kind = lua_isnoneornil(lua, 2) ? "" : text(lua, 2, "the kind of event");
    if (!lua_isnoneornil(lua, 2) && !std::ranges::count(eventKindNames(), kind))
        throw std::runtime_error("there is no event of kind '" + kind + "'" +
                                 suggestion(kind, eventKindNames()));
    lua_newtable(lua);
    lua_Integer place = 0;
    phone.device.events().visit(kind, [&](const Value &event) {
        pushRecord(lua, Record::event, event);
        lua_rawseti(lua, -2, ++place);
    });
    return 1;
}

int counters(lua_State *lua, Phone &phone, Script &) {
    pushRecord(lua, Record::counters, phone.device.ask("counters"));
    return 1;
}

int resetCounters(lua_State *, Phone &phone, Script &) {
    phone.device.act("reset_counters");
    return 0;
}

// Writes DIR/NAME.png, makes the folders that it lies in, and pushes its path.
int save(lua_State *lua, const Script &script, const std::string &name, const render::Bitmap &picture) {
    std::filesystem::path relative = pictureName(name) + ".png";
    if (name.empty() || relative.is_absolute() || *relative.lexically_normal().begin() == "..")
        throw std::runtime_error("a picture's name must lead into the folder of pictures, not to '" + name +
                                 "'");
    std::filesystem::path path = script.options().pictures / relative;
    try {
        writeOutput(path, render::encodePng(picture));
    } catch (const std::runtime_error &error) {
        throw std::runtime_error(std::string(error.what()) + "; --out DIR chooses another folder");
    }
    lua_pushstring(lua, path.c_str());
    return 1;
}

int shot(lua_State *lua, Phone &phone, Script &script) {
    return save(lua, script, text(lua, 2, "the picture's name"), phone.device.picture());
}

// The first frame shows the present, the last the end.
int filmstrip(lua_State *lua, Phone &phone, Script &script) {
    std::string name = text(lua, 2, "the picture's name");
    double seconds = duration(lua, 3);
    int64_t count = wholeNumber(lua, 4, "the number of frames");
    constexpr int64_t kMost = 100;
    if (count < 1 || count > kMost)
        throw std::runtime_error("a film strip has 1 to " + std::to_string(kMost) + " frames");
    int64_t start = phone.device.now(), whole = fromSeconds(seconds);
    std::vector<render::Bitmap> frames;
    for (int64_t i = 0; i < count; ++i) {
        int64_t due = count > 1 ? start + whole * i / (count - 1) : start;
        if (due > phone.device.now()) phone.device.advance(due - phone.device.now());
        frames.push_back(phone.device.picture());
    }
    if (start + whole > phone.device.now()) phone.device.advance(start + whole - phone.device.now());
    return save(lua, script, name, filmStrip(frames));
}

} // namespace

std::span<const Method> observingMethods() {
    static const Described name = {"name", "of the file, without \".png\"; may lead into a folder"};
    static const Method methods[] = {
        {"log", log, {}, "The lines of the system log since `boot`, as a list."},
        {"events",
         events,
         {{"[kind]", "only events of this kind; `help events` lists them"}},
         "What happened since `boot`, as a list of tables {t =, kind =, …}."},
        {"counters", counters, {}, "What the process counts, as a table."},
        {"reset_counters", resetCounters, {}, "Counts `settings_reads` and `settings_writes` from 0 again."},
        {"shot",
         shot,
         {name},
         "Writes the screen as a picture of the device's own pixels into the folder of "
         "pictures and gives its path."},
        {"filmstrip",
         filmstrip,
         {name, {"seconds", "how long to watch"}, {"frames", "how many, 1 to 100"}},
         "Lets that time pass and writes one picture of so many moments side by side, the first at the "
         "start, the "
         "last at the end. Gives its path."}};
    return methods;
}

} // namespace sim
