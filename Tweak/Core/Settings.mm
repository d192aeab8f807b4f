#include "Tweak/Core/Settings.h"
#include "Tweak/Core/SettingKeys.h"

#include "Tweak/Core/Names.h"

namespace pendix {

namespace {

BOOL boolOf(id value) { return [value respondsToSelector:@selector(boolValue)] ? [value boolValue] : NO; }

BOOL isOnFor(NSString *identifier, NSString *key, NSDictionary *settings) {
    id entry = identifier ? [settings objectForKey:identifier] : nil;
    return [entry respondsToSelector:@selector(objectForKey:)] &&
           boolOf([(NSDictionary *)entry objectForKey:key]);
}

} // namespace

NSDictionary *readSettings() { return [NSDictionary dictionaryWithContentsOfFile:names::settingsFile]; }

id setting(NSString *key) { return [readSettings() objectForKey:key]; }

BOOL isOn(NSString *key) { return boolOf(setting(key)); }

BOOL isOn(NSString *key, NSDictionary *settings) { return boolOf([settings objectForKey:key]); }

NSString *textSetting(NSString *key) {
    id value = setting(key);
    return [value isKindOfClass:[NSString class]] ? value : nil;
}

NSMutableDictionary *settingsToChange() {
    NSMutableDictionary *settings = [NSMutableDictionary dictionary];
    if (NSDictionary *stored = readSettings()) [settings addEntriesFromDictionary:stored];
    return settings;
}

void writeSettings(NSDictionary *settings) { [settings writeToFile:names::settingsFile atomically:YES]; }

void writeSetting(NSString *key, id value) {
    if (!value) return;
    NSMutableDictionary *settings = settingsToChange();
    [settings setObject:value forKey:key];
    writeSettings(settings);
}

UIColor *colorFrom(NSString *name) {
    struct {
        NSString *name;
        UIColor *color;
    } const known[] = {
        {@"black", [UIColor blackColor]},   {@"white", [UIColor whiteColor]},
        {@"gray", [UIColor grayColor]},     {@"red", [UIColor redColor]},
        {@"green", [UIColor greenColor]},   {@"blue", [UIColor blueColor]},
        {@"cyan", [UIColor cyanColor]},     {@"magenta", [UIColor magentaColor]},
        {@"orange", [UIColor orangeColor]}, {@"purple", [UIColor purpleColor]},
        {@"brown", [UIColor brownColor]},   {@"clear", [UIColor clearColor]},
        {@"yellow", [UIColor yellowColor]},
    };
    for (const auto &entry : known)
        if ([entry.name isEqual:name]) return entry.color;
    return [UIColor redColor];
}

UIColor *color(NSString *key, NSString *defaultName) { return color(key, defaultName, readSettings()); }

UIColor *color(NSString *key, NSString *defaultName, NSDictionary *settings) {
    const BOOL missing = !settings && ![[NSFileManager defaultManager] fileExistsAtPath:names::settingsFile];
    return colorFrom(missing ? defaultName : [settings objectForKey:key]);
}

BOOL hide_per(NSString *identifier) { return hide_per(identifier, identifier ? readSettings() : nil); }

BOOL hide_per(NSString *identifier, NSDictionary *settings) {
    return isOnFor(identifier, keys::appHidden, settings);
}

BOOL badge_per(NSString *identifier, NSDictionary *settings) {
    return isOnFor(identifier, keys::appWithoutMark, settings);
}

} // namespace pendix
