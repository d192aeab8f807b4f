// The sandbox: whichever way Foundation or C goes to a path of the device, it ends below the root, and
// nothing appears in the machine's own folders. The machine's folders stay in reach.
#import <Foundation/Foundation.h>

#include "Runtime/Files/Sandbox.hpp"
#include "Support.hpp"

#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

using sim::resolvePath;

namespace {

constexpr char kFolder[] = "/var/mobile/Documents";

class Sandbox : public testing::Test {
protected:
    Sandbox() {
        sim::setSandboxRoot(root.path());
        [[NSFileManager defaultManager] createDirectoryAtPath:@(kFolder)
                                  withIntermediateDirectories:YES
                                                   attributes:nil
                                                        error:nullptr];
    }
    std::string inRoot(const std::string &name) { return root.path() + kFolder + "/" + name; }
    std::string content(const std::string &name) { return support::fileContent(inRoot(name)); }
    support::TemporaryFolder root;
};

NSString *at(const char *name) { return [NSString stringWithFormat:@"%s/%s", kFolder, name]; }
std::string deviceAt(const char *name) { return std::string(kFolder) + "/" + name; }
NSData *bytes(const char *text) { return [NSData dataWithBytes:text length:strlen(text)]; }
NSFileManager *files() { return [NSFileManager defaultManager]; }

} // namespace

TEST_F(Sandbox, MapsThePathsOfTheDeviceAndNoOthers) {
    auto below = [&](const std::string &path) { return root.path() + path; };
    struct {
        std::string path, place;
    } const cases[] = {
        {"/var/mobile", below("/var/mobile")},
        {"/var/mobile/Library/a b", below("/var/mobile/Library/a b")},
        {"/private/var/mobile/x", below("/var/mobile/x")},
        {"/User/x", below("/var/mobile/x")},
        {"/private/etc/hosts", below("/etc/hosts")},
        {"/Library/Application Support/x", below("/Library/Application Support/x")},
        {"/System/Library/x", below("/System/Library/x")},
        {"/var/lib/dpkg/info/x.list", below("/var/lib/dpkg/info/x.list")},
        {"/usr/lib/TweakInject/x", below("/usr/lib/TweakInject/x")},
        {"//var//mobile/./x", below("/var/mobile/x")},
        {"/tmp/../var/mobile/y/../x", below("/var/mobile/x")},
        {"/var/mobile/../mobile/..x", below("/var/mobile/..x")},
        {"/var/mobile/../../etc/passwd", "/var/mobile/../../etc/passwd"},
        {"/var/mobilex", "/var/mobilex"},
        {"/Libraryx", "/Libraryx"},
        {"/usr/share/zoneinfo", "/usr/share/zoneinfo"},
        {"/usr/lib/x.so", "/usr/lib/x.so"},
        {"/etc/fonts", "/etc/fonts"},
        {"/tmp/x", "/tmp/x"},
        {"/proc/self", "/proc/self"},
        {"/", "/"},
        {"", ""},
        {"var/mobile", "var/mobile"},
        {below("/var/mobile/x"), below("/var/mobile/x")},
        {below("/usr/share"), below("/usr/share")},
    };
    for (const auto &[path, place] : cases) EXPECT_EQ(resolvePath(path), place) << path;
    EXPECT_EQ(sim::devicePathOf(below("/var/mobile/x")), "/var/mobile/x");
    EXPECT_EQ(sim::devicePathOf("/etc/x"), "/etc/x");
}

TEST_F(Sandbox, HoldsWhateverFoundationMakes) {
    struct {
        const char *name;
        std::function<BOOL(NSString *)> make;
    } const ways[] = {
        {"data", [](NSString *path) { return [bytes("x") writeToFile:path atomically:NO]; }},
        {"data in one step", [](NSString *path) { return [bytes("x") writeToFile:path atomically:YES]; }},
        {"string",
         [](NSString *path) {
             return [@"x" writeToFile:path atomically:YES encoding:NSUTF8StringEncoding error:nullptr];
         }},
        {"dictionary",
         [](NSString *path) { return [[NSDictionary dictionary] writeToFile:path atomically:YES]; }},
        {"array", [](NSString *path) { return [[NSArray array] writeToFile:path atomically:NO]; }},
        {"archive", [](NSString *path) { return [NSKeyedArchiver archiveRootObject:@"x" toFile:path]; }},
        {"created",
         [](NSString *path) { return [files() createFileAtPath:path contents:bytes("x") attributes:nil]; }},
        {"folder",
         [](NSString *path) {
             return [files() createDirectoryAtPath:[path stringByAppendingPathComponent:@"a/b"]
                       withIntermediateDirectories:YES
                                        attributes:nil
                                             error:nullptr];
         }},
        {"copy",
         [](NSString *path) {
             [bytes("x") writeToFile:at("source") atomically:YES];
             return [files() copyItemAtPath:at("source") toPath:path error:nullptr];
         }},
        {"moved",
         [](NSString *path) {
             [bytes("x") writeToFile:at("source") atomically:YES];
             return [files() moveItemAtPath:at("source") toPath:path error:nullptr];
         }},
        {"link",
         [](NSString *path) { return [files() createSymbolicLinkAtPath:path pathContent:at("data")]; }},
        {"handle",
         [](NSString *path) {
             [files() createFileAtPath:path contents:nil attributes:nil];
             NSFileHandle *handle = [NSFileHandle fileHandleForWritingAtPath:path];
             [handle writeData:bytes("x")];
             return static_cast<BOOL>(handle != nil);
         }},
        {"stream",
         [](NSString *path) {
             NSOutputStream *stream = [NSOutputStream outputStreamToFileAtPath:path append:NO];
             [stream open];
             BOOL done = [stream write:reinterpret_cast<const uint8_t *>("x") maxLength:1] == 1;
             [stream close];
             return done;
         }},
    };
    for (const auto &[name, make] : ways) {
        EXPECT_TRUE(make(at(name))) << name;
        EXPECT_TRUE(support::existsOnMachine(inRoot(name))) << name;
        EXPECT_FALSE(support::existsOnMachine(deviceAt(name))) << name;
        EXPECT_TRUE([files() fileExistsAtPath:at(name)]) << name;
    }
    EXPECT_FALSE(support::existsOnMachine(kFolder));
}

TEST_F(Sandbox, IsWhereFoundationLooks) {
    support::putFile(inRoot("file"), "content");
    EXPECT_STREQ([[NSString stringWithContentsOfFile:at("file") encoding:NSUTF8StringEncoding
                                               error:nullptr] UTF8String],
                 "content");
    EXPECT_EQ([[NSData dataWithContentsOfFile:at("file")] length], 7u);
    EXPECT_EQ([[[files() attributesOfItemAtPath:at("file") error:nullptr] objectForKey:NSFileSize] intValue],
              7);
    EXPECT_TRUE([files() isReadableFileAtPath:at("file")]);
    EXPECT_EQ([[files() contentsOfDirectoryAtPath:@(kFolder) error:nullptr] count], 1u);
    EXPECT_EQ([[[files() enumeratorAtPath:@"/var/mobile"] allObjects] count], 2u);
    EXPECT_EQ([[[NSFileHandle fileHandleForReadingAtPath:at("file")] readDataToEndOfFile] length], 7u);
    [files() createSymbolicLinkAtPath:at("link") pathContent:at("file")];
    EXPECT_TRUE([[files() pathContentOfSymbolicLinkAtPath:at("link")] isEqual:at("file")]);
    EXPECT_STREQ([[at("link") stringByResolvingSymlinksInPath] UTF8String], [at("file") UTF8String]);
    EXPECT_EQ([[NSData dataWithContentsOfFile:at("link")] length], 7u);
    id attributes = [NSDictionary dictionaryWithObject:@0600 forKey:NSFilePosixPermissions];
    EXPECT_TRUE([files() changeFileAttributes:attributes atPath:at("file")]);
    struct stat info;
    ASSERT_EQ(stat(inRoot("file").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
    EXPECT_TRUE([files() removeItemAtPath:at("file") error:nullptr]);
    EXPECT_FALSE(support::existsOnMachine(inRoot("file")));
}

TEST_F(Sandbox, HoldsTheBundlesOfTheDevice) {
    std::string bundle = root.path() + "/Library/Application Support/X.bundle";
    [files() createDirectoryAtPath:@"/Library/Application Support/X.bundle/en.lproj"
        withIntermediateDirectories:YES
                         attributes:nil
                              error:nullptr];
    support::putFile(bundle + "/picture.png", "x");
    support::putFile(bundle + "/en.lproj/Localizable.strings", "\"key\" = \"value\";");
    NSBundle *loaded = [NSBundle bundleWithPath:@"/Library/Application Support/X.bundle"];
    EXPECT_STREQ([[loaded pathForResource:@"picture" ofType:@"png"] UTF8String],
                 "/Library/Application Support/X.bundle/picture.png");
    EXPECT_STREQ([[loaded localizedStringForKey:@"key" value:@"" table:nil] UTF8String], "value");
}

TEST_F(Sandbox, HoldsWhatPlainCallsDo) {
    std::string name = deviceAt("c");
    int file = open(name.c_str(), O_CREAT | O_WRONLY, 0640);
    ASSERT_GE(file, 0);
    EXPECT_EQ(write(file, "abc", 3), 3);
    close(file);
    EXPECT_EQ(content("c"), "abc");
    struct stat info;
    EXPECT_EQ(stat(name.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
    EXPECT_EQ(truncate(name.c_str(), 1), 0);
    EXPECT_EQ(access(name.c_str(), R_OK), 0);
    EXPECT_EQ(rename(name.c_str(), deviceAt("d").c_str()), 0);
    EXPECT_EQ(content("d"), "a");

    char pattern[64];
    snprintf(pattern, sizeof pattern, "%s/t.XXXXXX", kFolder);
    file = mkstemp(pattern);
    ASSERT_GE(file, 0);
    close(file);
    EXPECT_EQ(std::string(pattern).rfind(kFolder, 0), 0u);
    EXPECT_TRUE(support::existsOnMachine(root.path() + pattern));
    EXPECT_EQ(unlink(pattern), 0);

    char target[PATH_MAX];
    EXPECT_EQ(symlink(deviceAt("d").c_str(), deviceAt("l").c_str()), 0);
    ssize_t length = readlink(deviceAt("l").c_str(), target, sizeof target);
    EXPECT_EQ(std::string(target, static_cast<size_t>(length)), deviceAt("d"));
    EXPECT_EQ(readlink(deviceAt("l").c_str(), target, 4), 4);
    ASSERT_TRUE(realpath(deviceAt("l").c_str(), target));
    EXPECT_EQ(target, deviceAt("d"));
    EXPECT_EQ(realpath(deviceAt("absent").c_str(), nullptr), nullptr);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_THAT(support::namesIn(root.path() + kFolder), testing::ElementsAre("d", "l"));
}

TEST(SandboxRoot, MustExistAndIsNotNeeded) {
    EXPECT_EQ(resolvePath("/var/mobile/x"), "/var/mobile/x");
    EXPECT_EQ([files() fileExistsAtPath:@"/etc/passwd"], YES);
    EXPECT_THROW(sim::setSandboxRoot("/no/such/folder"), std::runtime_error);
    EXPECT_EQ(resolvePath("/var/mobile/x"), "/var/mobile/x");
}

TEST(SandboxRoot, MayBeReachedThroughALink) {
    support::TemporaryFolder folder;
    ASSERT_EQ(mkdir((folder / "real").c_str(), 0755), 0);
    ASSERT_EQ(symlink((folder / "real").c_str(), (folder / "link").c_str()), 0);
    sim::setSandboxRoot(folder / "link");
    EXPECT_EQ(resolvePath("/Library"), folder / "real/Library");
    EXPECT_EQ(sim::devicePathOf(folder / "real/Library"), "/Library");
}
