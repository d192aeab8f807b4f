// The script with the line of the step, and the lines that led there.
"use strict";
let sourceShown = null;

function showSource(number) {
  const source = trace.run.sources[number];
  if (sourceShown === source) return;
  sourceShown = source;
  byId("source").replaceChildren(...source.text.split("\n").map(line => make("span", { class: "line" }, line || " ")));
}

function markLines(step, number) {
  for (const line of byId("source").querySelectorAll(".now, .led")) line.removeAttribute("class"), line.className = "line";
  const lines = byId("source").children;
  for (const [index, [file, line]] of [...step.places.entries()].reverse()) {
    if (file !== number || !lines[line - 1]) continue;
    lines[line - 1].className = index === 0 ? "line now" : "line led";
    if (index === 0) lines[line - 1].setAttribute("aria-current", "true");
  }
}

// Shows the file of one of the step's places and that line in the middle.
function showPlace(step, index) {
  const [file, line] = step.places[index];
  showSource(file);
  for (const current of byId("source").querySelectorAll("[aria-current]")) current.removeAttribute("aria-current");
  markLines(step, file);
  const element = byId("source").children[line - 1];
  if (element) byId("source").scrollTop = element.offsetTop - byId("source").clientHeight / 2 + element.offsetHeight / 2;
  for (const button of byId("callers").querySelectorAll("button"))
    button.setAttribute("aria-pressed", Number(button.dataset.place) === index);
}

trace.onStep(step => {
  const buttons = step.places.map(([file, line], index) => {
    const button = make("button", { type: "button", class: "place", "data-place": index },
      `${fileName(trace.run.sources[file].file)}:${line}`);
    button.addEventListener("click", () => showPlace(step, index));
    return button;
  });
  byId("callers").replaceChildren(...buttons.flatMap((button, index) => index ? [" called from ", button] : [button]));
  if (step.places.length) showPlace(step, 0);
});
