#include "LibraryItems.h"

#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Materials/DrawnImage.h"

#include <map>
#include <set>

namespace sim {

namespace {

NSString *pathOf(NSString *name, int scale) {
    NSString *suffix = scale > 1 ? [NSString stringWithFormat:@"@%dx", scale] : @"";
    return [NSString stringWithFormat:@"/System/Library/Frameworks/UIKit.framework/%@%@.png", name, suffix];
}

int screenScale() { return static_cast<int>(device().scale); }

// The file of the screen's scale, else any other.
render::BitmapRef load(NSString *name) {
    for (int scale : {screenScale(), 3, 2, 1})
        if (auto bitmap = loadBitmap(pathOf(name, scale))) return bitmap;
    return nullptr;
}

// An image in colours of its own goes before the template.
NSString *colouredName(NSString *name, UIStatusBarForegroundStyleAttributes *style) {
    if ([style isKindOfClass:[UIStatusBarLockScreenForegroundStyleAttributes class]])
        return [NSString stringWithFormat:@"LockScreen_%@_Color", name];
    bool black = [[style tintColor] isEqual:[UIColor blackColor]];
    return [NSString stringWithFormat:black ? @"Black_%@_Color" : @"White_%@_Color", name];
}

// A bar asks again and again; the event comes once.
void noteMissing(const std::string &path) {
    static std::set<std::string> noted;
    if (noted.insert(path).second) recordEvent("missing_file", Object{{"path", path}});
}

UIImage *find(NSString *name, UIStatusBarForegroundStyleAttributes *style) {
    std::string source = [name UTF8String];
    if (auto bitmap = load(colouredName(name, style))) return makeImage(bitmap, source);
    NSString *expanded = [style expandedNameForImageName:name];
    if (auto bitmap = load(expanded)) return flatImage(makeImage(bitmap, source), [style tintColor]);
    noteMissing([pathOf(expanded, screenScale()) UTF8String]);
    return nil;
}

} // namespace

UIImage *libraryImage(NSString *name, UIStatusBarForegroundStyleAttributes *style) {
    // For the life of the process: a file that changes goes unnoticed.
    static auto &images = *new std::map<std::string, UIImage *>;
    if ([name length] == 0) return nil;
    NSString *key = [NSString stringWithFormat:@"%@ %s", [style expandedNameForImageName:name],
                                               svgColor([style tintColor]).c_str()];
    UIImage *&image = images[[key UTF8String]];
    if (!image) image = [find(name, style) retain];
    return image;
}

} // namespace sim
