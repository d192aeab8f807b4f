// The table is the agreed one, and installs what it says, with the types it says, on every system version; it
// does nothing to what a version lacks. A regression shows as a method that is missing or answers with
// garbage.
#include "Tweak/Start/HookTable.h"

#include "Runtime/Objc/OriginalStub.hpp"
#include "SpringBoard/Harness.h"

#include <fstream>
#include <map>
#include <sstream>

namespace {

using pendix::HookRow;

Method method(const HookRow &row) {
    return class_getInstanceMethod(objc_getClass(row.className), sel_registerName(row.selector));
}

IMP implementation(const HookRow &row) {
    Method found = method(row);
    // A hook's replacement is counted on its way in.
    void *first = found ? reinterpret_cast<void *>(method_getImplementation(found)) : nullptr;
    return reinterpret_cast<IMP>(sim::behindStubs(first));
}

std::string name(const HookRow &row) { return std::string(row.className) + " " + row.selector; }

// One line a row: class, selector, kind, types of an added method.
TEST(HookTable, IsTheAgreedOne) {
    std::ostringstream table;
    for (const HookRow &row : pendix::hookTable()) {
        table << name(row) << (row.kind == HookRow::Kind::added ? " added" : " hooked");
        if (*row.types) table << " " << row.types;
        table << "\n";
    }
    std::stringstream agreed;
    agreed << std::ifstream(GOLDENS "/hook-table.txt").rdbuf();
    EXPECT_EQ(table.str(), agreed.str());
}

class Installation : public testing::TestWithParam<sim::Version> {};

TEST_P(Installation, AddsAndReplacesWhatTheVersionHas) {
    static std::map<std::string, IMP> before;
    harness::boot(harness::profile("iPhone 5", GetParam()), harness::applications(), [] {
        for (const HookRow &row : pendix::hookTable()) before[name(row)] = implementation(row);
        pendix::installHooks();
    });
    size_t absent = 0;
    for (const HookRow &row : pendix::hookTable()) {
        SCOPED_TRACE(name(row));
        if (row.kind == HookRow::Kind::added) {
            EXPECT_EQ(before[name(row)], nullptr) << "the system has such a method itself";
            EXPECT_EQ(implementation(row), row.replacement);
            ASSERT_NE(method(row), nullptr);
            EXPECT_STREQ(method_getTypeEncoding(method(row)), row.types);
        } else if (before[name(row)]) {
            EXPECT_EQ(implementation(row), row.replacement);
            EXPECT_NE(*row.original, nullptr);
        } else {
            ++absent;
            EXPECT_EQ(method(row), nullptr) << "made a method that the system lacks";
            EXPECT_EQ(*row.original, nullptr);
        }
    }
    // 7.x: secure contexts, the display's turning on with a reason, the glyph. 8.0: the second of these.
    // 8.1 and later: the turning on without a reason.
    const bool seven = GetParam() < sim::Version{8, 0};
    EXPECT_EQ(absent, seven ? 3u : 1u);
}

INSTANTIATE_TEST_SUITE_P(Versions, Installation,
                         testing::Values(sim::Version{7, 0}, sim::Version{7, 1}, sim::Version{8, 0},
                                         sim::Version{8, 1}, sim::Version{8, 3}),
                         [](const auto &info) {
                             return std::to_string(info.param.major) + "_" + std::to_string(info.param.minor);
                         });

} // namespace
