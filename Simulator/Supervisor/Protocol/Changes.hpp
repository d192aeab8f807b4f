// Answers to somebody who asks the same after every event: what is as it was in the answer before is not said
// again. The process compares what it would say with what it has said; nobody has to tell it what changed.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

// Many rows of plain fields, such as a window's views. In the process.
class RowWriter {
public:
    void put(double number) { raw(&number, sizeof number); }
    void put(int64_t number) { raw(&number, sizeof number); }
    void put(bool flag) { raw(&flag, sizeof flag); }
    void put(std::string_view text);
    void endRow();

    // The rows since the last call, for ChangedRows. Those that are at the same place what they were are left
    // out, but for `all`.
    std::string take(bool all);

private:
    struct Rows {
        std::string bytes;
        std::vector<size_t> ends;
        std::string_view row(size_t index) const;
    };
    void raw(const void *from, size_t size) { now_.bytes.append(static_cast<const char *>(from), size); }

    Rows now_, before_;
};

// The `size` bytes at the front, which go from `bytes`. Throws std::runtime_error when there are fewer.
std::string_view takeBytes(std::string_view &bytes, size_t size);

// The fields of a row, in the order in which they were put. Asking for more than there is throws as
// takeBytes().
class RowReader {
public:
    explicit RowReader(std::string_view bytes) : rest_(bytes) {}
    double number() { return take<double>(); }
    int64_t integer() { return take<int64_t>(); }
    bool flag() { return take<bool>(); }
    std::string text();

private:
    template <typename Field>
    Field take() {
        Field field;
        std::memcpy(&field, takeBytes(rest_, sizeof field).data(), sizeof field);
        return field;
    }
    std::string_view rest_;
};

// The parts of an answer, by name. In the process.
class AnswerMemory {
public:
    // The part of `answer` that differs from the answer before, with its "revision", which whoever asks gives
    // back as `since` the next time. All of it when they hold another one: null at first.
    Value changes(Object answer, const Value &since);
    // Whether whoever gives this holds the answer before.
    bool isCurrent(const Value &since) const { return since == Value(revision_); }

private:
    int64_t revision_ = 0;
    std::map<std::string, std::string, std::less<>> said_; // packed
};

// Each of the rows; nothing where it is as before. Throws as takeBytes().
struct ChangedRows {
    explicit ChangedRows(std::string_view bytes);
    std::vector<std::optional<std::string_view>> rows;
};

// Brings `rows` up to date with what RowWriter::take() gave; `read` makes a row of a RowReader. Returns
// whether anything changed.
template <typename Row, typename Read>
bool updateRows(std::vector<Row> &rows, std::string_view bytes, Read read) {
    const ChangedRows now(bytes);
    bool changed = rows.size() != now.rows.size();
    rows.resize(now.rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        if (!now.rows[i]) continue;
        rows[i] = read(RowReader(*now.rows[i]));
        changed = true;
    }
    return changed;
}

} // namespace sim
