// The tree of the overlay's views. The one under the pointer is highlighted, on the device and in the tree.
import { outline } from "./screen.js";

const tree = document.getElementById("views-tree");
const detail = document.getElementById("views-detail");
const empty = document.getElementById("views-empty");
const follow = document.getElementById("views-follow");
// What is told of a view, unless it is as with most of them.
const USUAL = { tag: 0, alpha: 1, presented_alpha: 1, hidden: false, interactive: true, corner_radius: 0, border_width: 0,
  shadow_opacity: 0, shadow_radius: 0, z: 0, level: 0, transform: "[1,0,0,1,0,0]", tint: "#007affff" };
const FACTS = ["class", "tag", "name", "text", "title", "frame", "alpha", "presented_alpha", "hidden",
  "interactive", "background", "tint", "text_color", "font", "font_size", "image", "corner_radius", "border_width",
  "shadow_opacity", "shadow_radius", "transform", "z", "level", "state", "scroll", "gestures", "animations"];

let views = new Map();
let roots = [];
let selected = null;
let shown = false;

const frameOf = view => `${view.x} ${view.y}  ${view.w} × ${view.h}`;
const part = (className, text) => Object.assign(document.createElement("span"), { className, textContent: text });

// Class, tag, what it is called or says, and its frame, each told from the others.
function caption(view) {
  const said = view.text ?? view.title;
  return [part("class", view.class), view.tag ? part("tag", `#${view.tag}`) : "",
    said ? part("said", `“${said}”`) : view.name ? part("name", view.name) : "", part("at", frameOf(view))]
    .filter(Boolean).flatMap((piece, index) => index ? [" ", piece] : [piece]);
}

function item(number) {
  const view = views.get(number);
  const made = document.createElement("li");
  made.setAttribute("role", "treeitem");
  made.tabIndex = -1;
  made.dataset.number = number;
  made.classList.toggle("off", view.hidden || view.presented_alpha < 0.01);
  made.setAttribute("aria-selected", String(number === selected));
  const label = document.createElement("span");
  label.append(...caption(view));
  made.append(label);
  if (view.children.length) {
    made.setAttribute("aria-expanded", "true");
    const group = document.createElement("ul");
    group.setAttribute("role", "group");
    group.append(...view.children.map(item));
    made.append(group);
  }
  return made;
}

function describe(view) {
  detail.replaceChildren();
  if (!view) return;
  for (const name of FACTS) {
    const value = name === "frame" ? frameOf(view) : view[name];
    if (value === null || value === undefined || (Array.isArray(value) && !value.length)) continue;
    if ((typeof value === "object" ? JSON.stringify(value) : value) === USUAL[name]) continue;
    const term = document.createElement("dt"), fact = document.createElement("dd");
    term.textContent = name.replaceAll("_", " ");
    fact.textContent = typeof value === "object" ? JSON.stringify(value) : value;
    detail.append(term, fact);
  }
}

function select(number, scroll) {
  selected = number;
  const view = views.get(number);
  outline(view && shown ? view.screen : null);
  for (const row of tree.querySelectorAll("[role=treeitem]")) {
    const chosen = Number(row.dataset.number) === number;
    row.setAttribute("aria-selected", String(chosen));
    row.tabIndex = chosen ? 0 : -1;
    if (chosen && scroll) row.firstChild.scrollIntoView({ block: "nearest" });
  }
  describe(view);
}

// The deepest visible view there; what is drawn later lies above.
function viewAt(point, numbers = roots) {
  for (const number of [...numbers].reverse()) {
    const view = views.get(number);
    if (view.hidden || view.presented_alpha < 0.01) continue;
    const { x, y, w, h } = view.screen;
    const deeper = viewAt(point, view.children);
    if (deeper !== null) return deeper;
    // A window without anything in that place lets the pointer through.
    const inside = point.x >= x && point.x < x + w && point.y >= y && point.y < y + h;
    if (inside && !roots.includes(number)) return number;
  }
  return null;
}

export function hoverViews(point) {
  if (!shown || !follow.checked) return;
  select(point ? viewAt(point) : null, true);
}

export function showViews(visible) {
  shown = visible;
  if (!visible) outline(null);
}

function installKeys() {
  tree.addEventListener("keydown", event => {
    const rows = [...tree.querySelectorAll("[role=treeitem]")];
    const at = rows.findIndex(row => Number(row.dataset.number) === selected);
    const to = { ArrowDown: at + 1, ArrowUp: at - 1, Home: 0, End: rows.length - 1 }[event.key];
    if (to === undefined || !rows[to]) return;
    event.preventDefault();
    select(Number(rows[to].dataset.number), true);
    tree.querySelector('[aria-selected="true"]').focus();
  });
}

export function installViews(connection) {
  connection.on("views", ({ windows }) => {
    views = new Map(windows.views.map(view => [view.number, view]));
    roots = windows.matches;
    const focused = tree.contains(document.activeElement);
    tree.replaceChildren(...roots.map(item));
    empty.hidden = roots.length > 0;
    if (!views.has(selected)) selected = null;
    const first = tree.querySelector("[role=treeitem]");
    if (first) first.tabIndex = 0;
    select(selected, false);
    if (focused) (tree.querySelector('[aria-selected="true"]') ?? first)?.focus();
  });
  connection.on("booting", () => {
    views = new Map();
    roots = [];
    tree.replaceChildren();
    select(null, false);
  });
  tree.addEventListener("click", event => {
    const row = event.target.closest("[role=treeitem]");
    if (row) select(Number(row.dataset.number), false);
  });
  installKeys();
}
