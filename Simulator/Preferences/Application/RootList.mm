#include "RootList.h"

#include "PreferenceEntries.h"
#include "StockRows.h"
#include "UIKit/Text/SystemTexts.hpp"

#include "Preferences/Lists/PSListController+Further.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/UIKit+Further.h"

namespace {

struct RootListState {
    UINavigationController *detail = nil; // not retained: the split view holds both
};

RootListState &state(PSUIPrefsListController *list) {
    return sim::lazyState<RootListState>(list->_rootListState);
}

} // namespace

@implementation PSUIPrefsListController

- (instancetype)init {
    if ((self = [super init])) [self setTitle:[NSString stringWithUTF8String:sim::systemTexts().settings]];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (NSArray *)specifiers {
    if (_specifiers) return _specifiers;
    NSMutableArray *rows = [NSMutableArray array];
    [rows addObjectsFromArray:sim::stockRows()];
    NSArray *entries = sim::preferenceEntries(self, @selector(openEntry:));
    if ([entries count]) {
        [rows addObject:[PSSpecifier emptyGroupSpecifier]];
        [rows addObjectsFromArray:entries];
    }
    _specifiers = [rows retain];
    return _specifiers;
}

- (void)viewWillAppear:(BOOL)animated {
    NSIndexPath *marked = state(self).detail ? [[self table] indexPathForSelectedRow] : nil;
    [super viewWillAppear:animated];
    [[self table] selectRowAtIndexPath:marked animated:NO scrollPosition:UITableViewScrollPositionNone];
}

- (void)setDetailNavigation:(UINavigationController *)navigation {
    state(self).detail = navigation;
}

// Beside its page, the row that leads to it stays marked.
- (void)mark:(PSSpecifier *)specifier {
    NSInteger group = 0, row = 0;
    if (![self getGroup:&group row:&row ofSpecifierAtIndex:[self indexOfSpecifier:specifier]]) return;
    [[self table] selectRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:group]
                              animated:NO
                        scrollPosition:UITableViewScrollPositionNone];
}

- (BOOL)openPageOf:(PSSpecifier *)entry animated:(BOOL)animated {
    UIViewController *page = sim::makeEntryController(entry);
    if (!page) return NO;
    if (UINavigationController *detail = state(self).detail) {
        [detail setViewControllers:[NSArray arrayWithObject:page] animated:NO];
        [self mark:entry];
    } else {
        [self pushController:page animated:animated];
    }
    return YES;
}

- (void)openEntry:(PSSpecifier *)entry {
    [self openPageOf:entry animated:YES];
}

- (BOOL)openEntryNamed:(NSString *)name animated:(BOOL)animated {
    PSSpecifier *entry = [self specifierForID:name];
    return entry && [entry propertyForKey:@"bundle"] && [self openPageOf:entry animated:animated];
}

- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)path {
    PSSpecifier *specifier = [self specifierAtIndex:[self indexForIndexPath:path]];
    if (![specifier detailControllerClass] || !state(self).detail)
        return [super tableView:tableView didSelectRowAtIndexPath:path];
    UIViewController *page = [[[[specifier detailControllerClass] alloc] init] autorelease];
    [static_cast<PSViewController *>(page) setSpecifier:specifier];
    [state(self).detail setViewControllers:[NSArray arrayWithObject:page] animated:NO];
}

@end

namespace {

constexpr CGFloat kListWidth = 320;

struct SplitState {
    UIViewController *list = nil, *pane = nil; // not retained: they are children
    UIView *line = nil;                        // retained by the view
};

SplitState &state(PSSplitViewController *split) { return sim::lazyState<SplitState>(split->_splitState); }

} // namespace

@implementation PSSplitViewController

- (instancetype)initWithList:(UIViewController *)list pane:(UIViewController *)pane {
    if (!(self = [super init])) return nil;
    state(self) = {list, pane};
    [self addChildViewController:list];
    [self addChildViewController:pane];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (void)loadView {
    [super loadView];
    auto &mine = state(self);
    [[self view] addSubview:[mine.list view]];
    [[self view] addSubview:[mine.pane view]];
    mine.line = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
    [mine.line setBackgroundColor:[UIColor colorWithWhite:0.7 alpha:1]];
    [[self view] addSubview:mine.line];
    [self arrange];
}

- (void)arrange {
    auto &mine = state(self);
    CGSize size = [[self view] bounds].size;
    CGFloat hair = 1 / [[UIScreen mainScreen] scale];
    [[mine.list view] setFrame:CGRectMake(0, 0, kListWidth, size.height)];
    [[mine.pane view] setFrame:CGRectMake(kListWidth, 0, size.width - kListWidth, size.height)];
    [mine.line setFrame:CGRectMake(kListWidth - hair, 0, hair, size.height)];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    [self arrange];
}

@end
