#include "PendixSettings/Root/PendixSettingsController.h"

#include "PendixSettings/Configuration/configurationController.h"
#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Root/creatorsController.h"

#include <Twitter/TWTweetComposeViewController.h>

namespace pane = pendix::pane;

namespace {

NSString *const kTitleImage = @"/Library/Application Support/Pendix/Pendix_Title.png";
NSString *const kShareImage = @"/Library/Application Support/Pendix/happy.png";
NSString *const kEnableIcon = @"/Library/Application Support/Pendix/Enable@2x.png";
NSString *const kConfigurationIcon = @"/Library/Application Support/Pendix/Configuration.png";
NSString *const kContactIcon = @"/Library/Application Support/Pendix/Contact.png";

UIImageView *titleView() {
    UIImage *image =
        [[UIImage imageNamed:kTitleImage] imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
    return [[[UIImageView alloc] initWithImage:image] autorelease];
}

} // namespace

@implementation PendixSettingsController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.header(@"HeaderCellForPendix");
    pane::setIcon(rows.toggle(@"enable"), [UIImage imageWithContentsOfFile:kEnableIcon]);
    rows.group();
    rows.link(@"configuration", [configurationController class], kConfigurationIcon);
    rows.group();
    rows.link(@"contacts", [creatorsController class], kContactIcon);
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
    UIBarButtonItem *button =
        [[UIBarButtonItem alloc] initWithImage:[UIImage imageWithContentsOfFile:kShareImage]
                                         style:UIBarButtonItemStyleBordered
                                        target:self
                                        action:@selector(Tweet)];
    self.navigationItem.rightBarButtonItem = button;
    [button release];
}

- (void)Tweet {
    TWTweetComposeViewController *sheet = [objc_getClass("TWTweetComposeViewController") new];
    if (!sheet) return;
    [sheet setInitialText:pane::Translator(@"tweet")];
    [self presentViewController:sheet animated:YES completion:nil];
    [sheet release];
}

@end
