// A question about the running system that is answered by looking, and how answers are written: as numbers,
// texts, lists and dictionaries that a property list can hold.
#pragma once

#include "Probe/Table.h"

#include <CoreGraphics/CGGeometry.h>

#include <span>

namespace probe {

struct Question {
    const char *name;
    id (*answer)(); // never nil
    // What must be there before it may be asked, besides public methods; unused places are null. Where one is
    // not, the question counts as answered with "absent".
    Member needs[4] = {};
};

bool isThere(const Member &member);
id answerTo(const Question &question);

std::span<const Question> systemQuestions();
std::span<const Question> statusBarQuestions();
std::span<const Question> homeScreenQuestions();
std::span<const Question> viewQuestions();
std::span<const Question> controlQuestions();
std::span<const Question> materialQuestions();
std::span<const Question> fileQuestions();

NSNumber *number(double value);
NSNumber *flag(BOOL value);
NSString *text(const char *value); // "" for null
NSArray *rectangle(CGRect rect);   // x, y, width, height
NSArray *size(CGSize size);        // width, height
NSString *className(id object);    // "nothing" for nil
NSString *absent();                // the answer where the object of the question does not exist

} // namespace probe
