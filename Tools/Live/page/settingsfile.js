// The settings file as it stands, and a way to write into it from outside, as the pane does.

const state = document.getElementById("settings-state");
const list = document.getElementById("settings-values");
const source = document.getElementById("settings-text");
const form = document.getElementById("settings-add");

// true, false and numbers as such; anything else is a text.
function valueOf(text) {
  if (text === "true" || text === "false") return text === "true";
  return text.trim() !== "" && Number.isFinite(Number(text)) ? Number(text) : text;
}

function editor(key, value, write) {
  if (typeof value === "object") {
    const shown = document.createElement("code");
    shown.textContent = JSON.stringify(value);
    return shown;
  }
  const input = document.createElement("input");
  input.type = typeof value === "boolean" ? "checkbox" : typeof value === "number" ? "number" : "text";
  if (typeof value === "number") input.step = "any";
  if (typeof value === "boolean") input.checked = value;
  else input.value = value;
  input.setAttribute("aria-label", key);
  input.addEventListener("change", () =>
    write(key, typeof value === "boolean" ? input.checked : typeof value === "number" ? Number(input.value) : input.value));
  return input;
}

function row(key, value, write) {
  const item = document.createElement("li");
  const name = document.createElement("code");
  name.textContent = key;
  const remove = document.createElement("button");
  remove.type = "button";
  remove.className = "quiet remove";
  remove.textContent = "Remove";
  remove.setAttribute("aria-label", `Remove ${key}`);
  remove.dataset.tip = "Take the key out of the file";
  remove.addEventListener("click", () => write(key, null));
  item.append(name, editor(key, value, write), remove);
  return item;
}

export function installSettings(connection) {
  const write = (key, value) => connection.call("set", key, value);

  connection.on("settings", ({ present, problem, values = {}, text = "" }) => {
    const count = Object.keys(values).length;
    state.textContent = problem ? `It cannot be read: ${problem}`
      : !present ? "There is no settings file." : `${count} ${count === 1 ? "key" : "keys"}.`;
    const edited = list.contains(document.activeElement) ? document.activeElement.getAttribute("aria-label") : null;
    const place = [...list.children].findIndex(item => item.contains(document.activeElement));
    list.replaceChildren(...Object.entries(values).map(([key, value]) => row(key, value, write)));
    // The focus stays where it was, or goes on to what took that place.
    const same = edited && list.querySelector(`[aria-label="${CSS.escape(edited)}"]`);
    if (same) same.focus();
    else if (place >= 0) (list.children[Math.min(place, list.children.length - 1)]?.querySelector(".remove")
      ?? form.elements.key).focus();
    source.textContent = text;
  });
  form.addEventListener("submit", event => {
    event.preventDefault();
    const { key, value } = Object.fromEntries(new FormData(form));
    write(key, valueOf(value));
    form.reset();
  });
}
