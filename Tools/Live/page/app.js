// Ties the page together: the connection, the device in its frame, the controls and the panels.
import { installBootMenu } from "./bootmenu.js";
import { Connection } from "./connection.js";
import { Controls } from "./controls.js";
import { installCounters } from "./counters.js";
import { installEvents } from "./events.js";
import { installPick } from "./pick.js";
import { draw, fit, setDevice } from "./screen.js";
import { installScript } from "./script.js";
import { installSettings } from "./settingsfile.js";
import { allow, installTips } from "./tips.js";
import { installTabs } from "./tabs.js";
import { installTouches } from "./touches.js";
import { hoverViews, installViews, showViews } from "./views.js";

const byId = id => document.getElementById(id);
const NOTICE_TIME = 6000;
const CRASH_TIME = 2500;

const connection = new Connection();
const controls = new Controls(connection, byId("controls"));

// Notices that come too fast replace one another; a page must stay usable whatever is said.
function notify(text, mood = "") {
  const notices = byId("notices");
  const same = [...notices.children].find(other => other.firstChild.textContent === text);
  same?.remove();
  while (notices.children.length >= 3) notices.firstChild.remove();
  const notice = document.createElement("div");
  notice.className = `notice ${mood}`;
  const words = document.createElement("p");
  words.textContent = text;
  const close = document.createElement("button");
  close.className = "quiet";
  close.textContent = "Dismiss";
  close.addEventListener("click", () => notice.remove());
  notice.append(words, close);
  notices.append(notice);
  setTimeout(() => notice.remove(), NOTICE_TIME);
}

function setStatus(text, mood) {
  byId("status").dataset.state = mood;
  byId("status-text").textContent = text;
}

// Over the screen, when there is nothing to be seen on it.
function veil(text, { detail = "", boot = false } = {}) {
  byId("veil").hidden = !text;
  byId("veil-text").textContent = text ?? "";
  byId("veil-detail").hidden = !detail;
  byId("veil-detail").textContent = detail;
  byId("veil-boot").hidden = !boot;
}

function installDevice() {
  let device = null, frames = 0, packed = false, veiled = null;
  let reached = false; // the server answers

  const showStatus = () => {
    if (reached && device?.running)
      setStatus(`${device.name}, iOS ${device.ios} · ${frames} fps${packed ? " · compressed" : ""}`, "good");
    frames = 0;
  };
  setInterval(showStatus, 1000);

  connection.on("device", message => {
    device = message;
    reached = true;
    if (!message.running) {
      setStatus("The device does not run", "bad");
      return veil("The device does not run.", { detail: message.trouble, boot: true });
    }
    setDevice(message);
    controls.setDevice(message);
    controls.setApplications(message.applications);
    controls.setShown(message.settings ? "settings" : "home");
    if (!veiled) veil(null);
    showStatus();
  });
  connection.on("events", ({ first, events }) => {
    // What happened before the page came is no news.
    if (first === 0 || !device) return;
    const end = events.findLast(({ kind }) => kind === "crash" || kind === "respring");
    if (!end) return;
    const crash = end.kind === "crash";
    veil(crash ? `The home screen crashed (${end.signal}). It starts again.` : "The home screen starts again.",
      { detail: crash ? end.stack : "" });
    clearTimeout(veiled);
    veiled = setTimeout(() => {
      veiled = null;
      if (device?.running) veil(null);
    }, crash ? CRASH_TIME : CRASH_TIME / 3);
  });
  connection.on("booting", () => {
    setStatus("Starting …", "wait");
    veil("Starting …");
  });
  connection.on("lost", () => {
    reached = false;
    setStatus("No connection; trying again …", "bad");
    veil("No connection to the simulator. Trying again …");
  });
  connection.on("silent", silent => {
    reached = !silent;
    if (!silent) {
      showStatus();
      return veil(device?.running ? null : "The device does not run.", { detail: device?.trouble, boot: !device?.running });
    }
    setStatus("The simulator does not answer", "bad");
    veil("The simulator does not answer. Waiting for it …");
  });
  connection.on("frame", async buffer => {
    const frame = await draw(buffer);
    connection.send({ do: "seen", frame: frame.number });
    packed = frame.packed;
    frames++;
  });
  connection.on("state", state => controls.setState(state));
  connection.on("notice", ({ text }) => notify(text, "bad"));
  byId("veil-boot").addEventListener("click", () => connection.send({ do: "boot" }));
  connection.on("hello", ({ greeting }) => {
    byId("greeting").hidden = !greeting;
    byId("greeting-text").textContent = greeting;
    fit();
  });
  byId("greeting-close").addEventListener("click", () => {
    byId("greeting").hidden = true;
    fit();
  });
}

function installClock() {
  const radios = [...document.querySelectorAll("[name=speed]")];
  for (const radio of radios)
    radio.addEventListener("change", () => connection.send({ do: "clock", speed: Number(radio.value) }));
  byId("step").addEventListener("click", () => connection.send({ do: "step", frames: 1 }));
  connection.on("clock", ({ speed }) => {
    for (const radio of radios) radio.checked = Number(radio.value) === speed;
    allow(byId("step"), speed > 0 && "The clock runs: pause it to go by frames.");
  });
  connection.on("time", ({ now }) => {
    byId("time").textContent = `${(now / 1e9).toFixed(3)} s`;
  });
}

function installPanels() {
  let shown = "events";
  const watch = () => connection.send({ do: "watch", views: shown === "views", counters: shown === "counters" });

  connection.on("open", watch);
  installTabs(name => {
    shown = name;
    showViews(name === "views");
    watch();
  });
  installEvents(connection);
  installViews(connection);
  installCounters(connection);
  installSettings(connection);
  installScript(connection, notify);
}

installTips();
installDevice();
installClock();
installBootMenu(connection);
const picker = installPick(connection, notify);
installTouches(connection, hoverViews, picker);
installPanels();
new ResizeObserver(fit).observe(document.querySelector(".stage"));
connection.open();
