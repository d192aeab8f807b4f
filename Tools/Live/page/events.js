// The list of what has happened on the device, as it happens.

const MOST = 2000; // lines that are kept on the page
const list = document.getElementById("events-list");
const empty = document.getElementById("events-empty");
const filter = document.getElementById("events-filter");
const calls = document.getElementById("events-calls"); // the many calls of hooked methods are shown on demand
const panel = document.getElementById("panel-events");

const text = value => typeof value === "string" ? value : JSON.stringify(value);

function element(name, content, className) {
  const made = document.createElement(name);
  if (className) made.className = className;
  made.textContent = content;
  return made;
}

function line({ t, kind, stack, ...fields }) {
  const item = element("li", "", kind);
  const words = kind === "log" || kind === "warning" ? fields.text
    : kind === "original" ? `-[${fields.class} ${fields.selector}]`
    : Object.entries(fields).map(([name, value]) => `${name} ${text(value)}`).join(", ");
  item.append(element("time", t.toFixed(3)), element("b", kind), element("span", words));
  if (stack) {
    const details = document.createElement("details");
    details.append(element("summary", "Stack"), element("pre", stack));
    item.append(details);
  }
  return item;
}

function sift() {
  const words = filter.value.toLowerCase().split(/\s+/).filter(Boolean);
  for (const item of list.children)
    item.hidden = (item.className === "original" && !calls.checked)
      || !words.every(word => item.textContent.toLowerCase().includes(word));
  empty.hidden = [...list.children].some(item => !item.hidden);
  empty.textContent = words.length ? "No event like that." : "Nothing has happened yet.";
}

export function installEvents(connection) {
  connection.on("events", ({ first, events }) => {
    if (first === 0) list.replaceChildren();
    const atEnd = panel.scrollHeight - panel.scrollTop - panel.clientHeight < 40;
    list.append(...events.map(line));
    while (list.children.length > MOST) list.firstChild.remove();
    sift();
    if (atEnd) panel.scrollTop = panel.scrollHeight;
  });
  connection.on("booting", () => {
    list.replaceChildren();
    sift();
  });
  filter.addEventListener("input", sift);
  calls.addEventListener("change", sift);
  document.getElementById("events-clear").addEventListener("click", () => {
    list.replaceChildren();
    sift();
  });
  sift();
}
