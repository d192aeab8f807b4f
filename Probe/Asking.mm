#include "Probe/Asking.h"

namespace probe {

namespace {

// {"asking": name, "ended": names}
NSString *const kFile = @"/var/mobile/Library/Preferences/org.quillhub.pendix.probe.asking.plist";

NSMutableDictionary *state;

// What was being asked when the file was written for the last time has ended the process.
void readState() {
    state = [NSMutableDictionary new];
    NSDictionary *left = [NSDictionary dictionaryWithContentsOfFile:kFile];
    NSMutableArray *ended = [NSMutableArray array];
    if (id known = [left objectForKey:@"ended"]) [ended addObjectsFromArray:known];
    if (id asking = [left objectForKey:@"asking"]) [ended addObject:asking];
    [state setObject:ended forKey:@"ended"];
}

} // namespace

BOOL mayAsk(NSString *name) {
    if (!state) readState();
    if ([[state objectForKey:@"ended"] containsObject:name]) return NO;
    [state setObject:name forKey:@"asking"];
    [state writeToFile:kFile atomically:YES];
    return YES;
}

void askedEverything() {
    [state removeObjectForKey:@"asking"];
    [state writeToFile:kFile atomically:YES];
}

} // namespace probe
