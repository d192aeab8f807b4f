#import <Foundation/Foundation.h>

#include "PropertyListBridge.hpp"

#include <cmath>
#include <cstring>
#include <limits>

namespace sim {

namespace {

NSString *newString(std::string_view text) {
    auto make = [](std::string_view bytes) {
        return [[NSString alloc] initWithBytes:bytes.data()
                                        length:bytes.size()
                                      encoding:NSUTF8StringEncoding];
    };
    if (!text.starts_with("\xef\xbb\xbf")) return make(text);
    // Here it is a character like any other; Foundation would take it for a mark of the encoding and drop it.
    NSString *behind = make("x" + std::string(text));
    NSString *result = [[behind substringFromIndex:1] retain];
    [behind release];
    return result;
}

void build(const Value &value, PropertyListBuilder &builder) {
    if (value.isBool()) {
        builder.boolean(value.boolean());
    } else if (value.isInteger()) {
        builder.integer(value.integer());
    } else if (value.isReal()) {
        builder.real(value.number());
    } else if (value.isString()) {
        builder.string(value.string());
    } else if (value.isData()) {
        builder.data(value.data().bytes);
    } else if (value.isDate()) {
        builder.date(value.date().seconds);
    } else if (value.isArray()) {
        builder.beginArray();
        for (const auto &item : value.array()) build(item, builder);
        builder.endArray();
    } else if (value.isObject()) {
        builder.beginDictionary();
        for (const auto &[name, item] : value.object()) {
            builder.key(name);
            build(item, builder);
        }
        builder.endDictionary();
    } else {
        builder.null();
    }
}

std::string textOf(NSString *string) {
    NSData *bytes = [string dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    return std::string(static_cast<const char *>([bytes bytes]), [bytes length]);
}

std::optional<Value> valueOfNumber(NSNumber *number) {
    // Foundation's booleans are of a class of their own.
    static Class booleans = [[NSNumber numberWithBool:YES] class];
    if ([number isKindOfClass:booleans]) return Value([number boolValue] != NO);
    char type = *[number objCType];
    if (type == *@encode(double) || type == *@encode(float)) return Value([number doubleValue]);
    if (type == *@encode(unsigned long long) &&
        [number unsignedLongLongValue] > static_cast<uint64_t>(std::numeric_limits<int64_t>::max()))
        return std::nullopt;
    return Value([number longLongValue]);
}

std::optional<Value> convert(id object, int depth);

std::optional<Value> valueOfArray(NSArray *array, int depth) {
    Array items;
    for (id item in array) {
        auto value = convert(item, depth);
        if (!value) return std::nullopt;
        items.push_back(*std::move(value));
    }
    return items;
}

std::optional<Value> valueOfDictionary(NSDictionary *dictionary, int depth) {
    Object members;
    for (id key in dictionary) {
        auto value = convert([dictionary objectForKey:key], depth);
        if (!value || ![key isKindOfClass:[NSString class]]) return std::nullopt;
        members.insert_or_assign(textOf(key), *std::move(value));
    }
    return members;
}

std::optional<Value> convert(id object, int depth) {
    if (depth > kDeepestPropertyList) return std::nullopt;
    if ([object isKindOfClass:[NSString class]]) return Value(textOf(object));
    if ([object isKindOfClass:[NSNumber class]]) return valueOfNumber(object);
    if ([object isKindOfClass:[NSArray class]]) return valueOfArray(object, depth + 1);
    if ([object isKindOfClass:[NSDictionary class]]) return valueOfDictionary(object, depth + 1);
    if ([object isKindOfClass:[NSDate class]]) return Value(Date{[object timeIntervalSinceReferenceDate]});
    if ([object isKindOfClass:[NSData class]])
        return Value(Data{std::string(static_cast<const char *>([object bytes]), [object length])});
    return std::nullopt;
}

} // namespace

id objectFromValue(const Value &value) {
    ObjectBuilder builder;
    build(value, builder);
    return builder.take();
}

std::optional<Value> valueFromObject(id object) { return convert(object, 0); }

ObjectBuilder::~ObjectBuilder() {
    for (id object : keys_) [object release];
    for (id object : values_) [object release];
}

void ObjectBuilder::beginArray() { open_.push_back({keys_.size(), values_.size()}); }

void ObjectBuilder::endArray() {
    size_t first = open_.back().values;
    endContainer([[NSArray alloc] initWithObjects:values_.data() + first count:values_.size() - first]);
}

void ObjectBuilder::beginDictionary() { open_.push_back({keys_.size(), values_.size()}); }

void ObjectBuilder::endDictionary() {
    auto [firstKey, firstValue] = open_.back();
    endContainer([[NSDictionary alloc] initWithObjects:values_.data() + firstValue
                                               forKeys:keys_.data() + firstKey
                                                 count:keys_.size() - firstKey]);
}

void ObjectBuilder::endContainer(id container) {
    auto [firstKey, firstValue] = open_.back();
    open_.pop_back();
    for (size_t i = firstKey; i < keys_.size(); ++i) [keys_[i] release];
    for (size_t i = firstValue; i < values_.size(); ++i) [values_[i] release];
    keys_.resize(firstKey);
    values_.resize(firstValue);
    values_.push_back(container);
}

void ObjectBuilder::key(std::string_view text) { keys_.push_back(newString(text)); }
void ObjectBuilder::null() { values_.push_back([[NSNull null] retain]); }
void ObjectBuilder::boolean(bool flag) { values_.push_back([[NSNumber alloc] initWithBool:flag]); }
void ObjectBuilder::integer(int64_t number) { values_.push_back([[NSNumber alloc] initWithLongLong:number]); }
void ObjectBuilder::real(double number) { values_.push_back([[NSNumber alloc] initWithDouble:number]); }
void ObjectBuilder::string(std::string_view text) { values_.push_back(newString(text)); }

void ObjectBuilder::data(std::string_view bytes) {
    values_.push_back([[NSData alloc] initWithBytes:bytes.data() length:bytes.size()]);
}

// A phone makes a date of what is not a number, too; Foundation here would end the process.
void ObjectBuilder::date(double secondsSince2001) {
    if (std::isnan(secondsSince2001)) secondsSince2001 = 0;
    values_.push_back([[NSDate alloc] initWithTimeIntervalSinceReferenceDate:secondsSince2001]);
}

id ObjectBuilder::take() {
    id result = values_.back();
    values_.pop_back();
    return [result autorelease];
}

} // namespace sim
