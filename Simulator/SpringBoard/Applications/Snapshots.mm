#include "Snapshots.h"

#include "ApplicationScreen.h"
#include "Applications.h"
#include "Render/Renderer.hpp"
#include "Runtime/Process/Device.hpp"

namespace sim {

namespace {

std::string picture(SBApplication *application) {
    render::Node page;
    page.bounds = {0, 0, device().width, device().height};
    drawApplicationScreen(page, application);
    render::Scene scene{.size = {device().width, device().height}, .scale = device().scale, .roots = {page}};
    render::Renderer renderer;
    return render::encodePng(renderer.draw(scene));
}

NSString *fileName() {
    int scale = static_cast<int>(device().scale);
    NSString *suffix = scale > 1 ? [NSString stringWithFormat:@"@%dx", scale] : @"";
    return [NSString stringWithFormat:@"UIApplicationAutomaticSnapshotDefault-Portrait%@.png", suffix];
}

void provide(SBApplication *application, NSString *folder) {
    NSFileManager *files = [NSFileManager defaultManager];
    if ([[files contentsOfDirectoryAtPath:folder error:nullptr] count] > 0) return;
    [files createDirectoryAtPath:folder withIntermediateDirectories:YES attributes:nil error:nullptr];
    std::string bytes = picture(application);
    [[NSData dataWithBytes:bytes.data()
                    length:bytes.size()] writeToFile:[folder stringByAppendingPathComponent:fileName()]
                                          atomically:NO];
}

} // namespace

NSString *snapshotFolder(SBApplication *application) {
    NSString *identifier = identifierOf(application);
    NSString *folder = [@"/var/mobile/Library/Caches/Snapshots" stringByAppendingPathComponent:identifier];
    if (record(application).snapshot)
        provide(application, [folder stringByAppendingPathComponent:identifier]);
    return folder;
}

} // namespace sim
