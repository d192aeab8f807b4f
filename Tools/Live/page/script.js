// What is done, as a script: shown as it grows, saved, replayed.

const list = document.getElementById("script-lines");
const state = document.getElementById("script-state");
const lamp = document.getElementById("recording-lamp");
const panel = document.getElementById("panel-script");
const button = name => document.getElementById(`script-${name}`);

let lines = [];

const line = text => {
  const item = document.createElement("li");
  item.textContent = text;
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

function say(text, mood) {
  state.textContent = text;
  lamp.dataset.state = mood;
}

export function installScript(connection, notify) {
  const wanted = []; // what to do with the whole script once it is there

  connection.on("script", ({ from, lines: rest }) => {
    lines = lines.slice(0, from).concat(rest);
    while (list.children.length > from) list.lastChild.remove();
    const atEnd = panel.scrollHeight - panel.scrollTop - panel.clientHeight < 40;
    list.append(...rest.map(line));
    if (atEnd) panel.scrollTop = panel.scrollHeight;
  });
  connection.on("whole-script", ({ text }) => wanted.shift()?.(text));
  connection.on("lost", () => wanted.splice(0));
  connection.on("clock", ({ replays }) => {
    for (const name of ["replay", "hurry", "record"]) button(name).disabled = replays;
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
  say("Everything since the boot is recorded.", "bad");
}
