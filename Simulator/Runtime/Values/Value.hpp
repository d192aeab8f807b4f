// Values that travel between processes, into event lists and to and from property lists.
#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace sim {

class Value;
using Array = std::vector<Value>;
// Sorted by key, so that whatever is printed or enumerated comes in one order.
using Object = std::map<std::string, Value, std::less<>>;

// Raw bytes; found in property lists only.
struct Data {
    std::string bytes;
    bool operator==(const Data &) const = default;
};

// A moment, in seconds since 2001-01-01 00:00:00 UTC; found in property lists only.
struct Date {
    double seconds = 0;
    bool operator==(const Date &) const = default;
};

// Thrown by the typed accessors; the text names what was wanted and what was there.
struct ValueError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Value {
public:
    Value() = default;
    Value(std::nullptr_t) {}
    Value(bool flag) : content_(flag) {}
    Value(int number) : content_(int64_t{number}) {}
    Value(long number) : content_(int64_t{number}) {}
    Value(long long number) : content_(int64_t{number}) {}
    Value(unsigned number) : content_(int64_t{number}) {}
    Value(unsigned long number) : content_(static_cast<int64_t>(number)) {}
    Value(double number) : content_(number) {}
    Value(const char *text) : content_(std::string(text)) {}
    Value(std::string_view text) : content_(std::string(text)) {}
    Value(std::string text) : content_(std::move(text)) {}
    Value(Data data) : content_(std::move(data)) {}
    Value(Date date) : content_(date) {}
    Value(Array items) : content_(std::move(items)) {}
    Value(Object members) : content_(std::move(members)) {}
    // A stray pointer would otherwise turn into a boolean.
    template <typename T>
    Value(T *) = delete;

    bool isNull() const { return std::holds_alternative<std::nullptr_t>(content_); }
    bool isBool() const { return std::holds_alternative<bool>(content_); }
    bool isInteger() const { return std::holds_alternative<int64_t>(content_); }
    bool isReal() const { return std::holds_alternative<double>(content_); }
    bool isNumber() const { return isInteger() || isReal(); }
    bool isString() const { return std::holds_alternative<std::string>(content_); }
    bool isData() const { return std::holds_alternative<Data>(content_); }
    bool isDate() const { return std::holds_alternative<Date>(content_); }
    bool isArray() const { return std::holds_alternative<Array>(content_); }
    bool isObject() const { return std::holds_alternative<Object>(content_); }
    // "null", "boolean", "integer", "real", "string", "data", "date", "array" or "object".
    const char *kind() const;

    // Each throws ValueError when the value is of another kind; `number` takes integers as well.
    bool boolean() const;
    int64_t integer() const;
    double number() const;
    const std::string &string() const;
    const Data &data() const;
    const Date &date() const;
    const Array &array() const;
    Array &array();
    const Object &object() const;
    Object &object();

    // The member of that name; null when the value is no object or has no such member.
    const Value &operator[](std::string_view name) const;
    bool has(std::string_view name) const { return !(*this)[name].isNull(); }
    // Adds or replaces a member; a null value becomes an object first.
    void set(std::string name, Value value);

    bool operator==(const Value &) const = default;

private:
    std::variant<std::nullptr_t, bool, int64_t, double, std::string, Data, Date, Array, Object> content_;
};

} // namespace sim
