#include "PendixSettings/Passcode/passwordController.h"

#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Passcode/NewPSListItemsController.h"
#include "PendixSettings/Passcode/PasscodeSheet.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"

namespace keys = pendix::keys;
namespace pane = pendix::pane;

namespace {

// nil when none was ever set.
NSString *storedCode() {
    NSString *code = pendix::textSetting(keys::passcode);
    return [code length] ? code : nil;
}

void presentWrite(passwordController *page, SEL cancel, SEL typed) {
    NSString *const groups[] = {@"write"};
    pane::present(
        {.titleKey = @"write", .page = page, .cancel = cancel, .typed = typed, .groups = groups, .first = 0});
}

} // namespace

@implementation passwordController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    NSArray *moments = [NSArray arrayWithObjects:@"lockscreen", @"every", @"everyoff", nil];
    rows.group(@"desc_sec").toggle(@"security", @selector(setEnable:), @selector(enable));
    _lockGroup = rows.lastGroup();
    if (pendix::isOn(keys::hasSensor)) rows.group(@"desc_id").toggle(keys::unlocksByFinger);
    rows.group(@"desc_clear").toggle(keys::labelledKeys);
    rows.group(@"desc_where").choice(keys::lockMoment, moments, [NewPSListItemsController class]);
    rows.group(@"desc_ask").toggle(keys::asksFirst);
    rows.group(@"change_pass");
    PSSpecifier *button = rows.button(@"change_pass", PSButtonCell, @selector(changePass));
    [button setProperty:[NSNumber numberWithInt:PSAlignmentCenter] forKey:@"alignment"];
    return rows.list();
}

// The way in.

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if (pane::showed) return;
    if (pane::whereShowed) {
        pane::whereShowed = NO;
    } else if (storedCode() && pendix::isOn(keys::lockEnabled)) {
        pane::showed = YES;
        presentWrite(self, @selector(dismiss), @selector(textFieldDidChange:));
    }
}

- (void)textFieldDidChange:(UITextField *)field {
    if (!pane::enterInto(field, 0)) return;
    if (![field.text isEqual:storedCode()]) return pane::refuse(field, 0);
    pane::endEntry(field);
    pane::dismissSheet(^{ pane::showed = NO; });
}

- (void)dismiss {
    pane::dismissSheet(^{
        [self.navigationController popViewControllerAnimated:YES];
        pane::showed = NO;
    });
}

// The lock.

- (id)enable {
    return pane::showable(pendix::setting(keys::lockEnabled));
}

- (void)setEnable:(id)value {
    pane::showed = YES;
    if (!storedCode()) {
        pendix::writeSetting(keys::lockEnabled, value);
        pane::showed = NO;
        return;
    }
    pane::keep(pane::pendingSettings, pendix::settingsToChange());
    [pane::pendingSettings setObject:value forKey:keys::lockEnabled];
    presentWrite(self, @selector(dismiss1), @selector(textFieldDidChange1:));
}

- (void)textFieldDidChange1:(UITextField *)field {
    if (!pane::enterInto(field, 0)) return;
    if (![field.text isEqual:storedCode()]) return pane::refuse(field, 0);
    pane::endEntry(field);
    pendix::writeSettings(pane::pendingSettings);
    pane::dismissSheet(^{ pane::showed = NO; });
    [self showAgain:_lockGroup];
    pane::keep<NSMutableDictionary>(pane::pendingSettings, nil);
}

// Shows the switch as it is stored.
- (void)dismiss1 {
    pane::dismissSheet(^{ pane::showed = NO; });
    [self showAgain:_lockGroup];
    pane::keep<NSMutableDictionary>(pane::pendingSettings, nil);
    pane::keep<NSMutableArray>(pane::newCodes, nil);
}

// The code.

- (void)changePass {
    pane::showed = YES;
    pane::keep(pane::newCodes, [NSMutableArray array]);
    pane::changeStep = storedCode() ? 0 : 1;
    NSString *const groups[] = {@"old", @"new_pass", @"rewrite"};
    pane::present({
        .titleKey = @"change_pass", .page = self, .cancel = @selector(dismiss1),
        .typed = @selector(textFieldDidChange2:), .groups = groups, .first = pane::changeStep
    });
}

// Any new code will do.
- (NSString *)codeExpectedFor:(NSString *)typed {
    if (pane::changeStep == 0) return storedCode();
    if (pane::changeStep == 1) [pane::newCodes addObject:typed];
    return [pane::newCodes lastObject];
}

- (void)textFieldDidChange2:(UITextField *)field {
    const NSInteger step = pane::changeStep;
    if (!pane::enterInto(field, step)) return;
    NSString *typed = [[field.text copy] autorelease];
    if (![typed isEqual:[self codeExpectedFor:typed]]) return pane::refuse(field, step);
    pane::changeStep = step + 1;
    if (step < 2) return pane::advance(field, step);
    pane::endEntry(field);
    pendix::writeSetting(keys::passcode, typed);
    pane::keep<NSMutableArray>(pane::newCodes, nil);
    pane::dismissSheet(^{ pane::showed = NO; });
}

@end
