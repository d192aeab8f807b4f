#include "Changes.hpp"

#include "Runtime/Values/Packed.hpp"

#include <stdexcept>
#include <utility>

namespace sim {

namespace {

using Length = uint32_t;
constexpr Length kAsBefore = ~Length{0};

void putLength(std::string &bytes, size_t length) {
    const auto number = static_cast<Length>(length);
    bytes.append(reinterpret_cast<const char *>(&number), sizeof number);
}

Length takeLength(std::string_view &bytes) {
    Length length;
    std::memcpy(&length, takeBytes(bytes, sizeof length).data(), sizeof length);
    return length;
}

} // namespace

std::string_view takeBytes(std::string_view &bytes, size_t size) {
    if (bytes.size() < size) throw std::runtime_error("a process's answer ends too early");
    const std::string_view front = bytes.substr(0, size);
    bytes.remove_prefix(size);
    return front;
}

void RowWriter::put(std::string_view text) {
    putLength(now_.bytes, text.size());
    now_.bytes += text;
}

void RowWriter::endRow() { now_.ends.push_back(now_.bytes.size()); }

std::string_view RowWriter::Rows::row(size_t index) const {
    size_t begin = index ? ends[index - 1] : 0;
    return std::string_view(bytes).substr(begin, ends[index] - begin);
}

std::string RowWriter::take(bool all) {
    std::string result;
    putLength(result, now_.ends.size());
    for (size_t i = 0; i < now_.ends.size(); ++i) {
        const std::string_view row = now_.row(i);
        if (!all && i < before_.ends.size() && row == before_.row(i)) {
            putLength(result, kAsBefore);
            continue;
        }
        putLength(result, row.size());
        result += row;
    }
    std::swap(now_, before_);
    now_.bytes.clear();
    now_.ends.clear();
    return result;
}

std::string RowReader::text() {
    const Length length = takeLength(rest_);
    return std::string(takeBytes(rest_, length));
}

ChangedRows::ChangedRows(std::string_view bytes) {
    for (Length left = takeLength(bytes); left; --left) {
        const Length length = takeLength(bytes);
        rows.push_back(length == kAsBefore ? std::nullopt : std::optional(takeBytes(bytes, length)));
    }
}

Value AnswerMemory::changes(Object answer, const Value &since) {
    const bool current = isCurrent(since);
    for (auto part = answer.begin(); part != answer.end();) {
        std::string packed;
        packPlain(part->second, packed);
        std::string &said = said_[part->first];
        const bool same = current && said == packed;
        said = std::move(packed);
        part = same ? answer.erase(part) : std::next(part);
    }
    answer.emplace("revision", ++revision_);
    return answer;
}

} // namespace sim
