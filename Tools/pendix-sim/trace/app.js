// The run that is shown (at first one in which something failed), keys for the whole page, and the step in the address.
"use strict";
function summarize() {
  const steps = trace.steps, failures = steps.filter(step => step.failure).length;
  const time = steps.reduce((sum, step) => sum + step.to - step.from, 0);
  const count = (number, word) => `${number} ${word}${number === 1 ? "" : "s"}`;
  byId("title").textContent = fileName(trace.run.script);
  byId("title").title = trace.run.script;
  document.title = `${fileName(trace.run.script)} — trace`;
  byId("summary").replaceChildren(`${count(steps.length, "step")}, ${seconds(time)} on ${count(trace.run.screens.length, "screen")}`);
  if (failures) byId("summary").append(" ", make("strong", {}, count(failures, "failure")));
}

function chooseRun(number) {
  trace.run = runs[number];
  summarize();
  byId("run").value = number;
  document.body.classList.toggle("empty-run", !trace.steps.length);
  trace.go(Math.max(trace.steps.findIndex(step => step.failure), 0));
}

// Arrow keys step wherever they have no work of their own.
const ownArrows = target => target.matches("select, #divider, [role=tab]");
addEventListener("keydown", event => {
  if (event.defaultPrevented || event.ctrlKey || event.altKey || event.metaKey) return;
  const vertical = !event.target.matches("#source, [role=tabpanel]");
  const moves = { ArrowLeft: -1, ArrowRight: 1, ArrowUp: vertical && -1, ArrowDown: vertical && 1, Home: -Infinity, End: Infinity };
  if (event.key.toLowerCase() === "c" && !event.target.matches("select")) toggleComparison();
  else if (moves[event.key] && !ownArrows(event.target)) trace.go(trace.step + moves[event.key]);
  else return;
  event.preventDefault();
});

function fromAddress() {
  const [, run, step] = location.hash.match(/^#(?:(\d+)\.)?(\d+)$/) ?? [];
  if (step === undefined) return;
  if (run && runs[run - 1] && runs[run - 1] !== trace.run) chooseRun(run - 1);
  trace.go(step - 1);
}

byId("run").replaceChildren(...runs.map((run, number) => new Option(run.script, number)));
byId("runs").hidden = runs.length < 2;
byId("run").addEventListener("change", event => chooseRun(Number(event.target.value)));
addEventListener("hashchange", fromAddress);
if (runs.length) {
  chooseRun(Math.max(runs.findIndex(run => run.steps.some(step => step.failure)), 0));
  fromAddress();
}
trace.onStep(() => history.replaceState(null, "", `#${runs.length > 1 ? `${runs.indexOf(trace.run) + 1}.` : ""}${trace.step + 1}`));
