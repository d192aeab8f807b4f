// What the system makes of settings files that somebody has spoilt, and of pictures that are not there.
#include "Probe/Question.h"

#include <UIKit/UIKit.h>

namespace probe {

namespace {

NSString *const kScratch = @"/var/mobile/Library/Preferences/org.quillhub.pendix.probe.scratch.plist";

// "nothing", or how many keys are read.
id read(NSString *content) {
    [content writeToFile:kScratch atomically:NO encoding:NSUTF8StringEncoding error:nullptr];
    NSDictionary *found = [NSDictionary dictionaryWithContentsOfFile:kScratch];
    [[NSFileManager defaultManager] removeItemAtPath:kScratch error:nullptr];
    return found ? number([found count]) : @"nothing";
}

id empty() { return read(@""); }

id blank() { return read(@" \n "); }

id unclosed() { return read(@"<plist version=\"1.0\"><dict><key>a</key><true/></dict>"); }

id oldStyle() { return read(@"{ a = 1; b = (2, 3); }"); }

id pairs() { return read(@"a = 1; b = 2;"); }

id list() { return read(@"<plist version=\"1.0\"><array><true/></array></plist>"); }

id twice() {
    return read(@"<plist version=\"1.0\"><dict><key>a</key><true/><key>a</key><false/></dict></plist>");
}

id missingImage() { return className([UIImage imageWithContentsOfFile:@"/no/such/image.png"]); }

id missingNamed() { return className([UIImage imageNamed:@"org.quillhub.pendix.probe.none"]); }

} // namespace

std::span<const Question> fileQuestions() {
    static const Question all[] = {
        {"property_list.empty", empty},       {"property_list.blank", blank},
        {"property_list.unclosed", unclosed}, {"property_list.old_style", oldStyle},
        {"property_list.pairs", pairs},       {"property_list.list", list},
        {"property_list.key_twice", twice},   {"image.missing_file", missingImage},
        {"image.missing_name", missingNamed}};
    return all;
}

} // namespace probe
