#import <Foundation/Foundation.h>

#include "Runtime/MachO/DeviceLibrary.hpp"

#include "BlockCode.hpp"
#include "Checks.hpp"
#include "Classes.hpp"
#include "Image.hpp"
#include "Imports.hpp"
#include "Messages.hpp"
#include "Runtime/Process/CrashFrames.hpp"

#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <vector>

namespace sim {

namespace {

std::map<std::string, void *, std::less<>> &definedSymbols() {
    static auto &all = *new std::map<std::string, void *, std::less<>>;
    return all;
}

std::vector<uint8_t> bytesOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("it cannot be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

// All of them are looked for, so that one error names all that is missing.
void bind(const Image &image, const macho::Fixups &fixups) {
    std::string missing;
    std::map<std::string, bool> named;
    for (const auto &[address, binding] : fixups.bindings) {
        void *place = findImport(binding.symbol);
        if (place) {
            image.write(address, reinterpret_cast<uint64_t>(place) + static_cast<uint64_t>(binding.addend));
        } else if (!named[binding.symbol]) {
            named[binding.symbol] = true;
            missing += (missing.empty() ? "" : ", ") + binding.symbol;
        }
    }
    if (!missing.empty()) throw std::runtime_error("the platform has no " + missing);
}

void checkSelectors(const macho::Metadata &metadata) {
    std::vector<std::string> names;
    for (const auto &reference : metadata.selectors) {
        checkSelector(reference.name);
        names.push_back(reference.name);
    }
    checkMethodsHere(names.data(), names.size());
}

void keepSymbols(const Image &image, const macho::File &file) {
    for (const auto &symbol : file.symbols())
        if (symbol.name.starts_with('_'))
            definedSymbols().emplace(symbol.name.substr(1), image.at(symbol.address));
}

void runInitializers(const Image &image, const macho::Metadata &metadata) {
    using Initializer = void (*)(int, const char **, const char **, const char **);
    const char *none[] = {nullptr};
    for (uint64_t address : metadata.initializers)
        reinterpret_cast<Initializer>(image.at(address))(0, none, none, none);
}

} // namespace

void loadDeviceLibrary(const std::string &path) {
    @autoreleasepool {
        std::vector<uint8_t> bytes = bytesOf(path);
        macho::File file(bytes);
        macho::Fixups fixups = macho::readFixups(file);
        macho::Metadata metadata = macho::readMetadata(file, fixups);
        checkSelectors(metadata);
        auto &image = *new Image(file, fixups); // as long as the process
        bind(image, fixups);
        keepSymbols(image, file);
        checkBlocks(image, metadata);
        registerMetadata(image, metadata);
        image.protect(file);
        addCodeForCrashes(path, image.begin(), image.size());
        reportCountsAtExit();
        runInitializers(image, metadata);
    }
}

void *deviceSymbol(const std::string &name) {
    auto found = definedSymbols().find(name);
    return found == definedSymbols().end() ? nullptr : found->second;
}

} // namespace sim
