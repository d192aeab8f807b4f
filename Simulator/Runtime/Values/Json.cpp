#include "Json.hpp"

#include <nlohmann/json.hpp>

namespace sim {

namespace {

using nlohmann::json;

Value fromLibrary(const json &node) {
    switch (node.type()) {
    case json::value_t::boolean:
        return node.get<bool>();
    case json::value_t::number_integer:
    case json::value_t::number_unsigned:
        return node.get<int64_t>();
    case json::value_t::number_float:
        return node.get<double>();
    case json::value_t::string:
        return node.get<std::string>();
    case json::value_t::array: {
        Array items;
        for (const auto &item : node) items.push_back(fromLibrary(item));
        return items;
    }
    case json::value_t::object: {
        Object members;
        for (const auto &[name, item] : node.items()) members.emplace(name, fromLibrary(item));
        return members;
    }
    default:
        return nullptr;
    }
}

json toLibrary(const Value &value) {
    if (value.isNull()) return nullptr;
    if (value.isBool()) return value.boolean();
    if (value.isInteger()) return value.integer();
    if (value.isReal()) return value.number();
    if (value.isString()) return value.string();
    if (value.isArray()) {
        json items = json::array();
        for (const auto &item : value.array()) items.push_back(toLibrary(item));
        return items;
    }
    if (value.isObject()) {
        json members = json::object();
        for (const auto &[name, item] : value.object()) members[name] = toLibrary(item);
        return members;
    }
    throw ValueError(std::string("no JSON form for ") + value.kind());
}

} // namespace

Value parseJson(std::string_view text) {
    json node = json::parse(text, nullptr, false);
    if (node.is_discarded()) throw ValueError("not JSON: " + std::string(text.substr(0, 80)));
    return fromLibrary(node);
}

std::string toJson(const Value &value) {
    return toLibrary(value).dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace sim
