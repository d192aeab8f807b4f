#include "Scene.hpp"

#include "Names.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr double kLeastMark = 8; // points; a mark of less is on its way

bool isLabel(const SeenView &view) { return view.type == "UILabel"; }

SceneItem itemAt(const SeenWindow &window, size_t place) {
    SceneItem item{.identifier = window.views[place].name, .frame = window.views[place].frame};
    for (size_t at : window.childrenOf(place)) {
        const SeenView &part = window.views[at];
        if (isLabel(part)) item.name = part.text;
        if (part.tag == names::itemIcon) item.place = part.onScreen;
        if (part.tag == names::itemBadge && part.seen) item.badge = part.name;
        if (part.tag == names::closeMark && part.seen && part.frame.w >= kLeastMark) item.marked = true;
    }
    return item;
}

void readStrip(const SeenWindow &window, size_t strip, Scene &scene) {
    for (size_t at : window.childrenOf(strip)) {
        if (!window.views[at].name.empty()) scene.items.push_back(itemAt(window, at));
        if (isLabel(window.views[at])) scene.emptyText = window.views[at].text;
    }
}

void readContent(const SeenWindow &window, size_t content, Scene &scene) {
    for (size_t at : window.childrenOf(content)) {
        const SeenView &part = window.views[at];
        if (part.type == names::strip) readStrip(window, at, scene);
        if (part.tag == names::pageDots) scene.dots = window.childrenOf(at).size();
        scene.face = scene.face || part.tag == names::askFace || part.tag == names::fingerFace ||
                     part.tag == names::keypadFace;
        scene.question = scene.question || part.tag == names::promptText;
        // The one that is seen: of those that lie on one another only the last shows.
        if (part.tag == names::promptCancel && part.seen) scene.cancel = part.onScreen;
        if (part.tag == names::promptOkay && part.seen) scene.okay = part.onScreen;
    }
}

} // namespace

bool Scene::marks() const { return std::ranges::any_of(items, &SceneItem::marked); }

std::vector<std::string> Scene::identifiers() const {
    std::vector<std::string> list;
    for (const SceneItem &item : items) list.push_back(item.identifier);
    return list;
}

std::optional<Scene> sceneOf(const Observation &seen) {
    if (seen.overlays.size() != 1) return std::nullopt;
    const SeenWindow &window = seen.overlays.front();
    size_t panel = window.child(0, names::panel);
    if (panel == SeenWindow::npos) return std::nullopt;
    size_t content = window.child(panel, names::content);
    if (content == SeenWindow::npos) return std::nullopt;
    Scene scene{.panel = window.views[panel].onScreen};
    scene.moving = std::ranges::any_of(window.views, &SeenView::moving);
    readContent(window, content, scene);
    return scene;
}

bool covers(const Area &area, double x, double y, double inside) {
    return x >= area.x + inside && x <= area.x + area.w - inside && y >= area.y + inside &&
           y <= area.y + area.h - inside;
}

} // namespace sim
