// What a seed decides is the same everywhere, legal, and within what was asked for.
#include "Runtime/Values/Json.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Supervisor/Boot/BootOptions.hpp"
#include "Tools/Monkey/BootTable.hpp"
#include "Tools/Monkey/SettingValues.hpp"

#include <gtest/gtest.h>

#include <set>

namespace {

using sim::Random;
using sim::Value;

TEST(Chance, IsTheSameOnEveryMachine) {
    Random random(1);
    // The published sequence of this generator for the seed 1.
    EXPECT_EQ(random.next(), 0x910a2dec89025cc1u);
    EXPECT_EQ(random.next(), 0xbeeb8da1658eec67u);
    EXPECT_EQ(random.next(), 0xf893a2eefb32555eu);
}

TEST(Chance, StaysWithinItsBoundsAndReachesThem) {
    Random random(5);
    std::set<int64_t> seen;
    for (int i = 0; i < 1000; ++i) seen.insert(random.between(-3, 4));
    EXPECT_EQ(*seen.begin(), -3);
    EXPECT_EQ(*seen.rbegin(), 4);
    EXPECT_EQ(seen.size(), 8u);
}

TEST(Chance, PartsOfARunHaveNothingInCommon) {
    std::set<uint64_t> seen;
    for (uint64_t seed = 0; seed < 50; ++seed)
        for (uint64_t part = 0; part < 50; ++part) seen.insert(sim::partSeed(seed, part));
    EXPECT_EQ(seen.size(), 2500u);
}

TEST(BootTable, IsOneThatADeviceBootsWith) {
    std::set<std::string> devices, languages;
    for (uint64_t seed = 0; seed < 500; ++seed) {
        Random random(seed);
        Value table = sim::bootTable(random, {});
        sim::BootOptions options = sim::readBootOptions(table, "[]");
        devices.insert(options.profile->name);
        languages.insert(options.language);
        Random again(seed);
        EXPECT_EQ(sim::bootTable(again, {}), table);
    }
    EXPECT_EQ(devices.size(), sim::profiles().size()) << "every device has its turn";
    EXPECT_EQ(languages.size(), 3u);
}

TEST(BootTable, KeepsWhatIsGiven) {
    Value given =
        sim::parseJson(R"({"ios": "7.1", "passcode": false, "root": "kept", "settings": {"badge": true}})");
    for (uint64_t seed = 0; seed < 50; ++seed) {
        Random random(seed);
        Value table = sim::bootTable(random, given);
        for (const auto &[name, value] : given.object()) EXPECT_EQ(table[name], value) << name;
        EXPECT_TRUE(sim::findProfile(table["device"].string())->ran("7.1"));
    }
    given.object().erase("settings");
    for (uint64_t seed = 0; seed < 50; ++seed) {
        Random random(seed);
        EXPECT_TRUE(sim::bootTable(random, given).has("settings")) << "or the last session's would stay";
    }
    Random random(1);
    EXPECT_THROW(sim::bootTable(random, sim::parseJson(R"({"device": "iPhone 6", "ios": "7.1"})")),
                 sim::BootError);
}

// What breaks a settings file must not by chance be one that is in order, or nothing is tried.
TEST(Settings, BrokenFilesAreMostlyBroken) {
    Random random(3);
    int whole = 0;
    constexpr int kFiles = 300;
    for (int i = 0; i < kFiles; ++i) {
        std::string problem;
        auto content = sim::parsePropertyList(sim::brokenFile(random), &problem);
        whole += content && content->isObject();
    }
    EXPECT_LT(whole, kFiles / 4);
}

} // namespace
