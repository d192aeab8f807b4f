#include "PendixSettings/Passcode/passwordController.h"

#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Core/Sheets.h"
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

BOOL presentWrite(passwordController *page, SEL cancel, SEL typed) {
    NSString *const groups[] = {@"write"};
    return pane::present(
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

// Whoever left the list by another way than back to a page does not come back to this one.
- (void)viewDidLoad {
    [super viewDidLoad];
    pane::whereShowed = NO;
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if (pane::showed) return;
    if (pane::whereShowed) {
        pane::whereShowed = NO;
        return;
    }
    [self close:storedCode() && pendix::isOn(keys::lockEnabled)];
    if (_closed) [self askOnTheWayIn];
}

// What was presented when it was to appear may be gone now.
- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
    if (_closed && !pane::showed) [self askOnTheWayIn];
}

- (void)askOnTheWayIn {
    pane::showed = YES;
    if (!presentWrite(self, @selector(dismiss), @selector(textFieldDidChange:))) pane::showed = NO;
}

// Closed, it can be seen and left, and not used.
- (void)close:(BOOL)closed {
    _closed = closed;
    self.view.userInteractionEnabled = !closed;
}

- (void)textFieldDidChange:(UITextField *)field {
    if (!pane::enterInto(field, 0)) return;
    if (![field.text isEqual:storedCode()]) return pane::refuse(field, 0);
    pane::endEntry(field);
    [self close:NO];
    pane::dismissSheet(^{ pane::showed = NO; });
}

// When another page has come over this one, that one goes, and this one asks again.
- (void)dismiss {
    pane::dismissSheet(^{
        pane::showed = NO;
        [self.navigationController popViewControllerAnimated:YES];
    });
}

// The lock.

- (id)enable {
    return pane::showable(pendix::setting(keys::lockEnabled));
}

- (void)setEnable:(id)value {
    const BOOL before = pane::showed;
    pane::showed = YES;
    if (!storedCode()) {
        pendix::writeSetting(keys::lockEnabled, value);
        pane::showed = NO;
        return;
    }
    NSMutableDictionary *settings = pendix::settingsToChange();
    [settings setObject:value forKey:keys::lockEnabled];
    if (presentWrite(self, @selector(dismiss1), @selector(textFieldDidChange1:)))
        return pane::keep(pane::pendingSettings, settings);
    pane::showed = before;
    [self showAgain:_lockGroup];
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
    const BOOL before = pane::showed;
    pane::showed = YES;
    const NSInteger first = storedCode() ? 0 : 1;
    NSString *const groups[] = {@"old", @"new_pass", @"rewrite"};
    const BOOL presented = pane::present({
        .titleKey = @"change_pass", .page = self, .cancel = @selector(dismiss1),
        .typed = @selector(textFieldDidChange2:), .groups = groups, .first = first
    });
    if (!presented) {
        pane::showed = before;
        return;
    }
    pane::keep(pane::newCodes, [NSMutableArray array]);
    pane::changeStep = first;
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
