// The panels' tabs: arrow keys go from one to the next, and the last choice is kept.

const tabs = [...document.querySelectorAll("[role=tab]")];
const KEPT = "panel";

// `onChange` gets the name of the panel that is shown: "events", "views" …
export function installTabs(onChange) {
  const choose = (tab, focus) => {
    for (const other of tabs) {
      const chosen = other === tab;
      other.setAttribute("aria-selected", String(chosen));
      other.tabIndex = chosen ? 0 : -1;
      document.getElementById(other.getAttribute("aria-controls")).hidden = !chosen;
    }
    if (focus) tab.focus();
    const name = tab.id.slice("tab-".length);
    sessionStorage.setItem(KEPT, name);
    onChange(name);
  };
  for (const [index, tab] of tabs.entries()) {
    tab.addEventListener("click", () => choose(tab, false));
    tab.addEventListener("keydown", event => {
      const to = { ArrowRight: index + 1, ArrowLeft: index - 1, Home: 0, End: tabs.length - 1 }[event.key];
      if (to === undefined) return;
      event.preventDefault();
      choose(tabs.at(to % tabs.length), true);
    });
  }
  choose(document.getElementById(`tab-${sessionStorage.getItem(KEPT)}`) ?? tabs[0], false);
}
