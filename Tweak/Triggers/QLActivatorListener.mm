#include "Tweak/Triggers/QLActivatorListener.h"

#include "Tweak/Core/Names.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Triggers/ShowPanel.h"
#include "Tweak/Triggers/Triggers.h"

#include <UIKit/UIImage.h>

@implementation QLActivatorListener

- (void)activator:(LAActivator *)activator receiveEvent:(LAEvent *)event {
    @autoreleasepool {
        if (pendix::isShow) {
            [pendix::Spring dismisPendixUI];
        } else {
            pendix::showPanel();
        }
    }
}

- (UIImage *)activator:(LAActivator *)activator
    requiresIconForListenerName:(NSString *)name
                          scale:(CGFloat)scale {
    return [UIImage imageWithContentsOfFile:pendix::names::paneIcon];
}

- (UIImage *)activator:(LAActivator *)activator
    requiresSmallIconForListenerName:(NSString *)name
                               scale:(CGFloat)scale {
    return [self activator:activator requiresIconForListenerName:name scale:scale];
}

- (NSString *)activator:(LAActivator *)activator requiresLocalizedGroupForListenerName:(NSString *)name {
    return nil;
}

- (NSString *)activator:(LAActivator *)activator requiresLocalizedTitleForListenerName:(NSString *)name {
    return @"Pendix";
}

- (NSString *)activator:(LAActivator *)activator
    requiresLocalizedDescriptionForListenerName:(NSString *)name {
    return pendix::Translator(@"activator_desc");
}

- (NSArray *)activator:(LAActivator *)activator
    requiresCompatibleEventModesForListenerWithName:(NSString *)name {
    return [NSArray arrayWithObjects:@"springboard", @"lockscreen", @"application", nil];
}

@end

void pendix::registerListener() {
    QLActivatorListener *listener = [QLActivatorListener new];
    [[objc_getClass("LAActivator") sharedInstance] registerListener:listener
                                                            forName:names::activatorListener];
    [listener release];
}
