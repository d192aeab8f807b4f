#include "PreferenceEntries.h"

#include "EntryLoading.h"
#include "Preferences/Cells/PSTableCell+Further.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Runtime/Process/Events.hpp"

#include <Preferences/Preferences.h>

namespace {

NSString *const kFolder = @"/Library/PreferenceLoader/Preferences";
NSString *const kBundles = @"/Library/PreferenceBundles";

NSString *bundlePath(NSDictionary *entry) {
    NSString *name = [entry objectForKey:@"bundle"];
    if (![name isKindOfClass:[NSString class]]) return nil;
    return [kBundles stringByAppendingPathComponent:[name stringByAppendingPathExtension:@"bundle"]];
}

UIImage *iconOf(NSDictionary *entry) {
    NSString *name = [entry objectForKey:@"icon"];
    NSString *bundle = bundlePath(entry);
    if (![name isKindOfClass:[NSString class]] || !bundle) return nil;
    NSString *file = [name isAbsolutePath] ? name : [bundle stringByAppendingPathComponent:name];
    return [UIImage
        imageNamed:[[file pathExtension] length] ? file : [file stringByAppendingPathExtension:@"png"]];
}

NSString *text(NSDictionary *entry, NSString *key) {
    NSString *value = [entry objectForKey:key];
    return [value isKindOfClass:[NSString class]] ? value : nil;
}

PSSpecifier *makeRow(NSString *file, NSDictionary *entry, id target, SEL action) {
    NSString *name = [file stringByDeletingPathExtension];
    NSString *label = text(entry, @"label");
    PSSpecifier *row =
        [PSSpecifier preferenceSpecifierNamed:label ? label : name
                                       target:target
                                          set:nullptr
                                          get:nullptr
                                       detail:Nil
                                         cell:[PSTableCell cellTypeFromString:text(entry, @"cell")]
                                         edit:Nil];
    row->action = action;
    [row setProperties:entry];
    [row setIdentifier:name];
    [row setProperty:iconOf(entry) forKey:@"iconImage"];
    return row;
}

} // namespace

namespace sim {

NSArray *preferenceEntries(id target, SEL action) {
    NSArray *files = [[NSFileManager defaultManager] contentsOfDirectoryAtPath:kFolder error:nullptr];
    NSMutableArray *result = [NSMutableArray array];
    for (NSString *file in [files sortedArrayUsingSelector:@selector(compare:)]) {
        if (![[file pathExtension] isEqualToString:@"plist"]) continue;
        NSDictionary *content =
            [NSDictionary dictionaryWithContentsOfFile:[kFolder stringByAppendingPathComponent:file]];
        NSDictionary *entry = [content objectForKey:@"entry"];
        if ([entry isKindOfClass:[NSDictionary class]]) {
            [result addObject:makeRow(file, entry, target, action)];
        } else {
            recordWarning("no entry in " + std::string([file UTF8String]));
        }
    }
    return result;
}

id makeEntryController(PSSpecifier *entry) {
    NSString *bundle = bundlePath([entry properties]);
    NSDictionary *info =
        [NSDictionary dictionaryWithContentsOfFile:[bundle stringByAppendingPathComponent:@"Info.plist"]];
    NSString *executable = text(info, @"CFBundleExecutable");
    std::string problem =
        executable ? loadExecutable([[bundle stringByAppendingPathComponent:executable] UTF8String])
                   : "it names no executable";
    NSString *detail = text([entry properties], @"detail");
    NSString *className = detail ? detail : text(info, @"NSPrincipalClass");
    Class page = className ? NSClassFromString(className) : Nil;
    if (problem.empty() && !page) problem = "its class is missing";
    if (!problem.empty()) {
        recordWarning("the bundle of '" + std::string([[entry name] UTF8String]) +
                      "' was not opened: " + problem);
        return nil;
    }
    UIViewController *controller = [[[page alloc] init] autorelease];
    if ([controller isKindOfClass:[PSViewController class]])
        [static_cast<PSViewController *>(controller) setSpecifier:entry];
    return controller;
}

} // namespace sim
