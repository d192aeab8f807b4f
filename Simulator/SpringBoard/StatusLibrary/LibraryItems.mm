#include "LibraryItems.h"

#include "UIKit/StatusBar/StockItems.h"

#include <algorithm>
#include <memory>
#include <objc/runtime.h>

namespace sim {

namespace {

std::vector<std::unique_ptr<LibraryItem>> &items() {
    static std::vector<std::unique_ptr<LibraryItem>> list;
    return list;
}

NSString *indicatorName(UIStatusBarItem *self, SEL) {
    LibraryItem *item = findLibraryItem(self);
    return item ? item->imageName : nil;
}

_UILegibilityImageSet *contentsImage(UIStatusBarItemView *self, SEL) {
    LibraryItem *item = findLibraryItem([self item]);
    UIImage *image = item ? libraryImage(item->imageName, [self foregroundStyle]) : nil;
    return image ? [self imageFromImage:image] : nil;
}

// A class of the library's own, made when it is first needed.
Class makeClass(const char *name, Class superclass, SEL selector, IMP method) {
    if (Class made = objc_lookUpClass(name)) return made;
    Class made = objc_allocateClassPair(superclass, name, 0);
    class_addMethod(made, selector, method, "@@:");
    objc_registerClassPair(made);
    return made;
}

UIStatusBarItem *makeBarItem(StatusBarAlignment alignment) {
    constexpr int kCustomType = 100;
    constexpr double kGap = 6;
    StatusBarSide side = alignment == StatusBarAlignmentLeft    ? StatusBarSide::left
                         : alignment == StatusBarAlignmentRight ? StatusBarSide::right
                                                                : StatusBarSide::center;
    Class itemClass = makeClass("UIStatusBarCustomItem", [UIStatusBarItem class], @selector(indicatorName),
                                reinterpret_cast<IMP>(indicatorName));
    Class viewClass = makeClass("UIStatusBarCustomItemView", [UIStatusBarItemView class],
                                @selector(contentsImage), reinterpret_cast<IMP>(contentsImage));
    UIStatusBarItem *item = [itemClass new];
    setState(item, {kCustomType, nullptr, {side, kFirstForeignOrder, 0, kGap}, viewClass});
    return item;
}

} // namespace

LibraryItem &retainLibraryItem(const std::string &identifier, StatusBarAlignment alignment) {
    LibraryItem *item = findLibraryItem(identifier);
    if (!item) {
        items().push_back(std::make_unique<LibraryItem>());
        item = items().back().get();
        item->identifier = identifier;
        item->alignment = alignment;
        item->barItem = makeBarItem(alignment);
    }
    ++item->owners;
    return *item;
}

void releaseLibraryItem(LibraryItem &item) {
    if (--item.owners > 0) return;
    removeStatusBarItem(item.barItem);
    [item.barItem release];
    [item.imageName release];
    std::erase_if(items(), [&](const auto &candidate) { return candidate.get() == &item; });
}

LibraryItem *findLibraryItem(const std::string &identifier) {
    for (const auto &item : items())
        if (item->identifier == identifier) return item.get();
    return nullptr;
}

LibraryItem *findLibraryItem(UIStatusBarItem *barItem) {
    for (const auto &item : items())
        if (item->barItem == barItem) return item.get();
    return nullptr;
}

void showLibraryItem(LibraryItem &item) {
    if (!item.shown()) return removeStatusBarItem(item.barItem);
    if (statusBarItemView(item.barItem)) return refreshStatusBarItem(item.barItem);
    addStatusBarItem(item.barItem);
}

} // namespace sim
