// The picture of the step, and another one beside it to compare with: A on the left of the divider, B on the right.
"use strict";
const comparison = { on: false, other: 0 };

function fit(whole) {
  // In points of the device, so that pictures of half the scale are as large as the others.
  byId("screen").style.setProperty("--wide", whole.width / whole.scale);
  byId("screen").style.setProperty("--high", whole.height / whole.scale);
}

async function showPicture(canvas, number) {
  const step = trace.steps[number], run = trace.run;
  canvas.dataset.wanted = number;
  const stillWanted = () => canvas.dataset.wanted === String(number) && trace.run === run;
  canvas.classList.toggle("absent", step.picture === null);
  if (step.picture !== null && await drawPicture(canvas, step.picture, stillWanted) && canvas === byId("picture"))
    fit(wholeOf(step.picture));
  if (stillWanted()) canvas.dataset.step = number;
}

function divide() {
  const share = Number(byId("divider").value);
  byId("picture-a").style.clipPath = `inset(0 ${100 - share}% 0 0)`;
  byId("line").style.left = `${share}%`;
  byId("divider").setAttribute("aria-valuetext", `${share} % of A`);
}

function showComparison() {
  byId("compare").setAttribute("aria-pressed", comparison.on);
  for (const element of [byId("picture-a"), byId("line"), byId("divider"), byId("pair")])
    element.hidden = !comparison.on;
  byId("other").value = comparison.other;
  if (comparison.on) showPicture(byId("picture-a"), comparison.other);
  divide();
}

// Starts with the step before the one that is shown.
function toggleComparison() {
  comparison.on = !comparison.on;
  if (comparison.on) comparison.other = Math.max(trace.step - 1, 0);
  showComparison();
}

function listSteps() {
  for (const id of ["other", "this"])
    byId(id).replaceChildren(...trace.steps.map((step, number) =>
      new Option(`${number + 1}  ${shortTitle(step).slice(0, 60)}  (${seconds(step.to)})`, number)));
}

byId("compare").addEventListener("click", toggleComparison);
byId("divider").addEventListener("input", divide);
byId("other").addEventListener("change", event => {
  comparison.other = Number(event.target.value);
  showComparison();
});
byId("this").addEventListener("change", event => trace.go(Number(event.target.value)));

// The divider can be dragged on the picture, too.
const screenBox = byId("screen");
function dragDivider(event) {
  if (!comparison.on || !event.buttons) return;
  const box = screenBox.getBoundingClientRect();
  byId("divider").value = (event.clientX - box.left) / box.width * 100;
  divide();
}
for (const kind of ["pointerdown", "pointermove"]) screenBox.addEventListener(kind, dragDivider);

// Frames a place of the screen, in points; null: none.
function outlinePlace(frame) {
  const box = byId("outline"), shown = trace.now.picture;
  box.hidden = !frame || shown === null;
  if (box.hidden) return;
  const whole = wholeOf(shown), wide = whole.width / whole.scale, high = whole.height / whole.scale;
  const [x, y, w, h] = frame;
  Object.assign(box.style, { left: `${x / wide * 100}%`, top: `${y / high * 100}%`, width: `${w / wide * 100}%`,
    height: `${h / high * 100}%` });
}

let listed = null;
trace.onStep(step => {
  if (listed !== trace.run) {
    listed = trace.run;
    comparison.on = false;
    listSteps();
    showComparison();
  }
  outlinePlace(null);
  byId("this").value = trace.step;
  byId("no-picture").hidden = step.picture !== null;
  showPicture(byId("picture"), trace.step);
  const screen = step.screen === null ? "" : trace.run.screens[step.screen];
  const passed = step.to > step.from ? `, ${seconds(step.to - step.from)} passed` : "";
  byId("caption").textContent = `Step ${trace.step + 1} of ${trace.steps.length} — ${screen} at ${seconds(step.to)}${passed}`;
  byId("failure").hidden = !step.failure;
  byId("failure").textContent = step.failure ?? "";
});
