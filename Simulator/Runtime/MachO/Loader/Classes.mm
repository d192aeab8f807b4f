#import <Foundation/Foundation.h>

#include "Classes.hpp"

#include "Hooking.hpp"
#include "Runtime/Objc/HiddenClasses.hpp"
#include "Runtime/Objc/Methods.hpp"
#include "VariableArguments.hpp"

#include <map>
#include <set>
#include <stdexcept>
#include <string>

namespace sim {

namespace {

class Registration {
public:
    Registration(const Image &image, const macho::Metadata &metadata) : image_(image), metadata_(metadata) {}

    void run() {
        for (const auto &string : metadata_.strings) makeString(string);
        for (const auto &reference : metadata_.selectors)
            image_.write(reference.address, sel_registerName(reference.name.c_str()));
        for (const auto &record : metadata_.classes) makeClass(record);
        for (const auto &category : metadata_.categories) addCategory(category);
        for (const auto &reference : metadata_.classReferences)
            if (reference.target.name.empty())
                image_.write(reference.address, made_.at(reference.target.address));
    }

private:
    const Image &image_;
    const macho::Metadata &metadata_;
    std::map<uint64_t, Class> made_; // by the address of the class, and of its metaclass
    std::set<Class> fixed_;          // those whose superclasses are the library's own up to NSObject

    Class classOf(const macho::ClassName &name) const {
        if (name.name.empty()) return made_.at(name.address);
        return findHiddenClass(name.name.c_str());
    }

    // The class is bound; the rest takes the form that Foundation here has for constant strings.
    void makeString(const macho::ConstantString &string) const {
        image_.write(string.address + 8, image_.at(string.text));
        image_.write(string.address + 16, string.length);
        image_.write(string.address + 24, uint64_t{0});
    }

    // A category may bring a method that its class has; a new class has none yet.
    void addMethods(Class target, const std::vector<macho::Method> &methods, bool mayReplace) const {
        for (const auto &method : methods) {
            std::string name = std::string(class_isMetaClass(target) ? "+[" : "-[") + class_getName(target) +
                               " " + method.selector + "]";
            if (hasVariableArguments(method.selector))
                throw std::runtime_error(name +
                                         " takes variable arguments, which the device passes differently");
            auto code = reinterpret_cast<IMP>(image_.at(method.implementation));
            SEL selector = sel_registerName(method.selector.c_str());
            IMP entered = enteredFromHere(code, method.types.c_str(), name);
            if (class_addMethod(target, selector, entered, method.types.c_str())) continue;
            if (!mayReplace || !class_getInstanceMethod(target, selector))
                throw std::runtime_error("the runtime does not take " + name);
            replaceMethod(target, selector, entered);
        }
    }

    void addProtocols(Class target, const std::vector<std::string> &protocols) const {
        for (const auto &name : protocols)
            if (Protocol *protocol = objc_getProtocol(name.c_str())) class_addProtocol(target, protocol);
    }

    void makeClass(const macho::ClassRecord &record) {
        Class above = classOf(record.superclass);
        Class made = objc_allocateClassPair(above, record.name.c_str(), 0);
        if (!made) throw std::runtime_error("there is a class " + record.name + " already");
        for (const auto &variable : record.variables)
            if (!class_addIvar(made, variable.name.c_str(), variable.size,
                               static_cast<uint8_t>(variable.alignment), variable.type.c_str()))
                throw std::runtime_error(record.name + " cannot have a variable " + variable.name);
        addMethods(made, record.methods.ofInstances, false);
        addMethods(object_getClass(made), record.methods.ofClass, false);
        addProtocols(made, record.protocols);
        objc_registerClassPair(made);
        // The compiler takes NSObject's size for granted: such a class's code may hold its offsets as
        // numbers.
        bool isFixed = record.superclass.name == "NSObject" || fixed_.contains(above);
        for (const auto &variable : record.variables) {
            ptrdiff_t offset = ivar_getOffset(class_getInstanceVariable(made, variable.name.c_str()));
            if (!variable.offsetAt) continue;
            if (isFixed && offset != variable.offset)
                throw std::runtime_error(record.name + " has its variable " + variable.name + " at " +
                                         std::to_string(offset) + ", and its code was compiled for " +
                                         std::to_string(variable.offset));
            image_.write(variable.offsetAt, static_cast<int32_t>(offset));
        }
        if (isFixed) fixed_.insert(made);
        made_[record.address] = made;
        made_[record.metaclassAddress] = object_getClass(made);
    }

    void addCategory(const macho::CategoryRecord &category) const {
        Class target = classOf(category.target);
        finishConstruction(target);
        finishConstruction(object_getClass(target));
        addMethods(target, category.methods.ofInstances, true);
        addMethods(object_getClass(target), category.methods.ofClass, true);
        addProtocols(target, category.protocols);
    }
};

} // namespace

void registerMetadata(const Image &image, const macho::Metadata &metadata) {
    Registration(image, metadata).run();
}

} // namespace sim
