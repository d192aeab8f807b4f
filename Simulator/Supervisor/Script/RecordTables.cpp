// What the tables that scripts get and give hold.
#include "Record.hpp"
#include "Supervisor/Machine/EventKinds.hpp"

namespace sim {

namespace {

std::vector<Described> viewFields() {
    return {{"class", "the name of its class"},
            {"tag", "a whole number; 0 unless set"},
            {"x", "left edge of the frame in its parent, in points"},
            {"y", "upper edge of the frame in its parent, in points"},
            {"w", "width of the frame, in points"},
            {"h", "height of the frame, in points"},
            {"screen", "rectangle on the screen held upright, as presented at this moment"},
            {"alpha", "0 to 1, as set"},
            {"presented_alpha", "0 to 1, as seen at this moment of an animation"},
            {"hidden", "boolean"},
            {"interactive", "whether it takes touches"},
            {"text", "of a label, a field or a text view"},
            {"font", "name of the text's face"},
            {"font_size", "in points"},
            {"text_color", "\"#rrggbbaa\", or \"pattern\" for a colour that tiles an image"},
            {"name", "the name of its layer"},
            {"background", "\"#rrggbbaa\" or \"pattern\"; nil when unset or clear"},
            {"tint", "\"#rrggbbaa\""},
            {"corner_radius", "in points"},
            {"border_width", "in points"},
            {"border_color", "\"#rrggbbaa\""},
            {"shadow_opacity", "0 to 1, as presented"},
            {"shadow_radius", "in points, as presented"},
            {"shadow_color", "\"#rrggbbaa\""},
            {"image", "the file or the name that its image came from"},
            {"title", "of a button"},
            {"scroll", "of a scroll view: a table"},
            {"animations", "list of the animations under way, those of animation blocks too"},
            {"gestures", "list of the class names of its gesture recognisers"},
            {"transform", "list of the six numbers of the affine transform; angles are radians"},
            {"z", "its layer's zPosition"},
            {"level", "of a window"},
            {"state", "of a fingerprint glyph: a whole number"},
            {"children", "list of its subviews, in drawing order"}};
}

std::vector<RecordKind> makeKinds() {
    return {
        {"query",
         "What `find` and `all` look for; a view must meet all that is given.",
         {{"window",
           "\"overlay\" (the extension's), \"statusbar\", \"home\", \"lock\", \"alert\" or \"app\""},
          {"tag", "a whole number"},
          {"class", "the view's class or one that it inherits from"},
          {"name", "the name of its layer"},
          {"text", "its text, all of it"},
          {"inside", "a view that holds it at any depth"},
          {"parent", "the view that holds it directly"},
          {"visible",
           "true: not hidden, presented alpha above 0.01 all the way up, a part of it on the screen; "
           "another view may lie above it"}}},
        {"view",
         "A snapshot of a view or a window; it does not change afterwards. Two snapshots of one view are "
         "two tables: compare them with `expect_eq`. Lengths are rounded to millionths.",
         viewFields()},
        {"rectangle",
         "A place, in points.",
         {{"x", "left edge"}, {"y", "upper edge"}, {"w", "width"}, {"h", "height"}}},
        {"scroll",
         "What a scroll view shows of its content.",
         {{"x", "offset to the right, in points"},
          {"y", "offset downwards, in points"},
          {"content_w", "width of the content, in points"},
          {"content_h", "height of the content, in points"},
          {"paging", "whether it stops at multiples of its own size"},
          {"enabled", "whether it can be scrolled"}}},
        {"animation",
         "An animation under way. Points, sizes and rectangles are tables {x, y}, {w, h} and "
         "{x, y, w, h}.",
         {{"key", "the name under which it was added; of an animation block the property"},
          {"keypath", "what it animates"},
          {"from", "value at the start"},
          {"to", "value at the end"},
          {"duration", "of one run, in seconds"},
          {"repeats", "how often it runs; `math.huge` without end"},
          {"autoreverses", "whether it runs back each time"}}},
        {"indicator",
         "The extension's status-bar item. Without a view all but `present`, `visible` and `image` "
         "are nil.",
         {{"present", "whether the item exists"},
          {"visible", "the item's own property"},
          {"image", "plain name of its image"},
          {"alpha", "0 to 1, as set"},
          {"shadow_opacity", "0 to 1, as presented"},
          {"shadow_radius", "in points, as presented"},
          {"shadow_color", "\"#rrggbbaa\""},
          {"x", "left edge on the screen held upright, as presented, in points"},
          {"y", "upper edge, likewise"},
          {"w", "width, in points"},
          {"h", "height, in points"},
          {"view", "the item's view, to touch or to look at"}}},
        {"element",
         "Something that VoiceOver reads and acts on.",
         {{"label", "what it is"},
          {"value", "what it is set to or shows"},
          {"hint", "what comes of activating it"},
          {"traits", "list of words: \"button\", \"selected\", \"adjustable\", \"header\", \"static_text\", "
                     "\"not_enabled\" and others"},
          {"actions", "list of the names of what can be done with it besides, for `act`"},
          {"view", "the view that it is, or that holds it"},
          {"screen", "rectangle on the screen held upright"}}},
        {"event", "Something that happened; what else it holds depends on its `kind`.", allEventFields()},
        {"counters",
         "What the process counts.",
         {{"settings_reads", "parses of the settings file by the library in this process"},
          {"settings_writes", "writes of it by the library"},
          {"timers", "timers scheduled now"},
          {"windows", "live windows, shown or not"},
          {"views", "live views, shown or not"},
          {"blocks", "blocks on the heap now"},
          {"observers", "how many observers were ever added to a notification centre"},
          {"live", "table of class names to live objects"}}},
        {"page",
         "The page of the Settings application in front.",
         {{"title", "in its bar"}, {"class", "of its controller"}, {"rows", "list of rows"}}},
        {"row",
         "A row of a page.",
         {{"label", "what is written on it"},
          {"kind",
           "\"switch\", \"link\", \"choice\", \"segment\", \"button\" or \"text\"; a list of choices has "
           "\"button\" rows"},
          {"value", "a switch's boolean, else what the row shows (of a choice its title)"},
          {"footer", "the text below its group"},
          {"choices", "list of the titles to choose from"},
          {"icon", "the file it came from; \"drawn\" without one"}}},
        {"alert",
         "An alert that stands in front.",
         {{"title", "its title"}, {"message", "its text"}, {"buttons", "list of their titles"}}},
        {"sheet",
         "The sheet that asks for a code: a presented page with a text field and groups, each a label and "
         "the places after it.",
         {{"title", "in its bar"},
          {"group", "which group shows, from 0"},
          {"label", "of that group"},
          {"dots", "how many places are filled; one counts when it shows an image called \"dot\""},
          {"cancel", "whether it can be left"}}},
        {"allowance",
         "How far a picture may be from what was agreed on.",
         {{"tolerance", "0 to 255: by how much a channel may differ without counting; 0 without it"},
          {"max_pixels", "how many pixels may differ; 0 without it"}}},
    };
}

} // namespace

std::span<const RecordKind> recordKinds() {
    static const std::vector<RecordKind> kinds = makeKinds();
    return kinds;
}

const RecordKind &recordKind(Record record) { return recordKinds()[static_cast<size_t>(record)]; }

} // namespace sim
