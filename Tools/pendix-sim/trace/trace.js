// What the page shows: the runs of scripts that were put into it, and the one step of them that is looked at.
"use strict";
const byId = id => document.getElementById(id);
const runs = JSON.parse(byId("trace").textContent);

const trace = {
  run: runs[0] ?? { script: "", steps: [], screens: [] },
  step: 0,
  listeners: [],
  // Called with the step whenever another one, or another run, is looked at.
  onStep(listener) { this.listeners.push(listener); },
  get steps() { return this.run.steps; },
  get now() { return this.steps[this.step]; },
  go(number) {
    if (!this.steps.length) return;
    const bounded = Math.min(Math.max(number, 0), this.steps.length - 1);
    if (bounded === this.step && this.shown === this.run) return;
    this.step = bounded;
    this.shown = this.run;
    for (const listener of this.listeners) listener(this.now);
  },
};

const seconds = time => `${time.toFixed(2)} s`;
const fileName = path => path.split("/").pop();
// The place of a step, as people name it; in the script itself its line alone.
const placeOf = ({ places: [place] }) => {
  if (!place) return "";
  const file = trace.run.sources[place[0]].file;
  return `${file === trace.run.script ? "" : fileName(file)}:${place[1]}`;
};
const titleOf = step => step.failure ? step.failure.split("\n")[0] : step.call;
const shortTitle = step => titleOf(step).replace(/^phone:/, "");

function make(name, attributes = {}, ...children) {
  const element = document.createElement(name);
  for (const [key, value] of Object.entries(attributes))
    if (value !== null && value !== false) element.setAttribute(key, value === true ? "" : value);
  element.append(...children);
  return element;
}
