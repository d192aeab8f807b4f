// The tree of views; what is new or different since the step before on the same screen is marked.
"use strict";
let viewsDrawn = null; // the step that the tree is of

function treeOf(step) {
  return step.tree === null ? [] : trace.run.trees[step.tree];
}

// The lines of the step that the one before on that screen had not.
function changesOf(step) {
  let before = trace.step - 1;
  while (before >= 0 && trace.steps[before].screen !== step.screen) before--;
  const left = new Map();
  for (const line of before < 0 ? treeOf(step) : treeOf(trace.steps[before])) left.set(line, (left.get(line) ?? 0) + 1);
  return treeOf(step).map(line => {
    const count = left.get(line) ?? 0;
    left.set(line, count - 1);
    return count <= 0;
  });
}

function row(line, changed) {
  const [text, frame] = trace.run.lines[line].split("\t"), name = text.trimStart(), end = name.search(/[ (]/);
  const item = make("li", { role: "treeitem", "aria-level": text.length - name.length + 1, tabindex: -1,
    class: changed ? "changed" : null, "data-frame": frame },
    make("b", {}, name.slice(0, end)), make("span", {}, name.slice(end)));
  item.style.setProperty("--depth", text.length - name.length);
  return item;
}

function showViews() {
  const step = trace.now, changes = changesOf(step), count = changes.filter(Boolean).length;
  byId("views-count").textContent = count ? `${count} changed` : "";
  viewsDrawn = null;
  if (!byId("panel-views").hidden) drawViews(changes);
}

function drawViews(changes = changesOf(trace.now)) {
  if (viewsDrawn === trace.now) return;
  viewsDrawn = trace.now;
  const only = byId("changed").checked, rows = [];
  treeOf(trace.now).forEach((line, index) => (changes[index] || !only) && rows.push(row(line, changes[index])));
  byId("views").replaceChildren(...rows);
  if (rows.length) rows[0].tabIndex = 0;
  byId("no-views").hidden = rows.length > 0;
  (rows.find(item => item.className === "changed") ?? rows[0])?.scrollIntoView({ block: "center" });
}

const frameOf = item => item ? item.dataset.frame.split(" ").map(Number) : null;
byId("views").addEventListener("pointerover", event => outlinePlace(frameOf(event.target.closest("li"))));
byId("views").addEventListener("pointerleave", () => outlinePlace(null));
byId("views").addEventListener("focusin", event => outlinePlace(frameOf(event.target.closest("li"))));
byId("views").addEventListener("focusout", () => outlinePlace(null));
byId("views").addEventListener("keydown", event => {
  const item = event.target.closest("li");
  const next = { ArrowDown: item?.nextElementSibling, ArrowUp: item?.previousElementSibling }[event.key];
  if (!next) return;
  item.tabIndex = -1;
  next.tabIndex = 0;
  next.focus();
  event.preventDefault();
});
byId("changed").addEventListener("change", () => { viewsDrawn = null; drawViews(); });
trace.onStep(showViews);

// The tabs above them.
const tabs = [...document.querySelectorAll("[role=tab]")];
function chooseTab(chosen) {
  for (const tab of tabs) {
    tab.setAttribute("aria-selected", tab === chosen);
    tab.tabIndex = tab === chosen ? 0 : -1;
    byId(tab.getAttribute("aria-controls")).hidden = tab !== chosen;
  }
  if (chosen.id === "tab-views") drawViews();
}
for (const tab of tabs) {
  tab.addEventListener("click", () => chooseTab(tab));
  tab.addEventListener("keydown", event => {
    if (event.key !== "ArrowLeft" && event.key !== "ArrowRight") return;
    const next = tabs[(tabs.indexOf(tab) + 1) % tabs.length];
    chooseTab(next);
    next.focus();
    event.preventDefault();
  });
}
