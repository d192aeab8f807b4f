// What the device told in the step.
"use strict";
const ALARMS = new Set(["warning", "crash", "unrecognized", "missing_file"]);

function showEvents() {
  const all = trace.now.events, hooked = byId("originals").checked;
  const shown = all.filter(([, kind]) => hooked || kind !== "original");
  byId("events").replaceChildren(...shown.map(([time, kind, text]) =>
    make("li", { class: ALARMS.has(kind) ? "alarm" : null }, make("time", {}, time.toFixed(3)), make("b", {}, kind),
      make("span", {}, text))));
  byId("events-count").textContent = shown.length;
  byId("no-events").hidden = shown.length > 0;
  byId("originals").parentElement.hidden = !all.some(([, kind]) => kind === "original");
}

byId("originals").addEventListener("change", showEvents);
trace.onStep(showEvents);
