#include "Boot.hpp"

#include <cerrno>
#include <type_traits>

namespace sim {

namespace {

// The fields of the message that a script does not give under the same name, or at all.
template <typename Struct, typename Field>
void eachMessageField(Struct &fields, Field &field) {
    eachField(fields, field);
}

template <typename Field>
void eachMessageField(ApplicationSpec &application, Field &field) {
    eachField(application, field);
    field("dock", application.dock);
}

template <typename Field>
void eachMessageField(DeviceProfile &device, Field &field) {
    field("name", device.name);
    field("machine", device.machine);
    field("width", device.width);
    field("height", device.height);
    field("scale", device.scale);
    field("pad", device.pad);
    field("touch_sensor", device.touchSensor);
    field("reachability", device.reachability);
    field("version", device.version);
    field("language", device.language);
}

template <typename Field>
void eachMessageField(BootMessage &message, Field &field) {
    eachField(static_cast<SharedOptions &>(message), field);
    field("apps", message.applications);
    field("fail_writes", message.writeFailures);
    field("color_badges", message.colorBadges);
    field("device", message.device);
    field("orientation", message.orientation);
    field("now", message.now);
    field("wall_clock", message.wallClock);
    field("root", message.root);
    field("platform", message.platform);
    field("count_reads_of", message.countedFile);
    field("entry", message.entry);
}

struct Writer {
    Object object;

    template <typename Member>
    void operator()(const char *name, Member &member) {
        object.emplace(name, value(member));
    }

    template <typename Member>
    static Value value(Member &member) {
        if constexpr (std::is_constructible_v<Value, Member &>) {
            return member;
        } else {
            Writer inner;
            eachMessageField(member, inner);
            return std::move(inner.object);
        }
    }
    template <typename Member>
    static Value value(std::vector<Member> &members) {
        Array items;
        for (auto &member : members) items.push_back(value(member));
        return items;
    }
    template <typename Member>
    static Value value(std::optional<Member> &member) {
        return member ? value(*member) : Value();
    }
};

struct Reader {
    const Value &object;

    template <typename Member>
    void operator()(const char *name, Member &member) {
        read(object[name], member);
    }

    static void read(const Value &value, bool &member) { member = value.boolean(); }
    static void read(const Value &value, int64_t &member) { member = value.integer(); }
    static void read(const Value &value, double &member) { member = value.number(); }
    static void read(const Value &value, std::string &member) { member = value.string(); }
    template <typename Member>
    static void read(const Value &value, Member &member) {
        Reader inner{value};
        eachMessageField(member, inner);
    }
    template <typename Member>
    static void read(const Value &value, std::vector<Member> &members) {
        for (const auto &item : value.array()) read(item, members.emplace_back());
    }
    template <typename Member>
    static void read(const Value &value, std::optional<Member> &member) {
        if (!value.isNull()) read(value, member.emplace());
    }
};

} // namespace

std::optional<int> errorNumber(const std::string &name) {
    constexpr struct {
        std::string_view name;
        int number;
    } kErrors[] = {{"EACCES", EACCES}, {"EIO", EIO}, {"ENOSPC", ENOSPC}, {"EROFS", EROFS}};
    for (const auto &error : kErrors)
        if (name == error.name) return error.number;
    return std::nullopt;
}

Value toValue(BootMessage message) { return Writer::value(message); }

BootMessage readBootMessage(const Value &message) {
    BootMessage result;
    Reader::read(message, result);
    return result;
}

} // namespace sim
