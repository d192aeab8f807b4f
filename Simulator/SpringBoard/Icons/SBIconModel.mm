#include "Icons.h"

#include "Runtime/Objc/Versions.hpp"

#include <map>

namespace sim {

namespace {

struct Model {
    std::vector<SBIcon *> leaves; // retained, as are the folders
    NSMutableDictionary *byIdentifier = [NSMutableDictionary new];
    HomeIcons home;
    std::map<std::string, SBFolderIcon *> folders;
};

Model &model() {
    static Model shared;
    return shared;
}

// The folder's icon, made and put onto the home screen when it is first named.
SBFolderIcon *folderIcon(const std::string &name) {
    SBFolderIcon *&icon = model().folders[name];
    if (!icon) {
        icon = [makeFolderIcon(name, static_cast<int>(model().folders.size())) retain];
        model().home.pages.push_back(icon);
    }
    return icon;
}

id iconWithIdentifier(id, SEL, NSString *identifier) { return findIcon(identifier); }

const VersionedMethod kMethods[] = {
    {"SBIconModel", "applicationIconForDisplayIdentifier:", "@@:@", implementation(iconWithIdentifier),
     kOldest, kLast7},
    {"SBIconModel", "applicationIconForBundleIdentifier:", "@@:@", implementation(iconWithIdentifier),
     kFirst8, kNewest},
};
const bool kRegistered = (registerVersionedMethods(kMethods), true);

} // namespace

const HomeIcons &homeIcons() { return model().home; }

SBIcon *findIcon(NSString *identifier) {
    return identifier ? [model().byIdentifier objectForKey:identifier] : nil;
}

NSArray *allLeafIcons() {
    return [NSArray arrayWithObjects:model().leaves.data() count:model().leaves.size()];
}

void makeIcons(const std::vector<ApplicationSpec> &specs) {
    for (SBApplication *application : installedApplications()) {
        SBIcon *icon = [makeApplicationIcon(application) retain];
        model().leaves.push_back(icon);
        NSString *identifier = identifierOf(application);
        if (!findIcon(identifier)) [model().byIdentifier setObject:icon forKey:identifier];
    }
    for (const auto &spec : specs) {
        SBIcon *icon = findIcon([NSString stringWithUTF8String:spec.identifier.c_str()]);
        if (!spec.folder.empty()) {
            putIntoFolder(icon, folderIcon(spec.folder));
        } else {
            (spec.dock ? model().home.dock : model().home.pages).push_back(icon);
        }
    }
}

} // namespace sim

@implementation SBIconModel

- (SBIcon *)expectedIconForDisplayIdentifier:(NSString *)identifier {
    return sim::findIcon(identifier);
}

- (SBIcon *)leafIconForIdentifier:(NSString *)identifier {
    return sim::findIcon(identifier);
}

- (NSSet *)leafIcons {
    return [NSSet setWithArray:sim::allLeafIcons()];
}

@end
