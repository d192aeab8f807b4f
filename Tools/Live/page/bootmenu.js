// The choice of device, system version and language; a device starts afresh with them.

const form = document.getElementById("boot");
const [name, ios, language] = ["device-name", "device-ios", "device-language"].map(id => document.getElementById(id));

export function installBootMenu(connection) {
  let devices = [];

  // Only versions that the chosen device ran.
  const offerVersions = wanted => {
    const { versions } = devices.find(device => device.name === name.value) ?? { versions: [] };
    const kept = versions.includes(wanted) ? wanted : versions.at(-1);
    ios.replaceChildren(...versions.map(version => new Option(version)));
    if (kept) ios.value = kept;
  };
  const languageName = code => new Intl.DisplayNames(["en"], { type: "language" }).of(code);

  connection.on("hello", message => {
    devices = message.devices;
    name.replaceChildren(...devices.map(device => new Option(device.name)));
    language.replaceChildren(...message.languages.map(code => new Option(languageName(code), code)));
  });
  connection.on("device", message => {
    if (!message.running) return;
    name.value = message.name;
    offerVersions(message.ios);
    language.value = message.language;
  });
  name.addEventListener("change", () => offerVersions(ios.value));
  form.addEventListener("submit", event => {
    event.preventDefault();
    connection.send({ do: "boot", options: { device: name.value, ios: ios.value, language: language.value } });
  });
}
