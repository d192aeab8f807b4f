// Builds the controls from the table of actions.
import { actions } from "./actions.js";

const home = document.getElementById("frame-home");
const DOUBLE_CLICK = 280; // ms; a single click is sent once no second one can follow

export class Controls {
  #connection;
  #toggles = []; // the buttons that are on or off
  #screens = []; // the buttons that show one of them
  #applications = [];

  constructor(connection, container) {
    this.#connection = connection;
    for (const group of actions) container.append(this.#group(group));
    for (const button of document.querySelectorAll("[data-call]"))
      button.addEventListener("click", () => connection.call(button.dataset.call));
    this.#installHomeButton();
  }

  setShown(screen) {
    for (const button of this.#screens) button.setAttribute("aria-pressed", String(button.dataset.show === screen));
  }

  setApplications(list) {
    const options = list.map(({ id, name }) => new Option(name, id))
      .sort((a, b) => a.text.localeCompare(b.text));
    for (const select of this.#applications) {
      const kept = select.value || "com.apple.mobilemail";
      select.replaceChildren(...options.map(option => option.cloneNode(true)));
      if (list.some(({ id }) => id === kept)) select.value = kept;
    }
  }

  // What was switched on is off again.
  reset() {
    for (const button of this.#toggles) button.setAttribute("aria-pressed", "false");
  }

  #group({ group, fields = [], rows }) {
    const set = document.createElement("fieldset");
    set.className = "group";
    const legend = document.createElement("legend");
    legend.textContent = group;
    set.append(legend);
    const values = new Map();
    if (fields.length) set.append(this.#row(fields.map(field => this.#field(field, values))));
    for (const row of rows) set.append(this.#row(row.map(action => this.#button(action, values))));
    return set;
  }

  #row(items) {
    const row = document.createElement("div");
    row.className = "row";
    row.append(...items);
    return row;
  }

  #field({ name, kind, label, value, least }, values) {
    const field = document.createElement(kind === "application" ? "select" : "input");
    field.setAttribute("aria-label", label);
    if (kind === "application") this.#applications.push(field);
    else Object.assign(field, { type: kind, value, min: least ?? "" });
    values.set(`$${name}`, () => kind === "number" ? Math.max(least ?? 0, Math.trunc(Number(field.value))) : field.value);
    return field;
  }

  #button({ call, label, arguments: args = [], toggle, show }, values) {
    const button = document.createElement("button");
    button.type = "button";
    button.className = "quiet";
    button.textContent = label;
    if (toggle) {
      button.setAttribute("aria-pressed", "false");
      this.#toggles.push(button);
    }
    if (show) {
      button.dataset.show = show;
      this.#screens.push(button);
    }
    button.addEventListener("click", () => {
      if (show) return this.#connection.send({ do: "show", screen: show });
      if (!toggle) return this.#connection.call(call, ...args.map(arg => values.get(arg)?.() ?? arg));
      const on = button.getAttribute("aria-pressed") !== "true";
      button.setAttribute("aria-pressed", String(on));
      this.#connection.call(call, on);
    });
    return button;
  }

  #installHomeButton() {
    let waiting = null;
    home.addEventListener("click", () => {
      if (waiting) {
        clearTimeout(waiting);
        waiting = null;
        return this.#connection.call("home_twice");
      }
      waiting = setTimeout(() => {
        waiting = null;
        this.#connection.call("home");
      }, DOUBLE_CLICK);
    });
  }
}
