#include "PropertyList.hpp"
#include "PropertyListReader.hpp"

#include <utility>

namespace sim {

namespace {

class ValueBuilder : public PropertyListBuilder {
public:
    void beginArray() override { open_.push_back({Array{}, {}}); }
    void endArray() override { close(); }
    void beginDictionary() override { open_.push_back({Object{}, {}}); }
    void key(std::string_view text) override { open_.back().key = text; }
    void endDictionary() override { close(); }
    void null() override { add(nullptr); }
    void boolean(bool flag) override { add(flag); }
    void integer(int64_t number) override { add(number); }
    void real(double number) override { add(number); }
    void string(std::string_view text) override { add(text); }
    void data(std::string_view bytes) override { add(Data{std::string(bytes)}); }
    void date(double seconds) override { add(Date{seconds}); }

    Value take() { return std::move(result_); }

private:
    struct Container {
        Value content;
        std::string key; // of the value to come
    };

    void close() {
        Value content = std::move(open_.back().content);
        open_.pop_back();
        add(std::move(content));
    }

    void add(Value value) {
        if (open_.empty()) {
            result_ = std::move(value);
        } else if (auto &parent = open_.back(); parent.content.isArray()) {
            parent.content.array().push_back(std::move(value));
        } else {
            parent.content.object().insert_or_assign(std::move(parent.key), std::move(value));
        }
    }

    std::vector<Container> open_;
    Value result_;
};

} // namespace

std::optional<Value> parsePropertyList(std::string_view bytes, std::string *error) {
    ValueBuilder builder;
    if (!readPropertyList(bytes, builder, error)) return std::nullopt;
    return builder.take();
}

} // namespace sim
