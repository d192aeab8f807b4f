// Lists of rows in sections.
#pragma once

#include <UIKit/UIScrollView.h>
#include <UIKit/UITableViewCell.h>

typedef NSInteger UITableViewStyle;
enum { UITableViewStylePlain = 0, UITableViewStyleGrouped = 1 };

typedef NSInteger UITableViewRowAnimation;
enum {
    UITableViewRowAnimationFade = 0,
    UITableViewRowAnimationNone = 5,
    UITableViewRowAnimationAutomatic = 100
};

typedef NSInteger UITableViewScrollPosition;
enum {
    UITableViewScrollPositionNone = 0,
    UITableViewScrollPositionTop = 1,
    UITableViewScrollPositionMiddle = 2,
    UITableViewScrollPositionBottom = 3
};

@interface NSIndexPath (UITableView)
+ (NSIndexPath *)indexPathForRow:(NSInteger)row inSection:(NSInteger)section;
@property (nonatomic, readonly) NSInteger section;
@property (nonatomic, readonly) NSInteger row;
@end

@class UITableView;

@protocol UITableViewDataSource <NSObject>
@required
- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section;
- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath;
@optional
- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView; // 1
- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section;
- (NSString *)tableView:(UITableView *)tableView titleForFooterInSection:(NSInteger)section;
@end

@protocol UITableViewDelegate <UIScrollViewDelegate>
@optional
// Points; -1 stands for the table's own height.
- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)indexPath;
- (CGFloat)tableView:(UITableView *)tableView heightForHeaderInSection:(NSInteger)section;
- (CGFloat)tableView:(UITableView *)tableView heightForFooterInSection:(NSInteger)section;
- (UIView *)tableView:(UITableView *)tableView viewForHeaderInSection:(NSInteger)section;
- (UIView *)tableView:(UITableView *)tableView viewForFooterInSection:(NSInteger)section;
- (void)tableView:(UITableView *)tableView
      willDisplayCell:(UITableViewCell *)cell
    forRowAtIndexPath:(NSIndexPath *)indexPath;
- (BOOL)tableView:(UITableView *)tableView shouldHighlightRowAtIndexPath:(NSIndexPath *)indexPath;
// The row to select; nil selects none.
- (NSIndexPath *)tableView:(UITableView *)tableView willSelectRowAtIndexPath:(NSIndexPath *)indexPath;
- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)indexPath;
@end

// Only rows on screen have cells. Delegate and data source are not retained.
@interface UITableView : UIScrollView {
@public
    void *_tableState;
}
- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style;
@property (nonatomic, readonly) UITableViewStyle style;
@property (nonatomic, assign) id<UITableViewDataSource> dataSource;
@property (nonatomic, assign) id<UITableViewDelegate> delegate;
@end
