// Holds the screen against a picture that was agreed on.
#include "Conversion.hpp"
#include "Library.hpp"
#include "Phone.hpp"
#include "Record.hpp"
#include "Supervisor/Boot/Package.hpp"
#include "Supervisor/Machine/OutputFile.hpp"
#include "Supervisor/Machine/PictureComparison.hpp"
#include "Supervisor/Text/Readable.hpp"

#include <stdexcept>

namespace sim {

namespace {

namespace fs = std::filesystem;

struct Allowance {
    int64_t tolerance = 0, pixels = 0;
};

Allowance allowance(lua_State *lua) {
    Allowance result;
    if (lua_isnoneornil(lua, 2)) return result;
    Value options = toValue(lua, 2);
    if (!options.isObject())
        throw std::runtime_error("the second argument is a table {tolerance =, max_pixels =}");
    for (const auto &[name, value] : options.object()) {
        checkField(Record::allowance, name);
        if (!value.isInteger() || value.integer() < 0)
            throw std::runtime_error("'" + name + "' must be a whole number from 0 on, not " +
                                     readable(value));
        (name == "tolerance" ? result.tolerance : result.pixels) = value.integer();
    }
    return result;
}

std::string size(const render::Bitmap &picture) {
    return std::to_string(picture.width) + " x " + std::to_string(picture.height);
}

// The pictures that tell what is wrong, by what each shows.
using Pictures = std::vector<std::pair<const char *, std::string>>;

struct Judgement {
    std::string problem; // empty: the picture is as agreed
    Pictures pictures;
};

Pictures both(const render::Bitmap &reference, const render::Bitmap &picture) {
    return {{"reference", render::encodePng(reference)},
            {"result", render::encodePng(picture)},
            {"blink", blinkPicture(reference, picture)}};
}

Judgement judge(const fs::path &agreed, const Allowance &allowed, const render::Bitmap &picture) {
    if (!fs::exists(agreed))
        return {"there is no " + agreed.string(), {{"result", render::encodePng(picture)}}};
    auto reference = render::decodePng(readFile(agreed), picture.scale);
    if (!reference) return {agreed.string() + " is no picture", {{"result", render::encodePng(picture)}}};
    if (size(*reference) != size(picture))
        return {size(picture) + " pixels, wanted " + size(*reference), both(*reference, picture)};
    int tolerance = static_cast<int>(std::min<int64_t>(allowed.tolerance, 255));
    auto difference = comparePictures(*reference, picture, tolerance);
    if (difference.pixels <= static_cast<size_t>(allowed.pixels)) return {};
    Judgement result = {std::to_string(difference.pixels) + " pixels differ, wanted at most " +
                            std::to_string(allowed.pixels) + "; the largest difference of a channel is " +
                            std::to_string(difference.largest),
                        both(*reference, picture)};
    result.pictures.emplace_back("difference", render::encodePng(difference.map));
    return result;
}

// Writes them as PATH-reference.png and so on; gives the list of their paths.
std::string leave(const fs::path &path, const Pictures &pictures) {
    std::string list;
    for (const auto &[what, bytes] : pictures) {
        fs::path file = path.string() + "-" + what + ".png";
        writeOutput(file, bytes);
        list += "\n    " + file.string();
    }
    return list;
}

std::string agreedName(lua_State *lua) {
    std::string name = pictureName(text(lua, 1, "the picture's name"));
    if (name.empty() || fs::path(name).is_absolute() || *fs::path(name).lexically_normal().begin() == "..")
        throw std::runtime_error("a picture's name must lead into the folder of pictures, not to '" + name +
                                 "'");
    return name;
}

int expectPicture(lua_State *lua, Script &script) {
    const ScriptOptions &options = script.options();
    std::string name = agreedName(lua);
    Allowance allowed = allowance(lua);
    if (!script.lastPhone())
        throw std::runtime_error("there is no device yet whose screen could be compared");
    render::Bitmap picture = script.lastPhone()->device.picture();
    fs::path agreed = options.file.parent_path() / "pictures" / (name + ".png");
    auto [problem, pictures] = judge(agreed, allowed, picture);
    if (!problem.empty() && options.update) {
        writeOutput(agreed, render::encodePng(picture));
        problem.clear();
    }
    if (problem.empty())
        script.hold();
    else
        script.fail(callPlace(lua), "picture '" + name + "'\n    " + problem +
                                        leave(options.pictures / name, pictures) +
                                        "\n    \"pendix-sim test " + options.file.string() +
                                        " --update\" agrees to what is there now");
    lua_pushboolean(lua, problem.empty());
    return 1;
}

} // namespace

std::span<const Global> pictureGlobals() {
    static const Global globals[] = {
        {"expect_picture",
         bound<expectPicture>,
         {{"name", "of the file, without \".png\""},
          {"[allowance]", "a table; `help allowance` lists its fields"}},
         "Holds when the screen of the device or pane that was opened last is "
         "pictures/NAME.png beside the script. Otherwise it leaves "
         "NAME-reference, -result, -difference and -blink (an animated one) in the "
         "folder for pictures. Only `pendix-sim test --update` writes what is "
         "agreed on."}};
    return globals;
}

} // namespace sim
