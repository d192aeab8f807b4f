// What is done, as a script: shown as it grows, read line by line with the arrow keys, saved, replayed.
import { allow } from "./tips.js";

const list = document.getElementById("script-lines");
const state = document.getElementById("script-state");
const lamp = document.getElementById("recording-lamp");
const panel = document.getElementById("panel-script");
const button = name => document.getElementById(`script-${name}`);

let lines = [];

const line = text => {
  const item = document.createElement("li");
  item.textContent = text;
  item.tabIndex = -1;
  item.classList.toggle("comment", text.startsWith("--"));
  return item;
};

function save(text) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(new Blob([text], { type: "text/x-lua" }));
  link.download = "session.lua";
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 1000);
}

// One line can be reached with the tab key, the others from there.
function choose(item, focus) {
  for (const other of list.querySelectorAll("[tabindex='0']")) other.tabIndex = -1;
  if (!item) return;
  item.tabIndex = 0;
  if (focus) item.focus();
}

function installKeys() {
  list.addEventListener("keydown", event => {
    const rows = [...list.children], at = rows.indexOf(document.activeElement);
    const to = { ArrowDown: at + 1, ArrowUp: at - 1, PageDown: at + 10, PageUp: at - 10, Home: 0, End: rows.length - 1 }[event.key];
    if (to === undefined || at < 0) return;
    event.preventDefault();
    choose(rows[Math.max(0, Math.min(rows.length - 1, to))], true);
  });
  list.addEventListener("focusin", event => choose(event.target, false));
}

function say(text, mood) {
  state.textContent = text;
  lamp.dataset.state = mood;
}

export function installScript(connection, notify) {
  const wanted = []; // what to do with the whole script once it is there
  let replays = false;
  // The first lines boot.
  const check = () => {
    const busy = replays && "A replay is under way.";
    allow(button("record"), busy);
    for (const name of ["replay", "hurry"])
      allow(button(name), busy || (lines.every(text => /^(--|local )/.test(text)) && "Nothing was done yet."));
  };

  connection.on("script", ({ from, lines: rest }) => {
    lines = lines.slice(0, from).concat(rest);
    const read = [...list.children].indexOf(document.activeElement);
    while (list.children.length > from) list.lastChild.remove();
    const atEnd = panel.scrollHeight - panel.scrollTop - panel.clientHeight < 40;
    list.append(...rest.map(line));
    if (read >= 0) choose(list.children[Math.min(read, list.children.length - 1)], true);
    else if (!list.querySelector("[tabindex='0']")) choose(list.firstChild, false);
    check();
    if (atEnd && read < 0) panel.scrollTop = panel.scrollHeight;
  });
  connection.on("whole-script", ({ text }) => wanted.shift()?.(text));
  connection.on("lost", () => wanted.splice(0));
  connection.on("clock", message => {
    replays = message.replays;
    check();
    if (replays) say("Replaying …", "");
    else if (state.textContent === "Replaying …") say("Everything since the boot is recorded.", "bad");
  });
  connection.on("replayed", ({ difference }) => {
    say(difference ? `The replay differs: ${difference}` : "The replay gave the same events and picture.",
      difference ? "bad" : "good");
    notify(state.textContent, difference ? "bad" : "good");
  });
  connection.on("booting", () => say("Everything since the boot is recorded.", "bad"));

  const whole = use => {
    wanted.push(use);
    connection.send({ do: "script" });
  };
  button("record").addEventListener("click", () => connection.send({ do: "boot" }));
  button("replay").addEventListener("click", () => connection.send({ do: "replay", hurry: false }));
  button("hurry").addEventListener("click", () => connection.send({ do: "replay", hurry: true }));
  button("save").addEventListener("click", () => whole(save));
  button("copy").addEventListener("click", () => whole(async text => {
    await navigator.clipboard.writeText(text);
    notify("The script is in the clipboard.", "good");
  }));
  installKeys();
  say("Everything since the boot is recorded.", "bad");
}
