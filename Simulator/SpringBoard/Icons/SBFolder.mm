#include "Icons.h"

#include "Runtime/Objc/LazyState.hpp"

using sim::state;

namespace {

struct FolderState {
    std::string name;
    int number = 0;
    std::vector<SBIcon *> icons; // retained
};

FolderState &contents(SBFolder *folder) { return sim::lazyState<FolderState>(folder->_folderState); }

} // namespace

namespace sim {

SBFolderIcon *makeFolderIcon(const std::string &name, int number) {
    SBFolder *folder = [SBFolder new];
    contents(folder).name = name;
    contents(folder).number = number;
    SBFolderIcon *icon = [[SBFolderIcon new] autorelease];
    state(icon).folder = folder;
    return icon;
}

void putIntoFolder(SBIcon *icon, SBFolderIcon *folderIcon) {
    contents(state(folderIcon).folder).icons.push_back([icon retain]);
    state(icon).container = folderIcon;
}

const std::vector<SBIcon *> &iconsInFolder(SBIcon *folderIcon) {
    return contents(state(folderIcon).folder).icons;
}

} // namespace sim

@implementation SBFolder

- (void)dealloc {
    for (SBIcon *icon : contents(self).icons) [icon release];
    delete &contents(self);
    [super dealloc];
}

- (NSSet *)allIcons {
    const auto &icons = contents(self).icons;
    return [NSSet setWithObjects:icons.data() count:icons.size()];
}

- (NSString *)displayName {
    return [NSString stringWithUTF8String:contents(self).name.c_str()];
}

@end

@implementation SBFolderIcon

- (SBFolder *)folder {
    return state(self).folder;
}

- (BOOL)isFolderIcon {
    return YES;
}

// Folders have identifiers of their own making.
- (NSString *)nodeIdentifier {
    return [NSString stringWithFormat:@"00000000-0000-4000-8000-%012d", contents(state(self).folder).number];
}

- (NSString *)displayName {
    return [state(self).folder displayName];
}

// Texts do not count.
- (id)badgeNumberOrString {
    NSInteger sum = 0;
    for (SBIcon *icon : sim::iconsInFolder(self)) {
        id badge = [icon badgeNumberOrString];
        if ([badge isKindOfClass:[NSNumber class]]) sum += std::max<NSInteger>([badge integerValue], 0);
    }
    return sum > 0 ? [NSNumber numberWithInteger:sum] : nil;
}

@end
