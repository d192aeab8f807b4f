// A disk that is full or refuses: whoever writes is told, the old file stays whole, and nothing is left lying
// around.
#import <Foundation/Foundation.h>

#include "Runtime/Files/Sandbox.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Support.hpp"

#include <cerrno>
#include <csignal>
#include <functional>
#include <gmock/gmock.h>
#include <sys/resource.h>

namespace {

constexpr char kFile[] = "/var/mobile/settings.plist";

class WriteFailures : public testing::Test {
protected:
    WriteFailures() {
        sim::setSandboxRoot(root.path());
        [[NSFileManager defaultManager] createDirectoryAtPath:@"/var/mobile"
                                  withIntermediateDirectories:YES
                                                   attributes:nil
                                                        error:nullptr];
        EXPECT_TRUE(sim::writeFileAtomically(kFile, "{ old = 1; }"));
    }
    void expectUntouched(const char *what) {
        EXPECT_EQ(support::fileContent(root.path() + kFile), "{ old = 1; }") << what;
        EXPECT_THAT(support::namesIn(root / "var/mobile"), testing::ElementsAre("settings.plist")) << what;
    }
    support::TemporaryFolder root;
};

NSDictionary *large() {
    NSString *text = [@"" stringByPaddingToLength:10'000 withString:@"x" startingAtIndex:0];
    return [NSDictionary dictionaryWithObject:text forKey:@"k"];
}

} // namespace

TEST_F(WriteFailures, ReachEveryoneWhoWrites) {
    sim::failWrites("/var/mobile", ENOSPC);
    struct {
        const char *what;
        std::function<bool()> write;
    } const ways[] = {
        {"dictionary in one step", [] { return [large() writeToFile:@(kFile) atomically:YES]; }},
        {"dictionary in place", [] { return [large() writeToFile:@(kFile) atomically:NO]; }},
        {"data", [] { return [[NSData data] writeToFile:@(kFile) atomically:YES]; }},
        {"new file", [] { return [[NSData data] writeToFile:@"/var/mobile/new" atomically:NO]; }},
        {"stream", [] { return fopen(kFile, "r+") != nullptr || errno != ENOSPC; }},
        {"truncation", [] { return truncate(kFile, 0) == 0 || errno != ENOSPC; }},
        {"folder", [] { return mkdir("/var/mobile/folder", 0755) == 0 || errno != ENOSPC; }},
        {"move into it", [] { return rename("/tmp/absent", "/var/mobile/new") == 0 || errno != ENOSPC; }},
    };
    for (const auto &[what, write] : ways) {
        EXPECT_FALSE(write()) << what;
        expectUntouched(what);
    }
    EXPECT_EQ([[NSDictionary dictionaryWithContentsOfFile:@(kFile)] count], 1u);
    EXPECT_TRUE([[NSData data] writeToFile:@"/var/root" atomically:NO]) << "another place";
    sim::failWrites("", 0);
    EXPECT_TRUE([large() writeToFile:@(kFile) atomically:YES]);
}

// The kernel itself stops the write in the middle of the file.
TEST_F(WriteFailures, HalfWayLeaveTheOldFile) {
    signal(SIGXFSZ, SIG_IGN);
    rlimit limit{1000, 1000};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_FALSE([large() writeToFile:@(kFile) atomically:YES]);
    EXPECT_EQ(errno, EFBIG);
    expectUntouched("in one step");
    EXPECT_FALSE(sim::writeFileAtomically(kFile, std::string(5000, 'x')));
    expectUntouched("by the other process");
    EXPECT_FALSE([large() writeToFile:@"/var/mobile/in place" atomically:NO]);
}
