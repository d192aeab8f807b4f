// Builds the rows of a page. A row is labelled with the text of its settings key, by which the page's
// accessors find the key again.
#pragma once

#include "PendixSettings/Core/PendixListController.h"

namespace pendix::pane {

class Rows {
public:
    // The page is the target of its rows, and is not retained.
    explicit Rows(id page) : page_(page), rows_([NSMutableArray array]) {}

    // Begins a group, with a footer's text under it when there is a key.
    Rows &group(NSString *footerKey = nil);
    PSSpecifier *lastGroup() const { return group_; } // nil before the first
    // A group that shows a view of that class, a table cell, above its rows.
    PSSpecifier *header(NSString *cellClass);

    PSSpecifier *toggle(NSString *key, SEL setter = @selector(setValue:forSpecifier:),
                        SEL getter = @selector(getValue:));
    PSSpecifier *link(NSString *key, Class page, NSString *iconFile = nil);
    // Does not look its name up.
    PSSpecifier *namedLink(NSString *name, Class page, UIImage *icon);
    PSSpecifier *button(NSString *key, PSCellType cell, SEL action);
    // A page with one of the values to choose. Titles are the texts of the values.
    PSSpecifier *choice(NSString *key, NSArray *values, Class page);
    // The values side by side, as they are.
    PSSpecifier *segments(NSString *key, NSArray *values);

    NSArray *list() const { return rows_; }

private:
    PSSpecifier *add(NSString *name, SEL setter, SEL getter, Class detail, PSCellType cell);

    id page_;
    NSMutableArray *rows_;
    PSSpecifier *group_ = nil;
};

// Sets the text under the group.
void explain(PSSpecifier *group, NSString *footerKey);

// Leaves the row as it is without a picture.
void setIcon(PSSpecifier *row, UIImage *icon);

} // namespace pendix::pane
