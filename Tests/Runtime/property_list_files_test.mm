// Dictionaries and arrays in files, as the platform keeps them: every form is read, whatever is wrong with a
// file it reads as nil, writing is XML in one step, and reads and writes of the watched file are counted.
#import <Foundation/Foundation.h>

#include "PropertyListSamples.hpp"
#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Files/PropertyListBridge.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Support.hpp"

#include <gmock/gmock.h>
#include <sys/stat.h>

using sim::Array;
using sim::Object;
using sim::Value;

namespace {

class PropertyListFiles : public testing::Test {
protected:
    NSString *name(const char *file = "list.plist") {
        return [NSString stringWithUTF8String:(folder / file).c_str()];
    }
    void put(const std::string &bytes) { support::putFile(folder / "list.plist", bytes); }
    Value written() {
        return sim::parsePropertyList(support::fileContent(folder / "list.plist"), nullptr).value_or(nullptr);
    }
    support::TemporaryFolder folder;
};

} // namespace

TEST_F(PropertyListFiles, AreReadInEveryForm) {
    std::string xml = sim::toXmlPropertyList(samples::everyKind());
    for (const auto &bytes : {xml, samples::binary(xml)}) {
        put(bytes);
        NSDictionary *read = [NSDictionary dictionaryWithContentsOfFile:name()];
        EXPECT_EQ(sim::valueFromObject(read), samples::everyKind());
        EXPECT_STREQ([[[read objectForKey:@"true"] stringValue] UTF8String], "1");
        EXPECT_EQ([[read objectForKey:@"real"] doubleValue], 0.1);
        EXPECT_EQ([[read objectForKey:@"date"] timeIntervalSinceReferenceDate], 446898030);
    }
    put("{ a = (1, 2); }");
    EXPECT_EQ(sim::valueFromObject([NSDictionary dictionaryWithContentsOfFile:name()]),
              Value(Object{{"a", Array{"1", "2"}}}));
    put("(1, { a = b; })");
    EXPECT_EQ(sim::valueFromObject([NSArray arrayWithContentsOfFile:name()]),
              Value(Array{"1", Object{{"a", "b"}}}));
}

TEST_F(PropertyListFiles, WithADateThatIsNoNumberAreRead) {
    std::string bytes = samples::binary(sim::toXmlPropertyList(samples::everyKind()));
    size_t marker = bytes.find("\x33\x41"); // of a date of this century
    ASSERT_NE(marker, std::string::npos);
    bytes.replace(marker + 1, 2, "\x7f\xf8");
    put(bytes);
    NSDictionary *read = [NSDictionary dictionaryWithContentsOfFile:name()];
    EXPECT_TRUE([[read objectForKey:@"date"] isKindOfClass:[NSDate class]]);
    EXPECT_EQ([[read objectForKey:@"real"] doubleValue], 0.1);
}

TEST_F(PropertyListFiles, AreMutableWhenTheReaderIs) {
    put("{ a = (1); }");
    for (NSMutableDictionary *dictionary in @[
             [NSMutableDictionary dictionaryWithContentsOfFile:name()],
             [[[NSMutableDictionary alloc] initWithContentsOfFile:name()] autorelease],
         ]) {
        [dictionary setObject:@"c" forKey:@"b"];
        EXPECT_EQ([dictionary count], 2u);
        EXPECT_FALSE([[dictionary objectForKey:@"a"] isKindOfClass:[NSMutableArray class]]);
    }
    put("(1)");
    for (NSMutableArray *list in @[
             [NSMutableArray arrayWithContentsOfFile:name()],
             [[[NSMutableArray alloc] initWithContentsOfFile:name()] autorelease],
         ]) {
        [list addObject:@"2"];
        EXPECT_EQ([list count], 2u);
    }
    EXPECT_FALSE(
        [[[[NSArray alloc] initWithContentsOfFile:name()] autorelease] isKindOfClass:[NSMutableArray class]]);
}

TEST_F(PropertyListFiles, ThatAreBadReadAsNil) {
    struct {
        const char *what;
        std::string bytes;
    } const cases[] = {
        {"empty", ""},
        {"cut off", "<?xml version=\"1.0\"?><plist><dict><key>a</key>"},
        {"damaged binary", "bplist00\1\2\3"},
        {"no text", "\xff\xff\xff"},
        {"a list", "(1, 2)"},
        {"a text", "hello"},
        {"too long", std::string(17 << 20, ' ')},
    };
    for (const auto &[what, bytes] : cases) {
        put(bytes);
        EXPECT_EQ([NSDictionary dictionaryWithContentsOfFile:name()], nil) << what;
        EXPECT_EQ([[NSMutableDictionary alloc] initWithContentsOfFile:name()], nil) << what;
    }
    put("{}");
    EXPECT_EQ([NSArray arrayWithContentsOfFile:name()], nil);
    EXPECT_EQ([[NSArray alloc] initWithContentsOfFile:name()], nil);
    EXPECT_NE([NSDictionary dictionaryWithContentsOfFile:name()], nil);
    for (NSString *path : {name("absent"), name(""), static_cast<NSString *>(nil), @"", @"relative/absent"})
        EXPECT_EQ([NSDictionary dictionaryWithContentsOfFile:path], nil);
}

TEST_F(PropertyListFiles, AreWrittenAsXmlWithEveryKindKept) {
    struct {
        id object;
        Value value;
    } const cases[] = {
        {[NSNumber numberWithBool:YES], true},
        {[NSNumber numberWithBool:NO], false},
        {[NSNumber numberWithChar:1], 1},
        {[NSNumber numberWithInt:0], 0},
        {[NSNumber numberWithUnsignedLongLong : 1ull << 62], int64_t { 1 } << 62},
        {[NSNumber numberWithLongLong:-1], -1},
        {[NSNumber numberWithFloat:0.5f], 0.5},
        {[NSNumber numberWithDouble:2], 2.0},
        {[NSMutableString stringWithString:@"é<"], "é<"},
        {[NSData dataWithBytes : "\0a" length : 2], sim::Data { std::string("\0a", 2) }},
        {[NSDate dateWithTimeIntervalSinceReferenceDate : 5], sim::Date { 5 }},
        {[NSArray array], Array {}},
        {[NSMutableDictionary dictionaryWithObject : @"v" forKey : @"k"],
         Object {
             { "k", "v" }
         }},
    };
    for (const auto &[object, value] : cases)
        for (BOOL atomically : {YES, NO}) {
            NSDictionary *dictionary = [NSDictionary dictionaryWithObject:object forKey:@"key"];
            EXPECT_TRUE([dictionary writeToFile:name() atomically:atomically]);
            EXPECT_EQ(written(), Value(Object{{"key", value}})) << [[object description] UTF8String];
            EXPECT_TRUE([[NSMutableArray arrayWithObject:object] writeToFile:name() atomically:atomically]);
            EXPECT_EQ(written(), Value(Array{value})) << [[object description] UTF8String];
        }
    EXPECT_THAT(support::namesIn(folder.path()), testing::ElementsAre("list.plist"));
}

TEST_F(PropertyListFiles, StayAsTheyAreWhenSomethingHasNoForm) {
    put("{ old = 1; }");
    NSMutableArray *endless = [NSMutableArray array];
    id itself = endless;
    [endless addObject:itself];
    id const things[] = {
        [NSNull null],
        [NSSet set],
        [NSNumber numberWithUnsignedLongLong:~0ull],
        endless,
        [[NSObject new] autorelease],
        [NSDictionary dictionaryWithObject:@"v" forKey:@1]
    };
    for (id thing : things) {
        NSArray *list = [NSArray arrayWithObject:[NSDictionary dictionaryWithObject:thing forKey:@"key"]];
        EXPECT_FALSE([list writeToFile:name() atomically:YES]);
        EXPECT_FALSE([list writeToFile:name() atomically:NO]);
    }
    [endless removeAllObjects];
    EXPECT_FALSE([[NSDictionary dictionary] writeToFile:name("no/such/folder") atomically:YES]);
    EXPECT_FALSE([[NSDictionary dictionary] writeToFile:nil atomically:YES]);
    EXPECT_EQ(support::fileContent(folder / "list.plist"), "{ old = 1; }");
    EXPECT_THAT(support::namesIn(folder.path()), testing::ElementsAre("list.plist"));
}

TEST_F(PropertyListFiles, KeepTheirPermissions) {
    NSDictionary *dictionary = [NSDictionary dictionary];
    auto mode = [&] {
        struct stat info;
        stat((folder / "list.plist").c_str(), &info);
        return info.st_mode & 07777;
    };
    umask(022);
    [dictionary writeToFile:name() atomically:YES];
    EXPECT_EQ(mode(), 0644u);
    chmod((folder / "list.plist").c_str(), 0600);
    [dictionary writeToFile:name() atomically:YES];
    EXPECT_EQ(mode(), 0600u);
}

TEST_F(PropertyListFiles, AreCountedWhenWatched) {
    sim::watchFile(folder / "list.plist");
    NSDictionary *dictionary = [NSDictionary dictionaryWithObject:@"v" forKey:@"k"];
    [NSDictionary dictionaryWithContentsOfFile:name()]; // not there yet
    [dictionary writeToFile:name() atomically:YES];
    [dictionary writeToFile:name("other.plist") atomically:YES];
    [NSDictionary dictionaryWithContentsOfFile:name()];
    [[[NSMutableDictionary alloc] initWithContentsOfFile:name()] release];
    [NSDictionary dictionaryWithContentsOfFile:name("other.plist")];
    [NSData dataWithContentsOfFile:name()];
    (void)written();
    EXPECT_EQ(sim::fileCounts().reads, 2u);
    EXPECT_EQ(sim::fileCounts().writes, 1u);
    put("broken {");
    [NSDictionary dictionaryWithContentsOfFile:name()];
    EXPECT_EQ(sim::fileCounts().reads, 3u);
    sim::resetFileCounts();
    EXPECT_EQ(sim::fileCounts().reads + sim::fileCounts().writes, 0u);
}

TEST(PropertyListBridge, TurnsValuesIntoObjectsAndBack) {
    std::mt19937 generator(5);
    for (int i = 0; i < 100; ++i) {
        Value value = samples::random(generator, 4);
        ASSERT_EQ(sim::valueFromObject(sim::objectFromValue(value)), value);
    }
    EXPECT_EQ(sim::objectFromValue(nullptr), [NSNull null]);
}
