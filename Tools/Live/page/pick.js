// Picking a view on the device: the query by which a script finds it is shown while the pointer is on it; a click keeps it.
import { outline } from "./screen.js";
import { allow } from "./tips.js";

const toggle = document.getElementById("pick");
const shown = document.getElementById("pick-query");
const copy = document.getElementById("pick-copy");
const canvas = document.getElementById("screen");

export function installPick(connection, notify) {
  let on = false, waits = false, next = null, last = null, query = "";

  const show = (text, found) => {
    query = found ? text : "";
    shown.textContent = text;
    allow(copy, !query && "No view is picked.");
  };
  const turn = value => {
    on = value;
    next = last = null;
    toggle.setAttribute("aria-pressed", String(on));
    canvas.classList.toggle("picks", on);
    if (on) show("Point at a view on the device; a click keeps it.", false);
    else outline(null);
  };
  // One question at a time: an answer to where the pointer was long ago helps nobody.
  const ask = point => {
    next = last = point;
    if (waits || !point) return;
    waits = true;
    connection.send({ do: "pick", ...next });
    next = null;
  };
  connection.on("picked", ({ view }) => {
    waits = false;
    if (!on) return;
    outline(view?.screen);
    show(!view ? "No view is there." : view.query || `${view.class}: nothing tells it from other views.`, Boolean(view?.query));
    if (next) ask(next);
  });
  // Views move under a pointer that keeps still.
  connection.on("views", () => on && last && ask(last));
  for (const kind of ["lost", "notice"]) connection.on(kind, () => { waits = false; });
  toggle.addEventListener("click", () => turn(!on));
  copy.addEventListener("click", async () => {
    await navigator.clipboard.writeText(query);
    notify("The query is in the clipboard.", "good");
  });
  show("", false);
  return {
    get on() { return on; },
    at: ask,
    // What is shown stays; the next touch is one again.
    keep() {
      const kept = query;
      turn(false);
      show(kept || "No view is picked.", Boolean(kept));
    },
    stop() { if (on) this.keep(); },
  };
}
