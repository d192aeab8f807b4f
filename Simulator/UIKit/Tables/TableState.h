// The simulator's side of tables and their cells.
#pragma once

#include "TableLayout.hpp"

#include <UIKit/UITableView.h>

#include <map>
#include <string>

// The texts above and below the rows of a group.
@interface UITableViewHeaderFooterView : UIView {
@public
    void *_headerFooterState;
}
- (instancetype)initWithText:(NSString *)text footer:(BOOL)footer;
- (NSString *)text;
- (BOOL)isFooter;
@end

namespace sim {

// A row's place among those of its group, for the lines around it and its corners.
struct RowPlace {
    bool first = false, last = false;
    bool grouped = true;
    bool rounded = false; // the group stands free of the edges, with round corners
};

void setPlace(UITableViewCell *cell, RowPlace place);
void setSeparatorColor(UITableViewCell *cell, UIColor *color);

// The height of a header's or footer's text that wide, its surroundings included.
CGFloat headerTextHeight(NSString *text, CGFloat width, bool firstGroup);
CGFloat footerTextHeight(NSString *text, CGFloat width);

// How far a group stands from each side of a table that wide: on an iPad from 400 points on (inferred).
CGFloat sectionInset(UITableView *table);

struct TableState {
    UITableViewStyle style = UITableViewStylePlain;
    id<UITableViewDataSource> dataSource = nil; // not retained
    CGFloat rowHeight = 44;
    UIColor *separator = nil;            // retained
    UIView *header = nil, *footer = nil; // retained
    bool allowsSelection = true;
    bool loaded = false; // the data source has been asked

    TableLayout layout;
    // What is on screen; retained.
    std::map<TableRow, UITableViewCell *> cells;
    std::map<size_t, UIView *> headers, footers;
    std::multimap<std::string, UITableViewCell *> reusable; // retained
    std::optional<TableRow> selected, touched;
};

TableState &state(UITableView *table);

inline NSIndexPath *path(TableRow row) {
    return [NSIndexPath indexPathForRow:static_cast<NSInteger>(row.row)
                              inSection:static_cast<NSInteger>(row.section)];
}
inline TableRow rowOf(NSIndexPath *path) {
    return {static_cast<size_t>([path section]), static_cast<size_t>([path row])};
}

// Asks for the number and height of everything anew.
void measureTable(UITableView *table);
// Makes what has come on screen and drops what has left it.
void fillTable(UITableView *table);
// Drops all of it.
void emptyTable(UITableView *table);
void dropSection(UITableView *table, size_t section);
// Every table of the process makes its rows anew, none from a cell that it had: texts have another size.
void remakeTables();

} // namespace sim
