#include "PendixSettings/Root/PendixSettingsController.h"

#include "PendixSettings/Configuration/configurationController.h"
#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Core/Sheets.h"
#include "PendixSettings/Root/creatorsController.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/SettingKeys.h"

#include <Twitter/TWTweetComposeViewController.h>

namespace keys = pendix::keys;
namespace pane = pendix::pane;

namespace {

NSString *const kTitleImage = @"Pendix_Title.png";
NSString *const kShareImage = @"happy.png";
NSString *const kEnableIcon = @"Enable@2x.png";
NSString *const kConfigurationIcon = @"Configuration.png";
NSString *const kContactIcon = @"Contact.png";

UIImageView *titleView() {
    UIImage *image = [[UIImage imageNamed:pendix::names::supportFile(kTitleImage)]
        imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
    return [[[UIImageView alloc] initWithImage:image] autorelease];
}

} // namespace

@implementation PendixSettingsController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.header(@"HeaderCellForPendix");
    pane::setIcon(rows.toggle(keys::enabled),
                  [UIImage imageWithContentsOfFile:pendix::names::supportFile(kEnableIcon)]);
    rows.group();
    rows.link(@"configuration", [configurationController class],
              pendix::names::supportFile(kConfigurationIcon));
    rows.group();
    pane::setIcon(rows.button(@"contacts", PSLinkCell, @selector(showCreators)),
                  [UIImage imageWithContentsOfFile:pendix::names::supportFile(kContactIcon)]);
    return rows.list();
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    self.navigationItem.titleView = titleView();
    pane::measure(self.view);
    [self reloadSpecifiers];
    [self addShareButton];
}

// The header is laid out for one size, so it is built anew.
- (void)willAnimateRotationToInterfaceOrientation:(UIInterfaceOrientation)orientation
                                         duration:(NSTimeInterval)duration {
    [super willAnimateRotationToInterfaceOrientation:orientation duration:duration];
    [self viewWillAppear:YES];
}

- (void)addShareButton {
    UIBarButtonItem *button = [[UIBarButtonItem alloc]
        initWithImage:[UIImage imageWithContentsOfFile:pendix::names::supportFile(kShareImage)]
                style:UIBarButtonItemStyleBordered
               target:self
               action:@selector(Tweet)];
    button.accessibilityLabel = pane::shownText(@"spoken_share");
    self.navigationItem.rightBarButtonItem = button;
    [button release];
}

// Presented instead of pushed: a page that another one holds turns with it.
- (void)showCreators {
    if (pane::sheetIsUp()) return;
    creatorsController *page = [creatorsController new];
    [self presentViewController:page animated:YES completion:nil];
    [page release];
}

- (void)Tweet {
    if (pane::sheetIsUp()) return;
    TWTweetComposeViewController *sheet = [objc_getClass("TWTweetComposeViewController") new];
    if (!sheet) return;
    [sheet setInitialText:pane::shownText(@"tweet")];
    [self presentViewController:sheet animated:YES completion:nil];
    [sheet release];
}

@end
