// Pictures do not depend on the machine: the fonts are those of one folder and no others, and another process
// draws the same bytes. A regression shows as goldens that pass on one machine only.
#include "pictures.hpp"

#include "Render/Basics/Cache.hpp"
#include "Render/Drawing/PathParts.hpp"
#include "Render/Text/Fonts.hpp"
#include "Render/Text/TextLayout.hpp"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace render {

namespace {

std::string write(const std::string &name, const std::string &content) {
    std::string file = testing::TempDir() + "/" + name;
    std::ofstream(file) << content;
    return file;
}

std::string errorOf(const std::string &configuration) {
    try {
        openFontMap(configuration, Face::light);
    } catch (const std::runtime_error &error) {
        return error.what();
    }
    return "no error";
}

Scene sample() {
    Node ground = holder({0, 0, 150, 100});
    ground.gradient = Gradient{{red, blue}, {0, 1}, {0, 0}, {1, 1}};
    Node panel = holder({10.3, 10, 120, 80});
    panel.backdrop = Backdrop{10, 1.8, 0.5, 0.1, Rgba{0, 0, 0, 0.3}};
    panel.shadow = Shadow{white, 1, 13, {}, Path::rect({0, 0, 120, 80})};
    panel.cornerRadius = 10;
    for (Face face : kFaces) {
        TextStyle style;
        style.face = face;
        double y = 5 + 25.0 * static_cast<int>(face);
        panel.drawings.push_back(line("Some text to set", {5, y, 80, 22}, style));
    }
    return screen(150, 100, {ground, panel}, 2);
}

constexpr const char *asChild = "RENDER_TEST_PICTURE";

std::string pictureOfAnotherProcess() {
    std::string file = testing::TempDir() + "/picture-of-another-process.png";
    std::filesystem::remove(file);
    std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::string command = std::string(asChild) + "='" + file + "' '" + program +
                          "' --gtest_filter=Machine.DrawsTheSameBytesInEveryProcess >/dev/null";
    if (std::system(command.c_str()) != 0) return "the other process failed";
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST(Machine, DrawsTheSameBytesInEveryProcess) {
    std::string picture = encodePng(draw(sample()));
    if (const char *file = std::getenv(asChild)) {
        std::ofstream(file, std::ios::binary) << picture;
        return;
    }
    EXPECT_TRUE(picture == pictureOfAnotherProcess());
}

TEST(Machine, SaysWhichPackageIsMissing) {
    std::string empty = write("fonts-elsewhere.conf", "<fontconfig><dir>/nowhere</dir></fontconfig>");
    EXPECT_NE(errorOf(empty).find("fonts-inter"), std::string::npos) << errorOf(empty);
    EXPECT_NE(errorOf(empty).find("/nowhere/Inter-Light.otf"), std::string::npos) << errorOf(empty);
    EXPECT_NE(errorOf(write("fonts-without.conf", "<fontconfig/>")).find("names no folder"),
              std::string::npos);
    EXPECT_NE(errorOf("/nowhere/fonts.conf").find("cannot read"), std::string::npos);
}

TEST(Machine, LendsNoLettersFromItsOtherFonts) {
    // A Hebrew letter: most machines have a font with it, the faces of the simulated device do not.
    for (Face face : kFaces) {
        TextStyle style;
        style.face = face;
        auto unknown = [&](const char *text) {
            return pango_layout_get_unknown_glyphs_count(layOut(text, style, 0)->lines[0].layout.get());
        };
        EXPECT_EQ(unknown("\u05d0"), 1);
        EXPECT_EQ(unknown("abc \u00e8 \u00fc \u2026"), 0);
    }
}

TEST(Machine, SetsTextInDrawingsInItsOwnFont) {
    auto text = [](const std::string &family) {
        return drawSvg("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 20'><text x='2' y='15' "
                       "font-family='" +
                           family + "'>abc</text></svg>",
                       80, 40, 1);
    };
    BitmapRef own = text("Inter");
    EXPECT_FALSE(inkOf(*own, 0).empty());
    EXPECT_EQ(*text("DejaVu Sans"), *own);
    EXPECT_EQ(*text("serif"), *own);
}

TEST(Cache, ForgetsWhatWasNotAskedForTheLongest) {
    Cache<int> cache(3);
    int made = 0;
    auto get = [&](int key) {
        return cache.get(
            CacheKey().add(key), [&] { return made++, key * 10; }, [](int) { return 1; });
    };
    for (int key : {1, 2, 3, 1, 4}) EXPECT_EQ(get(key), key * 10);
    EXPECT_EQ(made, 4);
    EXPECT_EQ(cache.size(), 3u);
    get(1), get(3), get(4);
    EXPECT_EQ(made, 4);
    get(2);
    EXPECT_EQ(made, 5);
}

TEST(PartOfAPath, IsMeasuredAlongIt) {
    using Verb = PathElement::Verb;
    Path square = Path::rect({0, 0, 10, 10});
    Path twoLines = {
        {{Verb::move, {{0, 0}}}, {Verb::line, {{10, 0}}}, {Verb::move, {{0, 50}}}, {Verb::line, {{30, 50}}}}};
    struct {
        const char *name;
        const Path &path;
        double start, end;
        Rect bounds;
    } cases[] = {{"the first side", square, 0, 0.25, {0, 0, 10, 0}},
                 {"the closing side", square, 0.75, 1, {0, 0, 0, 10}},
                 {"round a corner", square, 0.125, 0.375, {5, 0, 5, 5}},
                 {"the second of two lines", twoLines, 0.25, 1, {0, 50, 30, 0}},
                 {"parts of both", twoLines, 0.125, 0.625, {0, 0, 15, 50}}};
    for (const auto &item : cases)
        EXPECT_EQ(boundsOf(partOf(item.path, item.start, item.end)), item.bounds) << item.name;
    Rect half = boundsOf(partOf(Path::oval({0, 0, 20, 20}), 0, 0.5));
    EXPECT_NEAR(half.x, 10, 0.1);
    EXPECT_NEAR(half.width, 10, 0.1);
    EXPECT_NEAR(half.height, 20, 0.1);
    EXPECT_TRUE(partOf(square, 0.5, 0.5).elements.empty());
    EXPECT_TRUE(partOf(Path(), 0, 1).elements.empty());
}

} // namespace render
