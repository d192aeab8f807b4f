#include "Metadata.hpp"

#include <algorithm>
#include <functional>
#include <set>

namespace sim::macho {

namespace {

constexpr uint64_t kWord = 8, kClassSize = 40, kClassDataSize = 72, kCategorySize = 40, kStringSize = 32;
constexpr size_t kMostClasses = 5000;
constexpr std::string_view kClassPrefix = "_OBJC_CLASS_$_", kMetaclassPrefix = "_OBJC_METACLASS_$_";
constexpr std::string_view kGlobalBlock = "__NSConcreteGlobalBlock";

class Reader {
public:
    Reader(const File &file, const Fixups &fixups)
        : file_(file), bindings_(fixups.bindings), moving_(fixups.rebases.begin(), fixups.rebases.end()) {}

    Metadata read();

private:
    const File &file_;
    const std::map<uint64_t, Binding> &bindings_;
    std::set<uint64_t> moving_;
    Metadata result_;
    std::set<uint64_t> begun_;

    [[noreturn]] void fail(uint64_t address, const std::string &what) const {
        throw Error(file_.offsetOf(address), what);
    }
    uint64_t word(uint64_t address) const { return file_.at(address, kWord).number<uint64_t>(0); }
    uint32_t half(uint64_t address) const { return file_.at(address, 4).number<uint32_t>(0); }
    // Where the word points to within the library; 0 for a null pointer.
    uint64_t pointer(uint64_t address) const;
    uint64_t code(uint64_t address) const;
    std::string text(uint64_t address) const;
    ClassName className(uint64_t address) const;
    // The address of the first entry and how many there are.
    std::pair<uint64_t, uint32_t> list(uint64_t at, uint32_t entrySize) const;
    std::vector<Method> methods(uint64_t pointerAt) const;
    std::vector<Variable> variables(uint64_t pointerAt) const;
    std::vector<std::string> protocols(uint64_t pointerAt) const;
    uint64_t classData(uint64_t classAddress) const;
    void readClass(uint64_t address);
    void readCategory(uint64_t address);
    void readString(uint64_t address);
    void readBlock(uint64_t address);
    void each(std::string_view section, uint64_t size, const std::function<void(uint64_t)> &read) const;
};

uint64_t Reader::pointer(uint64_t address) const {
    uint64_t target = word(address);
    if (bindings_.contains(address)) fail(address, "a pointer into another library");
    if (!target) return 0;
    if (!moving_.contains(address)) fail(address, "a pointer that does not move with the library");
    if (!file_.segmentOf(target, 0)) fail(address, "a pointer out of the library");
    return target;
}

uint64_t Reader::code(uint64_t address) const {
    uint64_t target = pointer(address);
    const Segment *segment = file_.segmentOf(target, 4);
    if (!target || !segment || !segment->executable || target % 4)
        fail(address, "a function that is no code");
    return target;
}

std::string Reader::text(uint64_t address) const {
    uint64_t target = pointer(address);
    if (!target) fail(address, "a name that is missing");
    return std::string(file_.textAt(target));
}

ClassName Reader::className(uint64_t address) const {
    auto bound = bindings_.find(address);
    if (bound == bindings_.end()) return {.name = "", .address = pointer(address)};
    std::string_view symbol = bound->second.symbol;
    for (auto prefix : {kClassPrefix, kMetaclassPrefix})
        if (symbol.starts_with(prefix)) return {.name = std::string(symbol.substr(prefix.size()))};
    fail(address, "'" + std::string(symbol) + "' where a class should be");
}

std::pair<uint64_t, uint32_t> Reader::list(uint64_t at, uint32_t entrySize) const {
    constexpr uint32_t kFlags = 3;
    uint32_t size = half(at) & ~kFlags, count = half(at + 4);
    if (size != entrySize) fail(at, "entries of " + std::to_string(size) + " bytes");
    file_.at(at + 8, uint64_t{size} * count);
    return {at + 8, count};
}

std::vector<Method> Reader::methods(uint64_t pointerAt) const {
    std::vector<Method> result;
    uint64_t at = pointer(pointerAt);
    if (!at) return result;
    auto [entry, count] = list(at, 3 * kWord);
    for (; count; --count, entry += 3 * kWord)
        result.push_back({text(entry), text(entry + kWord), code(entry + 2 * kWord)});
    return result;
}

std::vector<Variable> Reader::variables(uint64_t pointerAt) const {
    constexpr uint32_t kPlainAlignment = ~0U, kLargestAlignment = 4, kLargestVariable = 1 << 20;
    std::vector<Variable> result;
    uint64_t at = pointer(pointerAt);
    if (!at) return result;
    auto [entry, count] = list(at, 4 * kWord);
    for (; count; --count, entry += 4 * kWord) {
        uint32_t alignment = half(entry + 24);
        if (alignment == kPlainAlignment) alignment = 3;
        if (half(entry + 28) > kLargestVariable) fail(entry + 28, "a variable of such a size");
        if (alignment > kLargestAlignment) fail(entry + 24, "an alignment of 2^" + std::to_string(alignment));
        uint64_t offsetAt = pointer(entry);
        const Segment *segment = file_.segmentOf(offsetAt, 4);
        if (offsetAt && (!segment || !segment->writable || offsetAt % 4))
            fail(entry, "an offset that cannot be set");
        result.push_back({offsetAt, offsetAt ? half(offsetAt) : 0, text(entry + 8), text(entry + 16),
                          half(entry + 28), alignment});
    }
    return result;
}

std::vector<std::string> Reader::protocols(uint64_t pointerAt) const {
    std::vector<std::string> result;
    uint64_t at = pointer(pointerAt);
    if (!at) return result;
    uint64_t count = word(at);
    file_.at(at + kWord, count > file_.memorySize() ? file_.memorySize() : count * kWord);
    for (uint64_t entry = at + kWord; count; --count, entry += kWord) {
        uint64_t protocol = pointer(entry);
        if (!protocol) fail(entry, "a protocol that is missing");
        result.push_back(text(protocol + kWord));
    }
    return result;
}

uint64_t Reader::classData(uint64_t classAddress) const {
    constexpr uint64_t kFlags = 7;
    file_.at(classAddress, kClassSize);
    uint64_t data = pointer(classAddress + 4 * kWord) & ~kFlags;
    if (!data) fail(classAddress, "a class without its data");
    file_.at(data, kClassDataSize);
    return data;
}

void Reader::readClass(uint64_t address) {
    if (!begun_.insert(address).second) return;
    if (begun_.size() > kMostClasses) fail(address, "more classes than a library has");
    uint64_t metaclass = pointer(address), data = classData(address);
    if (!metaclass) fail(address, "a class without a metaclass");
    ClassRecord record{.address = address,
                       .metaclassAddress = metaclass,
                       .name = text(data + 24),
                       .superclass = className(address + kWord),
                       .variables = variables(data + 48),
                       .methods = {methods(data + 32), methods(classData(metaclass) + 32)},
                       .protocols = protocols(data + 40)};
    const ClassName &above = record.superclass;
    if (above.name.empty() && !above.address) fail(address, record.name + " has no superclass");
    if (above.name.empty()) {
        bool begun = begun_.contains(above.address);
        readClass(above.address);
        // One that is still being read has this class above it.
        if (begun &&
            std::ranges::find(result_.classes, above.address, &ClassRecord::address) == result_.classes.end())
            fail(address, record.name + " is its own superclass");
    }
    result_.classes.push_back(std::move(record));
}

void Reader::readCategory(uint64_t address) {
    file_.at(address, kCategorySize);
    CategoryRecord record{.name = text(address),
                          .target = className(address + kWord),
                          .methods = {methods(address + 2 * kWord), methods(address + 3 * kWord)},
                          .protocols = protocols(address + 4 * kWord)};
    if (record.target.name.empty() && !record.target.address) fail(address, record.name + " is on no class");
    result_.categories.push_back(std::move(record));
}

void Reader::readString(uint64_t address) {
    constexpr uint64_t kPlainText = 0x7c8;
    if (word(address + kWord) != kPlainText) fail(address, "a constant string that is not plain ASCII");
    uint64_t at = pointer(address + 2 * kWord), length = word(address + 3 * kWord);
    if (!at || file_.textAt(at).size() != length) fail(address, "a constant string of another length");
    result_.strings.push_back({address, at, length});
}

void Reader::readBlock(uint64_t address) {
    constexpr uint32_t kHasFunctions = 1 << 25, kHasTypes = 1 << 30;
    uint32_t flags = half(address + kWord);
    if (!(flags & kHasTypes) || flags & kHasFunctions) fail(address, "a block of an unknown form");
    code(address + 2 * kWord);
    uint64_t descriptor = pointer(address + 3 * kWord);
    if (!descriptor) fail(address, "a block without its descriptor");
    result_.blocks.push_back({address, text(descriptor + 2 * kWord)});
}

void Reader::each(std::string_view section, uint64_t size, const std::function<void(uint64_t)> &read) const {
    const Section *found = file_.section(section);
    if (!found) return;
    if (found->size % size || found->address % kWord)
        fail(found->address, std::string(section) + " holds no whole entries");
    for (uint64_t at = 0; at < found->size; at += size) read(found->address + at);
}

Metadata Reader::read() {
    for (const char *eager : {"__objc_nlclslist", "__objc_nlcatlist"})
        if (const Section *found = file_.section(eager))
            fail(found->address, "a +load method, which is not supported");
    auto pointed = [this](uint64_t at) {
        uint64_t target = pointer(at);
        if (!target) fail(at, "an empty entry");
        return target;
    };
    each("__objc_classlist", kWord, [&](uint64_t at) { readClass(pointed(at)); });
    each("__objc_catlist", kWord, [&](uint64_t at) { readCategory(pointed(at)); });
    each("__cfstring", kStringSize, [&](uint64_t at) { readString(at); });
    each("__objc_selrefs", kWord, [&](uint64_t at) { result_.selectors.push_back({at, text(at)}); });
    for (const char *section : {"__objc_classrefs", "__objc_superrefs"})
        each(section, kWord, [&](uint64_t at) { result_.classReferences.push_back({at, className(at)}); });
    for (const auto &[address, binding] : bindings_)
        if (binding.symbol == kGlobalBlock) readBlock(address);
    each("__mod_init_func", kWord, [&](uint64_t at) { result_.initializers.push_back(code(at)); });

    std::set<uint64_t> own;
    for (const auto &record : result_.classes) own.insert({record.address, record.metaclassAddress});
    for (const auto &reference : result_.classReferences)
        if (reference.target.name.empty() && !own.contains(reference.target.address))
            fail(reference.address, "a reference to no class");
    for (const auto &category : result_.categories)
        if (category.target.name.empty() && !own.contains(category.target.address))
            throw Error(0, category.name + " is a category on no class");
    return std::move(result_);
}

} // namespace

Metadata readMetadata(const File &file, const Fixups &fixups) { return Reader(file, fixups).read(); }

std::vector<std::string> foreignClasses(const Fixups &fixups) {
    std::set<std::string> names;
    for (const auto &[address, binding] : fixups.bindings)
        if (binding.symbol.starts_with(kClassPrefix))
            names.insert(binding.symbol.substr(kClassPrefix.size()));
    return {names.begin(), names.end()};
}

} // namespace sim::macho
