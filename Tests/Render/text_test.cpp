// Text takes the room that it says, breaks where it should, and lies where its alignment puts it. A
// regression shows as labels that are cut off after being sized to fit, or as names that drift out of the
// middle.
#include "pictures.hpp"

#include "Render/Text/TextLayout.hpp"

#include <cmath>

namespace render {

namespace {

const char *const sentence = "The quick brown fox jumps over the lazy dog";

TextStyle style(LineBreak mode, int maxLines, double size = 16, Face face = Face::regular) {
    return {face, size, Alignment::left, mode, maxLines};
}

int lineCount(const std::string &text, const TextStyle &style, double width) {
    return static_cast<int>(
        std::lround(measureText(text, style, width).height / fontMetrics(style.face, style.size).lineHeight));
}

// What is really shown in a line, as text.
std::string shown(const std::string &text, const TextStyle &style, double width, size_t line = 0) {
    auto layout = layOut(text, style, width);
    PangoLayoutLine *last = layout->lines.at(line).line;
    std::string whole = pango_layout_get_text(layout->lines[line].layout.get());
    std::string part = whole.substr(last->start_index, last->length);
    return pango_layout_is_ellipsized(layout->lines[line].layout.get()) ? part + " (cut)" : part;
}

constexpr LineBreak modes[] = {LineBreak::wordWrap,     LineBreak::charWrap,     LineBreak::clip,
                               LineBreak::truncateHead, LineBreak::truncateTail, LineBreak::truncateMiddle};

bool isWhole(double value) { return std::abs(value * 1000 - std::round(value * 1000)) < 1e-6; }

} // namespace

TEST(TextSize, OfNothingIsNothing) {
    EXPECT_EQ(measureText("", style(LineBreak::wordWrap, 0), 100), Size{});
    EXPECT_EQ(measureText("text", style(LineBreak::wordWrap, 0, 0), 100), Size{});
}

TEST(TextSize, IsInThousandthsAndGrowsWithTheLetters) {
    for (Face face : kFaces)
        for (double size : {9.0, 12.5, 17.0, 80.0}) {
            TextStyle plain = style(LineBreak::clip, 1, size, face);
            Size whole = measureText(sentence, plain, 0), part = measureText("The quick", plain, 0);
            EXPECT_TRUE(isWhole(whole.width) && isWhole(whole.height));
            EXPECT_LT(part.width, whole.width);
            EXPECT_NEAR(whole.height, size * 1.193, 0.001);
            TextStyle twice = style(LineBreak::clip, 1, 2 * size, face);
            EXPECT_NEAR(measureText(sentence, twice, 0).width, 2 * whole.width, whole.width * 0.002)
                << "no hinting";
        }
}

TEST(TextSize, TellsTheFacesApart) {
    auto width = [](Face face) {
        return measureText(sentence, style(LineBreak::clip, 1, 40, face), 0).width;
    };
    EXPECT_NE(width(Face::ultraLight), width(Face::light));
    EXPECT_NE(width(Face::light), width(Face::regular));
    EXPECT_LT(width(Face::regular), width(Face::bold));
}

TEST(TextSize, OfDigitsIsTheSameForAll) {
    for (char digit = '0'; digit <= '9'; digit++)
        EXPECT_EQ(measureText(std::string(4, digit), style(LineBreak::clip, 1), 0),
                  measureText("0000", style(LineBreak::clip, 1), 0))
            << digit;
}

TEST(TextSize, FitsTheWidthItIsGiven) {
    for (LineBreak mode : modes)
        for (int maxLines : {0, 1, 2, 4})
            for (double width : {40.0, 77.3, 150.0, 1000.0}) {
                Size size = measureText(sentence, style(mode, maxLines), width);
                if (mode != LineBreak::clip) EXPECT_LE(size.width, width) << static_cast<int>(mode);
                if (maxLines) EXPECT_LE(lineCount(sentence, style(mode, maxLines), width), maxLines);
            }
}

TEST(TextSize, HoldsTheTextThatWasMeasured) {
    // Sizing to fit and then setting in that size must change nothing.
    for (LineBreak mode : modes)
        for (double size : {11.0, 12.0, 16.3, 17.0, 20.0}) {
            Size fitting = measureText(sentence, style(mode, 0, size), 120);
            EXPECT_EQ(measureText(sentence, style(mode, 0, size), fitting.width), fitting);
            Size single = measureText(sentence, style(mode, 1, size), 0);
            EXPECT_EQ(measureText(sentence, style(mode, 1, size), single.width), single);
            EXPECT_EQ(shown(sentence, style(mode, 1, size), single.width), sentence) << "cut off";
        }
}

TEST(LineBreaks, FallWhereTheModeSays) {
    struct {
        const char *name, *text;
        LineBreak mode;
        int maxLines;
        const char *room; // the text that just fits
        std::vector<std::string> lines;
    } cases[] = {
        {"between words", "one two three", LineBreak::wordWrap, 0, "one two t", {"one two ", "three"}},
        {"within a word", "wwwwwwwww", LineBreak::wordWrap, 0, "wwwww", {"wwwww", "wwww"}},
        {"anywhere", "one two three", LineBreak::charWrap, 0, "one two t", {"one two t", "hree"}},
        {"nowhere", "one two three", LineBreak::clip, 0, "one", {"one two three"}},
        {"at line ends", "one\ntwo", LineBreak::clip, 0, "one two", {"one", "two"}},
        {"no more than allowed", "one two three", LineBreak::wordWrap, 1, "one two", {"one two "}},
        {"a short text is not cut", "one", LineBreak::truncateTail, 1, "one", {"one"}},
        {"a long one is", "one two", LineBreak::truncateTail, 1, "one t", {"one two (cut)"}},
        {"on the last line",
         "a one two three",
         LineBreak::truncateTail,
         2,
         "one tw",
         {"a one ", "two three (cut)"}},
        {"in its middle",
         "a one two three",
         LineBreak::truncateMiddle,
         2,
         "one tw",
         {"a one ", "two three (cut)"}},
        {"where more lines follow", "one\ntwo", LineBreak::truncateTail, 1, "one two", {"one\u2026"}},
        {"or in their middle", "one\ntwo", LineBreak::truncateMiddle, 1, "one two", {"one two"}},
        {"any number", "one two three", LineBreak::truncateTail, 0, "three", {"one ", "two ", "three"}},
    };
    for (const auto &item : cases) {
        TextStyle given = style(item.mode, item.maxLines);
        double width = measureText(item.room, style(LineBreak::clip, 1), 0).width;
        std::vector<std::string> lines;
        for (int i = 0; i < lineCount(item.text, given, width); i++)
            lines.push_back(shown(item.text, given, width, i));
        EXPECT_EQ(lines, item.lines) << item.name;
    }
}

TEST(LineBreaks, BytesThatAreNoTextAreShownAsSigns) {
    EXPECT_GT(measureText("a\xff\xfe", style(LineBreak::clip, 1), 0).width,
              measureText("a", style(LineBreak::clip, 1), 0).width);
}

TEST(Alignment, PutsTheInkWhereItSays) {
    for (double scale : {1.0, 2.0, 3.0})
        for (Face face : kFaces) {
            TextStyle given = style(LineBreak::clip, 1, 20, face);
            auto ink = [&](Alignment alignment) {
                given.alignment = alignment;
                return inkOf(draw(screen(
                    120, 40, {drawn({0, 0, 120, 40}, line("HOIOH", {10, 0, 100, 40}, given))}, scale)));
            };
            PixelRect left = ink(Alignment::left), center = ink(Alignment::center),
                      right = ink(Alignment::right);
            double inset = left.x - 10 * scale; // the first letter's own margin, which the last one has too
            EXPECT_GE(inset, -1);
            EXPECT_LE(inset, 3 * scale);
            EXPECT_NEAR(110 * scale - (right.x + right.width), inset, 1.5);
            EXPECT_NEAR(center.x, 120 * scale - (center.x + center.width), 1.5);
            EXPECT_EQ(left.y, center.y);
            double above = center.y, below = 40 * scale - (center.y + center.height);
            EXPECT_NEAR(above, below, 1 + 0.06 * 20 * scale) << "capitals stand in the middle";
        }
}

TEST(Text, StaysInItsBox) {
    struct {
        const char *name;
        LineBreak mode;
        int maxLines;
        double height;
    } cases[] = {{"clipped", LineBreak::clip, 1, 20},
                 {"cut", LineBreak::truncateTail, 1, 20},
                 {"two lines", LineBreak::wordWrap, 0, 40},
                 {"a low box", LineBreak::truncateMiddle, 1, 8},
                 {"many lines", LineBreak::truncateTail, 0, 45}};
    for (const auto &item : cases) {
        Rect box = {20, 20, 60, item.height};
        PixelRect ink = inkOf(draw(screen(
            200, 100, {drawn({0, 0, 200, 100}, line(sentence, box, style(item.mode, item.maxLines)))}, 2)));
        EXPECT_FALSE(ink.empty()) << item.name;
        EXPECT_GE(ink.x, 40) << item.name;
        EXPECT_LE(ink.x + ink.width, 160) << item.name;
        EXPECT_GE(ink.y, 40) << item.name;
        EXPECT_LE(ink.y + ink.height, 40 + 2 * item.height) << item.name;
    }
}

TEST(Text, ShowsOnlyAsManyLinesAsFit) {
    auto height = [](double box) {
        TextRun run = line("a b c d", {0, 0, 12, box}, style(LineBreak::truncateTail, 0));
        return inkOf(draw(screen(20, 100, {drawn({0, 0, 20, 100}, run)}))).height;
    };
    double lineHeight = fontMetrics(Face::regular, 16).lineHeight;
    EXPECT_LT(height(1.9 * lineHeight), lineHeight);
    EXPECT_GT(height(2 * lineHeight), lineHeight);
    EXPECT_GT(height(4 * lineHeight), 3 * lineHeight);
}

TEST(Text, MovesSmoothlyAndKeepsItsShape) {
    // The same letters a quarter of a pixel further: as much ink, a little more to the right.
    auto moment = [](double shift) {
        Node node = drawn({0, 0, 60, 20}, line("shift", {0, 0, 60, 20}));
        node.transform.tx = 5 + shift;
        Bitmap bitmap = draw(screen(80, 20, {node}));
        double ink = 0, sum = 0;
        for (int y = 0; y < 20; y++)
            for (int x = 0; x < 80; x++) {
                double level = pixel(bitmap, x, y) & 0xff;
                ink += level, sum += level * x;
            }
        return std::pair(ink, sum / ink);
    };
    auto [ink, middle] = moment(0);
    for (double shift : {0.25, 0.5, 0.75, 1.0}) {
        EXPECT_NEAR(moment(shift).first, ink, ink * 0.02);
        EXPECT_NEAR(moment(shift).second, middle + shift, 0.05);
    }
}

TEST(Text, TakesColourAndPattern) {
    TextRun run = line("H", {0, 0, 60, 60}, style(LineBreak::clip, 1, 60), {0, 0, 1, 0.5});
    uint32_t strongest = 0xff000000;
    for (uint32_t pixel : draw(screen(60, 60, {drawn({0, 0, 60, 60}, run)})).pixels)
        strongest = std::max(strongest, pixel);
    EXPECT_EQ(hex(strongest), "ff000080");

    run.pattern = Pattern{pixelArt({"rg"})};
    Bitmap bitmap = draw(screen(60, 60, {drawn({0, 0, 60, 60}, run)}));
    uint32_t columns[2] = {0, 0}; // all bits that are set in the even and in the odd ones
    for (size_t i = 0; i < bitmap.pixels.size(); i++) columns[i % 2] |= bitmap.pixels[i];
    EXPECT_EQ(hex(columns[0]), "ffff0000");
    EXPECT_EQ(hex(columns[1]), "ff00ff00");
}

TEST(Text, ThatIsCutIsCentredByWhatIsLeft) {
    for (LineBreak mode : {LineBreak::truncateTail, LineBreak::truncateMiddle}) {
        TextStyle given = style(mode, 1);
        given.alignment = Alignment::center;
        for (double width : {77.0, 90.0, 101.0, 108.0}) {
            Rect box = {0, 0, width, 20};
            PixelRect ink =
                inkOf(draw(screen(width, 20, {drawn(box, line("HHHHHHHHHHHHHHH", box, given))}, 2)));
            EXPECT_NEAR(ink.x, 2 * width - (ink.x + ink.width), 2.5) << width;
        }
    }
}

} // namespace render
