// The list of steps, under the tests that they belong to.
"use strict";
let stepsListed = null;

function stepItem(step, number) {
  const item = make("li", { role: "option", id: `step-${number}`, "aria-selected": false, class: step.failure ? "failed" : null,
    "data-number": number },
    make("time", {}, step.to.toFixed(2)), make("code", {}, shortTitle(step)), make("small", {}, placeOf(step)));
  item.addEventListener("click", () => trace.go(number));
  return item;
}

function listAllSteps() {
  const items = [];
  let test = "";
  trace.steps.forEach((step, number) => {
    if (step.test !== test) {
      test = step.test;
      items.push(make("li", { role: "presentation", class: "test" }, test || "outside of the tests"));
    }
    items.push(stepItem(step, number));
  });
  byId("steps").replaceChildren(...items);
}

trace.onStep(() => {
  if (stepsListed !== trace.run) {
    stepsListed = trace.run;
    listAllSteps();
  }
  byId("steps").querySelector("[aria-selected=true]")?.setAttribute("aria-selected", false);
  const item = byId(`step-${trace.step}`);
  item.setAttribute("aria-selected", true);
  byId("steps").setAttribute("aria-activedescendant", item.id);
  item.scrollIntoView({ block: "nearest" });
});
