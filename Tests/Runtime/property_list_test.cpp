// Property lists: every form of a good file is read as the same values, what is written reads back the same,
// here and with another reader, and a bad file gives nothing and says in which line it is bad.
#include "PropertyListSamples.hpp"
#include "Runtime/Values/Json.hpp"
#include "Runtime/Values/PropertyList.hpp"

#include <gmock/gmock.h>

using sim::Array;
using sim::Data;
using sim::Date;
using sim::Object;
using sim::parsePropertyList;
using sim::Value;

namespace {

struct Good {
    std::string text;
    Value value;
};

struct Bad {
    std::string text;
    std::string error; // a part of it
};

std::string document(const std::string &content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + content + "\n</plist>\n";
}

std::string utf16(const std::u16string &text, bool bigEndian) {
    std::string bytes;
    for (char16_t unit : u"\ufeff" + text) {
        bytes.push_back(static_cast<char>(bigEndian ? unit >> 8 : unit));
        bytes.push_back(static_cast<char>(bigEndian ? unit : unit >> 8));
    }
    return bytes;
}

void expectRead(const std::vector<Good> &cases) {
    for (const auto &[text, value] : cases) {
        std::string error;
        auto read = parsePropertyList(text, &error);
        ASSERT_TRUE(read) << text << "\n" << error;
        EXPECT_TRUE(*read == value) << text;
    }
}

void expectRefused(const std::vector<Bad> &cases) {
    for (const auto &[text, wanted] : cases) {
        std::string error;
        EXPECT_FALSE(parsePropertyList(text, &error)) << text;
        EXPECT_THAT(error, testing::HasSubstr(wanted)) << text;
        EXPECT_FALSE(parsePropertyList(text, nullptr)) << text;
    }
}

} // namespace

TEST(XmlPropertyList, ReadsEveryKindOfValue) {
    expectRead({
        {document("<true/>"), true},
        {document("<false></false>"), false},
        {document("<integer> -42 </integer>"), -42},
        {document("<integer>+7</integer>"), 7},
        {document("<integer>0x1F</integer>"), 31},
        {document("<integer>-9223372036854775808</integer>"), std::numeric_limits<int64_t>::min()},
        {document("<real>1</real>"), 1.0},
        {document("<real>+1.5e3</real>"), 1500.0},
        {document("<real>-infinity</real>"), -std::numeric_limits<double>::infinity()},
        {document("<string>a &lt;&amp;&gt; &quot;&apos; &#233;&#x1F512; <![CDATA[<b>&]]>!</string>"),
         "a <&> \"' é\U0001f512 <b>&!"},
        {document("<string/>"), ""},
        {document("<string> kept </string>"), " kept "},
        {document("<date>2015-03-01T10:20:30Z</date>"), Date{446898030}},
        {document("<data>\n\tAAEC\n\t/w==\n</data>"), Data{std::string("\0\1\2\xff", 4)}},
        {document("<data></data>"), Data{}},
        {document("<array/>"), Array{}},
        {document("<array> <true/> <array><string>x</string></array> </array>"), Array{true, Array{"x"}}},
        {document("<dict></dict>"), Object{}},
        {document("<dict><key>a</key><integer>1</integer><key>a</key><integer>2</integer></dict>"),
         Object{{"a", 2}}},
        {document("<dict><key>&amp;</key><dict><key/><true/></dict></dict>"),
         Object{{"&", Object{{"", true}}}}},
    });
}

TEST(XmlPropertyList, ReadsEveryDressOfADocument) {
    const std::string content = "<dict><key>k</key><string>é</string></dict>";
    const Value value = Object{{"k", "é"}};
    expectRead({
        {content, value},
        {"\xef\xbb\xbf" + document(content), value},
        {"\n <!-- a --><!DOCTYPE plist [ <!ELEMENT x (y)> ]><plist>" + content +
             "<!-- b --></plist> <!-- c -->\n",
         value},
        {"<plist version='1.0'><dict ><!-- - --><key >k</key ><string>é</string ></dict></plist>", value},
        {utf16(u"<plist><dict><key>k</key><string>é</string></dict></plist>", true), value},
        {utf16(u"<plist><dict><key>k</key><string>é</string></dict></plist>", false), value},
    });
}

TEST(XmlPropertyList, RefusesWhatIsNone) {
    expectRefused({
        {"", "empty"},
        {document(""), "a value is missing before </plist>"},
        {document("<dict>\n<key>a</key>\n</dict>"), "line 5: a value is missing before </dict>"},
        {document("<dict>\n<true/>\n</dict>"), "line 4: expected a key"},
        {document("<dict>text</dict>"), "expected an element"},
        {document("<true/><true/>"), "expected </plist>"},
        {document("<true/>") + "<true/>", "something follows"},
        {"<plist><dict></array></plist>", "expected a key"},
        {"<plist><array></dict></plist>", "missing before </dict>"},
        {document("<integer></integer>"), "not an integer"},
        {document("<integer>1.5</integer>"), "not an integer"},
        {document("<integer>9223372036854775808</integer>"), "not an integer"},
        {document("<integer>--1</integer>"), "not an integer"},
        {document("<real>fast</real>"), "not a real number"},
        {document("<real>1e999</real>"), "not a real number"},
        {document("<date>yesterday</date>"), "not a date"},
        {document("<date>2015-02-29T00:00:00Z</date>"), "not a date"},
        {document("<data>AAE</data>"), "not base64"},
        {document("<data>A===</data>"), "not base64"},
        {document("<data>AA=A</data>"), "not base64"},
        {document("<string>&nbsp;</string>"), "unknown entity"},
        {document("<string>&#xZZ;</string>"), "unknown entity"},
        {document("<string>&amp</string>"), "an entity without an end"},
        {document("<string>a<b>c</b></string>"), "<string> does not end"},
        {document("<string>\xff</string>"), "not text"},
        {document("<string>\xed\xa0\x80</string>"), "not text"},
        {document("<set/>"), "unknown element <set>"},
        {document("<dict key='a'/>"), "unknown element"},
        {"<plist><true/>", "the text ends too early"},
        {"<!-- open", "a comment without an end"},
    });
}

TEST(OldStylePropertyList, ReadsTextDataListsAndTables) {
    expectRead({
        {"{ a = b; c = (1, 2); d = <0a0B>; \"quoted \\U00e9\" = 'x'; }",
         Object{{"a", "b"}, {"c", Array{"1", "2"}}, {"d", Data{"\n\v"}}, {"quoted é", "x"}}},
        {"hello", "hello"},
        {"\"a \\\"b\\\" \\\\ \\n\\t \\101\\60 \\q\"", "a \"b\" \\ \n\t A0 q"},
        {"\"\\Ud83d\\Udd12 \\Ud83d.\"", "\U0001f512 \ufffd."},
        {"(a, (), {}, <>, \"\",)", Array{"a", Array{}, Object{}, Data{}, ""}},
        {"<0a0b 0c\n0d>", Data{"\n\v\f\r"}},
        {"// lines\n\"key\" = \"value\"; /* and */ short;\nb = {c=d;};",
         Object{{"key", "value"}, {"short", "short"}, {"b", Object{{"c", "d"}}}}},
        {"{a=/usr/bin:$x.y-z_0;}", Object{{"a", "/usr/bin:$x.y-z_0"}}},
        {" \n /* nothing */ ", Object{}},
        {utf16(u"k = \"é\";", false), Object{{"k", "é"}}},
    });
}

TEST(OldStylePropertyList, RefusesWhatIsNone) {
    expectRefused({
        {"{ a = b }", "line 1: expected ';'"},
        {"{\na = 1;\nb 2;\n}", "line 3: expected ';'"},
        {"{ a = ; }", "expected a value"},
        {"{ a = b;", "line 1: expected '}'"},
        {"(a\nb)", "line 2: expected ',' or ')'"},
        {"(a,,b)", "expected a value"},
        {"<0a0>", "half a byte"},
        {"<0g>", "expected a hexadecimal digit"},
        {"\"open", "a text without an end"},
        {"\"open\\", "a text without an end"},
        {"\"\\U\"", "an escape without digits"},
        {"\"\\377\"", "an octal escape above 177"},
        {"{} x", "something follows"},
        {"{ a = é; }", "expected a value"},
        {"hello world", "expected ';'"},
        {"/* open", "a comment without an end"},
        {"{ = b; }", "expected '}'"},
        {std::string("a\0b", 3), "expected ';'"},
    });
}

TEST(PropertyLists, AreWrittenInThePlatformsLayout) {
    Value value =
        Object{{"b", Array{1, Object{}}}, {"a<", "x&y"}, {"d", Data{std::string(60, 'A')}}, {"e", Date{0}}};
    EXPECT_EQ(sim::toXmlPropertyList(value), R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>a&lt;</key>
	<string>x&amp;y</string>
	<key>b</key>
	<array>
		<integer>1</integer>
		<dict/>
	</array>
	<key>d</key>
	<data>
	QUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFB
	QUFBQUFBQUFB
	</data>
	<key>e</key>
	<date>2001-01-01T00:00:00Z</date>
</dict>
</plist>
)");
    EXPECT_THROW(sim::toXmlPropertyList(Array{Object{{"a", nullptr}}}), sim::ValueError);
}

TEST(PropertyLists, ReadBackAsTheyWereWritten) {
    std::mt19937 generator(1);
    for (int i = 0; i < 300; ++i) {
        Value value = i ? samples::random(generator, 4) : samples::everyKind();
        std::string xml = sim::toXmlPropertyList(value), error;
        auto back = parsePropertyList(xml, &error);
        ASSERT_TRUE(back) << error << xml;
        ASSERT_TRUE(*back == value) << xml;
    }
}

// Another implementation reads our XML and writes it as binary and as XML of its own.
TEST(PropertyLists, MeanTheSameToAnotherReader) {
    std::mt19937 generator(2);
    for (int i = 0; i < 300; ++i) {
        Value value = i ? Object{{"v", samples::random(generator, 4)}} : samples::everyKind();
        std::string xml = sim::toXmlPropertyList(value), error;
        auto binary = parsePropertyList(samples::binary(xml), &error);
        ASSERT_TRUE(binary) << error << xml;
        ASSERT_TRUE(*binary == value) << xml << sim::toXmlPropertyList(*binary);
        auto text = parsePropertyList(samples::otherXml(xml), &error);
        ASSERT_TRUE(text) << error << samples::otherXml(xml);
    }
}

TEST(PropertyLists, KeepRealNumbersAndDatesExactly) {
    for (double number : {0.1, 1e-310, 1.7976931348623157e308, -0.0, 2.0 / 3, 5e-324, 123456789.123456789})
        EXPECT_EQ(parsePropertyList(sim::toXmlPropertyList(number), nullptr)->number(), number);
    for (double seconds : {-63114076800.0, -1.0, 0.0, 446898030.0, 252423993599.0})
        EXPECT_EQ(parsePropertyList(sim::toXmlPropertyList(Date{seconds}), nullptr)->date().seconds, seconds);
}
