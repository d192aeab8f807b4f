// Who asks again and again is told what changed, and knows the same as somebody who is told everything.
#include "Supervisor/Protocol/Changes.hpp"
#include "Supervisor/Protocol/Channel.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <sys/socket.h>

namespace {

using namespace sim;
using Rows = std::vector<std::pair<int64_t, std::string>>;

std::pair<int64_t, std::string> readRow(RowReader row) {
    int64_t number = row.integer();
    return {number, row.text()};
}

std::string say(RowWriter &writer, const Rows &rows, bool all) {
    for (const auto &[number, text] : rows) {
        writer.put(number);
        writer.put(std::string_view(text));
        writer.endRow();
    }
    return writer.take(all);
}

TEST(Changes, RowsComeOutAsTheyWentIn) {
    const Rows steps[] = {{{1, "a"}, {2, ""}},
                          {{1, "a"}, {2, ""}},
                          {{1, "a"}, {2, "longer than before"}, {3, "c"}},
                          {{3, "c"}},
                          {},
                          {{1, "a"}, {1, "a"}}};
    RowWriter writer;
    Rows known;
    for (const Rows &rows : steps) {
        const bool changed = known != rows;
        EXPECT_EQ(updateRows(known, say(writer, rows, false), readRow), changed);
        EXPECT_EQ(known, rows);
    }
}

TEST(Changes, RowsThatStayAreLeftOutUnlessAllAreWanted) {
    RowWriter writer;
    const Rows rows = {{1, "a text of some length"}, {2, "another one"}};
    const std::string first = say(writer, rows, false), second = say(writer, rows, false);
    EXPECT_LT(second.size(), first.size() / 2);
    EXPECT_EQ(say(writer, rows, true), first);
}

TEST(Changes, AnAnswerThatEndsTooEarlyIsAnError) {
    RowWriter writer;
    writer.put(std::string_view("a row"));
    writer.endRow();
    const std::string whole = writer.take(true);
    auto read = [](RowReader row) { return row.text(); };
    for (size_t length = 0; length < whole.size(); ++length) {
        std::vector<std::string> rows;
        EXPECT_THROW(updateRows(rows, whole.substr(0, length), read), std::runtime_error) << length;
    }
}

TEST(Changes, PartsOfAnAnswerComeOnceUntilTheyChange) {
    AnswerMemory memory;
    Object all{{"number", 1}, {"text", "a"}, {"none", nullptr}};
    auto names = [](const Value &answer) {
        std::vector<std::string> result;
        for (const auto &[name, part] : answer.object()) result.push_back(name);
        return result;
    };
    using Names = std::vector<std::string>;
    Value answer = memory.changes(all, {});
    EXPECT_EQ(names(answer), (Names{"none", "number", "revision", "text"}));
    answer = memory.changes(all, answer["revision"]);
    EXPECT_EQ(names(answer), Names{"revision"});
    all["none"] = 5;
    all["number"] = nullptr;
    Value next = memory.changes(all, answer["revision"]);
    EXPECT_EQ(names(next), (Names{"none", "number", "revision"}));
    // Somebody who missed an answer, or never had one, is told everything.
    for (const Value &since : {answer["revision"], Value()})
        EXPECT_EQ(names(memory.changes(all, since)), (Names{"none", "number", "revision", "text"}));
}

TEST(Channel, CarriesValuesAsJsonWould) {
    int ends[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
    Channel one(ends[0]), other(ends[1]);
    const Value messages[] = {Object{{"list", Array{1, -2.5, 1.0, true, nullptr, "é\n"}}},
                              Array{std::string(30'000, 'x'), Object{}}, Data{std::string("\0\xff", 2)}, 7};
    for (const Value &message : messages) one.send(message);
    for (const Value &message : messages) EXPECT_EQ(other.receive(), message);
    one.send(Array{"\xff broken", std::nan(""), INFINITY});
    EXPECT_EQ(other.receive(), Value(Array{"\xef\xbf\xbd broken", nullptr, nullptr}));
    one.close();
    EXPECT_EQ(other.receive(), std::nullopt);
}

} // namespace
