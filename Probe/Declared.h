// What the runtime says of the classes, methods and variables of the table.
#pragma once

#import <Foundation/Foundation.h>

namespace probe {

// {id: dictionary}. The ids are "class NAME", "method -[NAME selector]" and "variable NAME.variable"; each
// dictionary has "present" and, where it is YES:
//   of a class     "superclass" (the chain up to the root, nearest first) and "size" of an instance in bytes
//   of a method    "types", its encoding, and "owner", the class that implements it
//   of a variable  "types"
NSDictionary *declaredFacts();

} // namespace probe
