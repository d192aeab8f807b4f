// The scrubber. A step has a place of its own even when no time passes, and time has its length: each takes a share.
"use strict";
const ALL = 10000, FOR_STEPS = 0.4; // of the track's length, shared by the steps; the rest is time's
let positions = [], stripOf = null;

function layOut() {
  const steps = trace.steps, whole = steps.reduce((sum, step) => sum + step.to - step.from, 0);
  let at = 0;
  positions = steps.map((step, number) => {
    if (number) at += FOR_STEPS / Math.max(steps.length - 1, 1);
    if (number && whole) at += (1 - FOR_STEPS) * (step.to - step.from) / whole;
    return at;
  });
  const end = positions.at(-1) || 1;
  positions = positions.map(position => position / end * ALL);
}

function nearest(position) {
  let best = 0;
  positions.forEach((other, number) => { if (Math.abs(other - position) < Math.abs(positions[best] - position)) best = number; });
  return best;
}

function drawTicks() {
  const ticks = byId("ticks");
  ticks.setAttribute("viewBox", `0 0 ${ALL} 10`);
  ticks.replaceChildren(...trace.steps.map((step, number) => {
    const tick = document.createElementNS("http://www.w3.org/2000/svg", "line");
    const x = positions[number], changed = number > 0 && step.picture !== trace.steps[number - 1].picture;
    for (const [name, value] of Object.entries({ x1: x, x2: x, y1: step.failure ? 0 : changed ? 3 : 6, y2: 10 }))
      tick.setAttribute(name, value);
    if (step.failure) tick.setAttribute("class", "failed");
    return tick;
  }));
}

// Small pictures along the track, each of the step that is nearest.
async function drawStrip() {
  const strip = byId("strip"), run = trace.run, ratio = devicePixelRatio;
  const wide = strip.clientWidth * ratio, high = strip.clientHeight * ratio;
  if (!wide || !high) return;
  strip.width = wide;
  strip.height = high;
  const context = strip.getContext("2d");
  context.imageSmoothingQuality = "high";
  const small = document.createElement("canvas");
  for (let x = 0; x < wide;) {
    const number = nearest(x / wide * ALL), picture = trace.steps[number].picture;
    if (picture === null) { x += high / 2; continue; }
    await drawPicture(small, picture);
    if (trace.run !== run || stripOf !== run || strip.width !== Math.floor(wide)) return;
    const width = high * small.width / small.height;
    context.drawImage(small, x, 0, width, high);
    x += width + 2 * ratio;
  }
}

function describeTime() {
  const step = trace.now;
  byId("clock").textContent = seconds(step.to);
  byId("scrub").setAttribute("aria-valuetext",
    `step ${trace.step + 1} of ${trace.steps.length}, ${seconds(step.to)}, ${titleOf(step)}`);
}

byId("scrub").addEventListener("input", event => trace.go(nearest(Number(event.target.value))));
byId("back").addEventListener("click", () => trace.go(trace.step - 1));
byId("on").addEventListener("click", () => trace.go(trace.step + 1));
addEventListener("resize", drawStrip);

trace.onStep(() => {
  if (stripOf !== trace.run) {
    stripOf = trace.run;
    layOut();
    drawTicks();
    drawStrip();
  }
  byId("scrub").value = positions[trace.step];
  byId("back").disabled = trace.step === 0;
  byId("on").disabled = trace.step === trace.steps.length - 1;
  describeTime();
});
