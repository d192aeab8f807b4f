#include "InstalledApplications.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/Images/ApplicationIcons.h"
#include "UIKit/Images/UIImage+Further.h"

#include <AppList/AppList.h>

#include <algorithm>
#include <map>
#include <utility>

namespace sim {

namespace {

// Shows web pages inside other applications: installed on every device.
const InstalledApplication kWebViewService = {"com.apple.WebViewService", "WebViewService", false};

std::vector<InstalledApplication> &list() {
    static std::vector<InstalledApplication> shared;
    return shared;
}

const InstalledApplication *find(const std::string &identifier) {
    for (const auto &application : list())
        if (application.identifier == identifier) return &application;
    return nullptr;
}

UIImage *scaled(UIImage *image, CGFloat side) {
    UIGraphicsBeginImageContextWithOptions(CGSizeMake(side, side), NO, device().scale);
    [image drawInRect:CGRectMake(0, 0, side, side)];
    UIImage *result = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    return result;
}

} // namespace

void setInstalledApplications(std::vector<InstalledApplication> applications) {
    list() = std::move(applications);
    if (!find(kWebViewService.identifier)) list().push_back(kWebViewService);
}

const std::vector<InstalledApplication> &installedList() { return list(); }

} // namespace sim

@implementation ALApplicationList

+ (instancetype)sharedApplicationList {
    static ALApplicationList *shared = [self new];
    return shared;
}

- (NSDictionary *)applications {
    NSMutableDictionary *result = [NSMutableDictionary dictionary];
    for (const auto &application : sim::installedList())
        [result setObject:[NSString stringWithUTF8String:application.name.c_str()]
                   forKey:[NSString stringWithUTF8String:application.identifier.c_str()]];
    return result;
}

- (UIImage *)iconOfSize:(NSUInteger)size forDisplayIdentifier:(NSString *)identifier {
    static auto &cache = *new std::map<std::pair<std::string, NSUInteger>, UIImage *>;
    if (!identifier) return nil;
    UIImage *&image = cache[{[identifier UTF8String], size}];
    const auto *known = sim::find([identifier UTF8String]);
    if (!image && known)
        image = [sim::scaled(sim::drawApplicationIcon({known->identifier, known->name, known->icon}),
                             static_cast<CGFloat>(size)) retain];
    return image;
}

@end
