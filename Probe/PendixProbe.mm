#include "Probe/PendixProbe.h"

#include "Probe/Asking.h"
#include "Probe/Calls.h"
#include "Probe/Declared.h"
#include "Probe/Motion/Motion.h"
#include "Probe/Question.h"
#include "Probe/Watching/Watching.h"

#include <Substrate/CydiaSubstrate.h>
#include <UIKit/UIKit.h>

namespace probe {

namespace {

NSString *const kFile = @"/var/mobile/Library/Preferences/org.quillhub.pendix.probe.plist";
constexpr int kFormat = 1;
// Seconds: until the home screen has come to rest, for what moves to end, and between looks for new calls.
constexpr NSTimeInterval kRest = 5, kMotion = 8, kCalls = 2;

void (*launch)(id, SEL, id);
NSMutableDictionary *values; // {question: answer}
BOOL newAnswers;             // since the file was written

void launched(id self, SEL selector, id application) {
    launch(self, selector, application);
    watchLaunch();
    PendixProbe *prober = [PendixProbe new]; // lives as long as the process
    [prober performSelector:@selector(look) withObject:nil afterDelay:kRest];
}

NSString *endedTheHomeScreen() { return @"ended the home screen"; }

void answerAll(std::span<const Question> questions) {
    for (const Question &question : questions) {
        NSString *name = text(question.name);
        [values setObject:mayAsk(name) ? answerTo(question) : endedTheHomeScreen() forKey:name];
    }
}

// All at once, for they run beside one another.
void startMotions() {
    BOOL may = mayAsk(@"motions");
    for (const Motion &motion : motions())
        [values setObject:may ? unanswered() : endedTheHomeScreen() forKey:text(motion.name)];
    for (const Motion &motion : motions())
        if (may) motion.start();
}

void startWatching() {
    BOOL may = mayAsk(@"watching");
    for (const char *name : watchedQuestions())
        [values setObject:may ? unanswered() : endedTheHomeScreen() forKey:text(name)];
    if (may) watchPerson();
}

NSDictionary *report() {
    NSMutableDictionary *result = [NSMutableDictionary dictionary];
    [result setObject:[NSNumber numberWithInt:kFormat] forKey:@"format"];
    [result setObject:declaredFacts() forKey:@"declared"];
    [result setObject:values forKey:@"values"];
    [result setObject:recordedCalls() forKey:@"calls"];
    return result;
}

} // namespace

void startAfterLaunch() {
    Class target = objc_getClass("SpringBoard");
    if (!target) return;
    MSHookMessageEx(target, sel_registerName("applicationDidFinishLaunching:"),
                    reinterpret_cast<IMP>(&launched), reinterpret_cast<IMP *>(&launch));
}

void answerLater(const char *name, id answer) {
    NSString *key = text(name);
    if (![unanswered() isEqual:[values objectForKey:key]]) return;
    [values setObject:answer forKey:key];
    newAnswers = YES;
}

} // namespace probe

using namespace probe;

@implementation PendixProbe

- (void)look {
    values = [NSMutableDictionary new];
    answerAll(systemQuestions());
    answerAll(statusBarQuestions());
    answerAll(homeScreenQuestions());
    answerAll(viewQuestions());
    answerAll(controlQuestions());
    answerAll(materialQuestions());
    answerAll(fileQuestions());
    startMotions();
    [self performSelector:@selector(write) withObject:nil afterDelay:kMotion];
}

- (void)write {
    endMotions();
    startWatching();
    askedEverything();
    hasNewCalls();
    newAnswers = NO;
    [report() writeToFile:kFile atomically:YES];
    [NSTimer scheduledTimerWithTimeInterval:kCalls
                                     target:self
                                   selector:@selector(writeNewCalls)
                                   userInfo:nil
                                    repeats:YES];
}

- (void)writeNewCalls {
    BOOL calls = hasNewCalls();
    if (!calls && !newAnswers) return;
    newAnswers = NO;
    [report() writeToFile:kFile atomically:YES];
}

@end
