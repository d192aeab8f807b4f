#include "Value.hpp"

namespace sim {

namespace {

template <typename T, typename Content>
auto &get(Content &content, const char *wanted, const char *found) {
    if (auto *value = std::get_if<T>(&content)) return *value;
    throw ValueError(std::string("expected ") + wanted + ", found " + found);
}

} // namespace

const char *Value::kind() const {
    static constexpr const char *names[] = {"null", "boolean", "integer", "real",  "string",
                                            "data", "date",    "array",   "object"};
    return names[content_.index()];
}

bool Value::boolean() const { return get<bool>(content_, "boolean", kind()); }
int64_t Value::integer() const { return get<int64_t>(content_, "integer", kind()); }
double Value::number() const {
    return isInteger() ? static_cast<double>(integer()) : get<double>(content_, "number", kind());
}
const std::string &Value::string() const { return get<std::string>(content_, "string", kind()); }
const Data &Value::data() const { return get<Data>(content_, "data", kind()); }
const Date &Value::date() const { return get<Date>(content_, "date", kind()); }
const Array &Value::array() const { return get<Array>(content_, "array", kind()); }
Array &Value::array() { return get<Array>(content_, "array", kind()); }
const Object &Value::object() const { return get<Object>(content_, "object", kind()); }
Object &Value::object() { return get<Object>(content_, "object", kind()); }

const Value &Value::operator[](std::string_view name) const {
    static const Value null;
    if (!isObject()) return null;
    const auto &members = object();
    auto found = members.find(name);
    return found == members.end() ? null : found->second;
}

void Value::set(std::string name, Value value) {
    if (isNull()) content_ = Object{};
    object().insert_or_assign(std::move(name), std::move(value));
}

} // namespace sim
