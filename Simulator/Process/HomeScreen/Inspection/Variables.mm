#include "Variables.h"

#include "Runtime/Process/LibraryVariables.hpp"

#import <Foundation/Foundation.h>

#include <map>

namespace sim {

namespace {

using Places = std::map<std::string, void *>;
Places flagPlaces, listPlaces;

void find(const Object &symbols, Places &places, Array &missing) {
    for (const auto &[name, symbol] : symbols) {
        void *place = libraryVariable(symbol.string());
        if (!place) {
            missing.emplace_back(name);
            continue;
        }
        places[name] = place;
    }
}

Value texts(id list) {
    if (!list) return {};
    Array result;
    for (id element in list) result.emplace_back([[element description] UTF8String]);
    return result;
}

} // namespace

Array watchVariables(const Object &flags, const Object &lists) {
    Array missing;
    flagPlaces.clear();
    listPlaces.clear();
    find(flags, flagPlaces, missing);
    find(lists, listPlaces, missing);
    return missing;
}

Value watchedVariables() {
    Object values;
    for (const auto &[name, place] : flagPlaces)
        values.emplace(name, *static_cast<const signed char *>(place) != 0);
    for (const auto &[name, place] : listPlaces) values.emplace(name, texts(*static_cast<id *>(place)));
    return values;
}

const signed char *watchedFlag(const std::string &name) {
    auto found = flagPlaces.find(name);
    return found == flagPlaces.end() ? nullptr : static_cast<const signed char *>(found->second);
}

} // namespace sim
