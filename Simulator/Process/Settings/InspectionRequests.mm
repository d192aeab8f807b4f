#include "SettingsRequests.h"

#include "Process/Shared/RowFields.h"
#include "Process/Shared/Screen.h"
#include "Process/Shared/ViewAnimations.h"
#include "Process/Shared/ViewSearch.h"
#include "Process/Shared/ViewSnapshot.h"
#include "UIKit/Controls/UIControl+Further.h"
#include "UIKit/Views/ViewState.h"

namespace sim {

namespace {

NSString *shownText(UIView *view) {
    NSString *title = nil;
    if ([view isKindOfClass:[UIButton class]]) title = [static_cast<UIButton *>(view) currentTitle];
    return [title length] ? title : textOf(view);
}

void putLook(RowWriter &row, UIView *view) {
    LayerProperties room;
    const LayerProperties &model = state([view layer]).model;
    const ViewLook look = lookOf(view, presented([view layer], room));
    row.put(look.alpha);
    row.put(look.background);
    row.put(rounded(model.cornerRadius));
    row.put(look.ink);
    row.put(look.fontSize);
    row.put(rounded(model.shadowRadius));
    row.put(rounded(model.shadowOpacity));
    row.put(colorText(model.shadowColor));
}

// Depth (0: a window), class, tag, hidden; x, y, width, height of its frame (model) and of what it shows at
// this moment, upright; title, else text, and image, each empty for none; alpha, background, corner radius,
// ink and font size as in ViewLook, but for the radius, which is the model's; radius, opacity and colour of
// its shadow.
void putRows(RowWriter &rows, UIView *view, int64_t depth) {
    rows.put(depth);
    rows.put(std::string_view(object_getClassName(view)));
    rows.put(static_cast<int64_t>([view tag]));
    rows.put(static_cast<bool>([view isHidden]));
    putRect(rows, [view frame]);
    putRect(rows, presentedOnScreen(view));
    putText(rows, shownText(view));
    putText(rows, imageOf(view));
    putLook(rows, view);
    rows.endRow();
    for (UIView *child : drawnSubviews(view)) putRows(rows, child, depth + 1);
}

// {"since": the "revision" of the answer before}: what "page", "alert" and "sheet" say, and in "views" the
// rows of the application's windows, as far as they changed (AnswerMemory).
Value inspect(const Value &arguments) {
    static AnswerMemory memory;
    static RowWriter rows;
    Object answer;
    for (const char *part : {"page", "alert", "sheet"}) answer[part] = handleRequest(part, Object{});
    for (UIWindow *window : windowsNamed("app")) putRows(rows, window, 0);
    const Data views{rows.take(!memory.isCurrent(arguments["since"]))};
    Value changes = memory.changes(std::move(answer), arguments["since"]);
    changes.set("views", views);
    return changes;
}

} // namespace

std::span<const Request> pageInspectionRequests() {
    static const Request requests[] = {{"inspect", inspect}};
    return requests;
}

} // namespace sim
