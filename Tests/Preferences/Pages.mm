#include "Pages.h"

#include "Preferences/Lists/PSListController+Further.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/UIKit+Further.h"

@implementation NotingPage

- (void)viewWillAppear:(BOOL)animated {
    harness::note(name + " will appear");
}
- (void)viewDidAppear:(BOOL)animated {
    harness::note(name + " did appear");
}
- (void)viewWillDisappear:(BOOL)animated {
    harness::note(name + " will disappear");
}
- (void)viewDidDisappear:(BOOL)animated {
    harness::note(name + " did disappear");
}
- (NSUInteger)supportedInterfaceOrientations {
    return orientations ? orientations : [super supportedInterfaceOrientations];
}
- (void)willRotateToInterfaceOrientation:(UIInterfaceOrientation)next duration:(NSTimeInterval)duration {
    harness::note(name + " will turn");
}
- (void)willAnimateRotationToInterfaceOrientation:(UIInterfaceOrientation)next
                                         duration:(NSTimeInterval)duration {
    CGSize size = [[self view] bounds].size;
    harness::note(name + (size.width > size.height ? " turns, wide" : " turns, high"));
}
- (void)didRotateFromInterfaceOrientation:(UIInterfaceOrientation)before {
    harness::note(name + " did turn");
}

@end

@implementation TestList

- (void)dealloc {
    [values release];
    [super dealloc];
}

- (NSArray *)specifiers {
    if (!_specifiers && build) _specifiers = [build(self) retain];
    return _specifiers;
}

- (id)valueOf:(PSSpecifier *)specifier {
    return [values objectForKey:[specifier name]];
}
- (void)setValue:(id)value of:(PSSpecifier *)specifier {
    [values setObject:value forKey:[specifier name]];
    harness::note(std::string([[specifier name] UTF8String]) + " = " + [[value description] UTF8String]);
}
- (void)press:(PSSpecifier *)specifier {
    harness::note(std::string([[specifier name] UTF8String]) + " pressed");
}

@end

namespace harness {

NSString *text(const std::string &text) { return [NSString stringWithUTF8String:text.c_str()]; }

NotingPage *makePage(const std::string &name) {
    NotingPage *page = [[NotingPage new] autorelease];
    page->name = name;
    [page setTitle:text(name)];
    return page;
}

UIWindow *show(UIViewController *root) {
    UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 375, 667)];
    sim::setRole(window, sim::WindowRole::application);
    [window setRootViewController:root];
    [window makeKeyAndVisible];
    waitFor(0);
    return window;
}

TestList *showList(std::function<NSArray *(TestList *)> build) {
    TestList *list = [[TestList new] autorelease];
    list->build = std::move(build);
    list->values = [NSMutableDictionary new];
    show([[[UINavigationController alloc] initWithRootViewController:list] autorelease]);
    return list;
}

PSSpecifier *makeRow(TestList *list, NSString *name, PSCellType cell, Class detail) {
    PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:name
                                                      target:list
                                                         set:@selector(setValue:of:)
                                                         get:@selector(valueOf:)
                                                      detail:detail
                                                        cell:cell
                                                        edit:Nil];
    row->action = @selector(press:);
    return row;
}

PSSpecifier *makeGroup(NSString *footer) {
    PSSpecifier *group = [PSSpecifier emptyGroupSpecifier];
    [group setProperty:footer forKey:@"footerText"];
    return group;
}

CGPoint centreOf(UIView *view) {
    CGRect bounds = [view bounds];
    return [view convertPoint:{CGRectGetMidX(bounds), CGRectGetMidY(bounds)} toView:[view window]];
}

void tapRow(PSListController *list, NSInteger index) {
    tapAt(centreOf([list cachedCellForSpecifier:[list specifierAtIndex:index]]));
    waitFor(1);
}

void tapControl(PSListController *list, NSInteger index) {
    auto *cell =
        static_cast<PSControlTableCell *>([list cachedCellForSpecifier:[list specifierAtIndex:index]]);
    tapAt(centreOf([cell control]));
    waitFor(1);
}

std::vector<UIView *> viewsOf(UIView *view, Class kind) {
    std::vector<UIView *> result;
    if ([view isKindOfClass:kind]) result.push_back(view);
    for (UIView *child in [view subviews])
        for (UIView *found : viewsOf(child, kind)) result.push_back(found);
    return result;
}

} // namespace harness
