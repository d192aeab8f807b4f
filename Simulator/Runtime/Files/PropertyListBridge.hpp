// Foundation's objects and the values of property lists.
#pragma once

#include "Runtime/Values/PropertyListReader.hpp"
#include "Runtime/Values/Value.hpp"

#include <objc/objc.h>

#include <optional>
#include <vector>

namespace sim {

// Autoreleased and immutable; null becomes NSNull.
id objectFromValue(const Value &value);

// Nothing when the object, or anything in it, has no property-list form: another class, a key that is no
// string, an integer above those of 64 bits with sign, containers nested deeper than can be read back.
std::optional<Value> valueFromObject(id object);

// Builds Foundation's objects while a property list is read.
class ObjectBuilder : public PropertyListBuilder {
public:
    ObjectBuilder() = default;
    ~ObjectBuilder() override;
    ObjectBuilder(const ObjectBuilder &) = delete;
    ObjectBuilder &operator=(const ObjectBuilder &) = delete;

    void beginArray() override;
    void endArray() override;
    void beginDictionary() override;
    void key(std::string_view text) override;
    void endDictionary() override;
    void null() override;
    void boolean(bool flag) override;
    void integer(int64_t number) override;
    void real(double number) override;
    void string(std::string_view text) override;
    void data(std::string_view bytes) override;
    void date(double secondsSince2001) override;

    // What was read, autoreleased.
    id take();

private:
    struct Marks {
        size_t keys, values;
    };
    void endContainer(id container);

    std::vector<id> keys_, values_; // retained
    std::vector<Marks> open_;
};

} // namespace sim
