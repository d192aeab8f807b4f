// What the process holds and has done so far.

const NAMES = {
  settings_reads: "Reads of the settings file", settings_writes: "Writes of the settings file",
  timers: "Timers scheduled", windows: "Windows", views: "Views",
};
const facts = document.getElementById("counters");
const live = document.querySelector("#live-objects tbody");

export function installCounters(connection) {
  connection.on("counters", ({ counters }) => {
    facts.replaceChildren(...Object.entries(NAMES).flatMap(([name, title]) => {
      const term = document.createElement("dt"), fact = document.createElement("dd");
      term.textContent = title;
      fact.textContent = counters[name];
      return [term, fact];
    }));
    const classes = Object.entries(counters.live).sort((a, b) => b[1] - a[1] || a[0].localeCompare(b[0]));
    live.replaceChildren(...classes.map(([name, count]) => {
      const row = document.createElement("tr");
      row.insertCell().textContent = name;
      row.insertCell().textContent = count;
      return row;
    }));
  });
}
