#include "Tweak/Core/QLActivatorListener.h"

#include "Tweak/Core/Names.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Panel/SpringBoard+Panel.h"
#include "Tweak/Triggers/ShowPanel.h"

#include <UIKit/UIImage.h>

@implementation QLActivatorListener

- (void)activator:(LAActivator *)activator receiveEvent:(LAEvent *)event {
    (void)activator, (void)event;
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
    (void)activator, (void)name, (void)scale;
    return [UIImage imageWithContentsOfFile:pendix::names::paneIcon];
}

- (UIImage *)activator:(LAActivator *)activator
    requiresSmallIconForListenerName:(NSString *)name
                               scale:(CGFloat)scale {
    return [self activator:activator requiresIconForListenerName:name scale:scale];
}

- (NSString *)activator:(LAActivator *)activator requiresLocalizedGroupForListenerName:(NSString *)name {
    (void)activator, (void)name;
    return nil;
}

- (NSString *)activator:(LAActivator *)activator requiresLocalizedTitleForListenerName:(NSString *)name {
    (void)activator, (void)name;
    return @"Pendix";
}

- (NSString *)activator:(LAActivator *)activator
    requiresLocalizedDescriptionForListenerName:(NSString *)name {
    (void)activator, (void)name;
    return pendix::Translator(@"activator_desc");
}

- (NSArray *)activator:(LAActivator *)activator
    requiresCompatibleEventModesForListenerWithName:(NSString *)name {
    (void)activator, (void)name;
    return [NSArray arrayWithObjects:@"springboard", @"lockscreen", @"application", nil];
}

@end
