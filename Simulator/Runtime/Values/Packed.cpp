#include "Packed.hpp"

#include "Json.hpp"
#include "PropertyListText.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace sim {

namespace {

enum class Kind : char { null, no, yes, integer, real, string, data, date, array, object };

template <typename Number>
void putNumber(Number number, std::string &bytes) {
    char raw[sizeof number];
    std::memcpy(raw, &number, sizeof raw);
    bytes.append(raw, sizeof raw);
}

template <typename Number>
Number takeNumber(std::string_view &bytes) {
    Number number;
    std::memcpy(&number, bytes.data(), sizeof number);
    bytes.remove_prefix(sizeof number);
    return number;
}

void putText(std::string_view text, std::string &bytes) {
    putNumber(static_cast<uint32_t>(text.size()), bytes);
    bytes += text;
}

std::string takeText(std::string_view &bytes) {
    auto length = takeNumber<uint32_t>(bytes);
    std::string text(bytes.substr(0, length));
    bytes.remove_prefix(length);
    return text;
}

void putKind(Kind kind, std::string &bytes) { bytes += static_cast<char>(kind); }

// As it is.
struct Exact {
    static void text(const std::string &text, std::string &bytes) { putText(text, bytes); }
};

bool isAscii(const std::string &text) {
    return std::ranges::all_of(text, [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

// As JSON would have it.
struct Plain {
    static void text(const std::string &text, std::string &bytes) {
        if (isAscii(text) || isUtf8(text)) return putText(text, bytes);
        putText(parseJson(toJson(text)).string(), bytes);
    }
};

template <typename Form>
void packInto(std::string &bytes, const Value &value);

template <typename Form>
void packArray(std::string &bytes, const Array &items) {
    putKind(Kind::array, bytes);
    putNumber(static_cast<uint32_t>(items.size()), bytes);
    for (const auto &item : items) packInto<Form>(bytes, item);
}

template <typename Form>
void packObject(std::string &bytes, const Object &members) {
    putKind(Kind::object, bytes);
    putNumber(static_cast<uint32_t>(members.size()), bytes);
    for (const auto &[name, member] : members) {
        Form::text(name, bytes);
        packInto<Form>(bytes, member);
    }
}

template <typename Form>
void packReal(std::string &bytes, double number) {
    if (std::is_same_v<Form, Plain> && !std::isfinite(number)) return putKind(Kind::null, bytes);
    putKind(Kind::real, bytes);
    putNumber(number, bytes);
}

template <typename Form>
void packInto(std::string &bytes, const Value &value) {
    if (value.isReal()) return packReal<Form>(bytes, value.number());
    if (value.isString()) {
        putKind(Kind::string, bytes);
        Form::text(value.string(), bytes);
    } else if (value.isInteger()) {
        putKind(Kind::integer, bytes);
        putNumber(value.integer(), bytes);
    } else if (value.isNull()) {
        putKind(Kind::null, bytes);
    } else if (value.isBool()) {
        putKind(value.boolean() ? Kind::yes : Kind::no, bytes);
    } else if (value.isArray()) {
        packArray<Form>(bytes, value.array());
    } else if (value.isObject()) {
        packObject<Form>(bytes, value.object());
    } else if (value.isData()) {
        putKind(Kind::data, bytes);
        putText(value.data().bytes, bytes);
    } else {
        putKind(Kind::date, bytes);
        putNumber(value.date().seconds, bytes);
    }
}

Array takeArray(std::string_view &bytes) {
    Array items(takeNumber<uint32_t>(bytes));
    for (auto &item : items) item = unpack(bytes);
    return items;
}

Object takeObject(std::string_view &bytes) {
    Object members;
    for (auto count = takeNumber<uint32_t>(bytes); count > 0; --count) {
        std::string name = takeText(bytes);
        members.emplace_hint(members.end(), std::move(name), unpack(bytes));
    }
    return members;
}

// What the allocator adds to a block.
constexpr size_t kBlock = 16;
// A tree's node besides what it holds.
constexpr size_t kNode = 4 * sizeof(void *) + kBlock;

size_t outside(const std::string &text) {
    return text.capacity() > std::string().capacity() ? text.capacity() + 1 + kBlock : 0;
}

} // namespace

void pack(const Value &value, std::string &bytes) { packInto<Exact>(bytes, value); }
void packPlain(const Value &value, std::string &bytes) { packInto<Plain>(bytes, value); }

Value unpack(std::string_view &bytes) {
    switch (static_cast<Kind>(takeNumber<char>(bytes))) {
    case Kind::null:
        break;
    case Kind::no:
        return false;
    case Kind::yes:
        return true;
    case Kind::integer:
        return takeNumber<int64_t>(bytes);
    case Kind::real:
        return takeNumber<double>(bytes);
    case Kind::string:
        return takeText(bytes);
    case Kind::data:
        return Data{takeText(bytes)};
    case Kind::date:
        return Date{takeNumber<double>(bytes)};
    case Kind::array:
        return takeArray(bytes);
    case Kind::object:
        return takeObject(bytes);
    }
    return {};
}

size_t weight(const Value &value) {
    size_t sum = sizeof value;
    if (value.isString()) return sum + outside(value.string());
    if (value.isData()) return sum + outside(value.data().bytes);
    if (value.isArray()) {
        sum += kBlock + (value.array().capacity() - value.array().size()) * sizeof value;
        for (const auto &item : value.array()) sum += weight(item);
    } else if (value.isObject()) {
        for (const auto &[name, member] : value.object())
            sum += kNode + sizeof name + outside(name) + weight(member);
    }
    return sum;
}

} // namespace sim
