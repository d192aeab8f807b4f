// Builds the controls from the table of actions.
import { actions } from "./actions.js";
import { allow } from "./tips.js";

const home = document.getElementById("frame-home");
const DOUBLE_CLICK = 280; // ms; a single click is sent once no second one can follow

export class Controls {
  #connection;
  #toggles = []; // the buttons that are on or off, and by what of the state
  #checks = []; // of the buttons that may have no effect: each says whether it has
  #device = {};
  #state = null;
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
    this.#check();
  }

  setDevice({ sensor, reachability, turned }) {
    this.#device = { sensor, reachability, turned };
    this.#check();
  }

  // What decides whether a call has an effect now.
  setState(state) {
    this.#state = state;
    for (const { button, by } of this.#toggles) button.setAttribute("aria-pressed", String(state[by]));
    this.#check();
  }

  #check() {
    if (this.#state) for (const check of this.#checks) check({ ...this.#state, ...this.#device });
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
    field.addEventListener("change", () => this.#check());
    values.set(`$${name}`, () => kind === "number" ? Math.max(least ?? 0, Math.trunc(Number(field.value))) : field.value);
    return field;
  }

  #button({ call, label, arguments: args = [], toggle, show, tip, idle }, values) {
    const button = document.createElement("button");
    button.type = "button";
    button.className = "quiet";
    button.textContent = label;
    button.dataset.tip = tip;
    allow(button);
    if (toggle) {
      button.setAttribute("aria-pressed", "false");
      this.#toggles.push({ button, by: toggle });
    }
    if (idle) {
      const fields = () => Object.fromEntries([...values].map(([name, value]) => [name.slice(1), value()]));
      this.#checks.push(state => allow(button, idle(state, fields())));
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
