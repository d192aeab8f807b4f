// The classes and all else that the language runtime takes from a library, read and checked.
#pragma once

#include "Fixups.hpp"

namespace sim::macho {

// A class that the library names: one of another library, or the address of its own.
struct ClassName {
    std::string name;     // empty: its own
    uint64_t address = 0; // of its own; 0 with an empty name: none
};

struct Method {
    std::string selector, types;
    uint64_t implementation;
};

struct Variable {
    uint64_t offsetAt; // where its offset is kept, 32 bits; 0: nowhere
    uint32_t offset;   // what is kept there in the file: the offset that it was compiled with
    std::string name, type;
    uint32_t size, alignment; // the alignment as a power of two
};

struct Methods {
    std::vector<Method> ofInstances, ofClass;
};

struct ClassRecord {
    uint64_t address, metaclassAddress;
    std::string name;
    ClassName superclass;
    std::vector<Variable> variables;
    Methods methods;
    std::vector<std::string> protocols;
};

struct CategoryRecord {
    std::string name;
    ClassName target;
    Methods methods;
    std::vector<std::string> protocols;
};

struct ConstantString {
    uint64_t address, text, length;
};

struct SelectorReference {
    uint64_t address;
    std::string name;
};

// A block that captures nothing and so lies in the file.
struct GlobalBlock {
    uint64_t address;
    std::string types;
};

struct ClassReference {
    uint64_t address; // of the word that refers to the class, or to its metaclass
    ClassName target;
};

struct Metadata {
    std::vector<ClassRecord> classes; // each after its superclass
    std::vector<CategoryRecord> categories;
    std::vector<ConstantString> strings;
    std::vector<SelectorReference> selectors;
    std::vector<ClassReference> classReferences;
    std::vector<GlobalBlock> blocks;
    std::vector<uint64_t> initializers;
};

// Throws Error for all that does not lie where it should, and for what this loader does not know, such as
// +load.
Metadata readMetadata(const File &file, const Fixups &fixups);

// Names of the classes of other libraries that the library refers to, sorted.
std::vector<std::string> foreignClasses(const Fixups &fixups);

} // namespace sim::macho
