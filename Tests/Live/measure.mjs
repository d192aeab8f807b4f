// Frames a second, the page's own work and processor time of the open panel with the blur behind it, at rest and while
// the strip is dragged: Tests/Live/run --measure [SECONDS]. Prints a table; proves nothing.
import { finger, launch, open, serve } from "./harness.mjs";
import { slowLine } from "./slow_line.mjs";
import { load, processorTime } from "./usage.mjs";

const seconds = Number(process.argv[2] ?? 8);
const devices = ["iPhone 6", "iPad Air 2"];
const slow = { bits: 15e6, delay: 50 }; // 15 Mbit/s, and 100 ms there and back
const apps = ["Mail", "Messages", "Phone", "Calendar", "Weather", "Reminders"].map((name, index) =>
  ({ id: `com.example.${name}`, name, badge: index + 1 }));

// In the page: counts the frames that were drawn and the bytes of their pixels.
function countFrames() {
  const count = (prototype, name, see) => {
    const original = prototype[name];
    prototype[name] = function (...rest) {
      see(...rest);
      return original.apply(this, rest);
    };
  };
  window.drawn = { frames: 0, bytes: 0 };
  count(CanvasRenderingContext2D.prototype, "putImageData", data => window.drawn.bytes += data.data.length);
  count(WebSocket.prototype, "send", message => message.includes('"seen"') && window.drawn.frames++);
}

// Seconds that the page's own thread has worked so far, by its processor clock.
async function ownWork(page) {
  const tools = await page.context().newCDPSession(page);
  await tools.send("Performance.enable", { timeDomain: "threadTicks" });
  return async () => (await tools.send("Performance.getMetrics")).metrics.find(one => one.name === "TaskDuration").value;
}

async function measure(page, name) {
  const worked = await ownWork(page);
  const drawn = async () => ({ ...await page.evaluate(() => window.drawn), worked: await worked() });
  const [before, used, start] = [await drawn(), processorTime(), performance.now()];
  await page.waitForTimeout(seconds * 1000);
  const elapsed = (performance.now() - start) / 1000;
  const [after, total] = [await drawn(), processorTime()];
  const share = kind => `${(100 * (total[kind] - used[kind]) / elapsed).toFixed(0)} %`;
  const frames = after.frames - before.frames;
  const row = [name, (frames / elapsed).toFixed(1), `${(1000 * (after.worked - before.worked) / frames).toFixed(1)} ms`,
    `${((after.bytes - before.bytes) / elapsed / 1e6).toFixed(1)} MB/s`, share("home screen"), share("supervisor"),
    share("browser"), load()];
  console.log(`| ${row.join(" | ")} |`);
}

async function measureDevice(browser, device, line, options = []) {
  const server = await serve(["--device", device, "--ios", "8.1", "--set", "enable=true", "--set", "glow=true", "--boot",
    JSON.stringify({ apps }), ...options]);
  const way = line ? await slowLine(server.address, line) : server;
  const name = [device, ...(line ? ["slow line"] : []), ...options].join(", ");
  const page = await open(browser, way.address, []);
  await page.evaluate(countFrames);
  await page.getByRole("button", { name: "Activator", exact: true }).click();
  await page.waitForTimeout(2000);
  await measure(page, `${name}, at rest (the pulse)`);
  const hand = await finger(page);
  // The finger is on its way before the measuring begins, and goes on after its end.
  const dragged = hand.shake(250, 90, -150, 0, seconds + 2);
  await page.waitForTimeout(1000);
  await measure(page, `${name}, strip dragged to and fro`);
  await dragged;
  await page.close();
  if (line) way.end();
  await server.end();
}

console.log("| | Frames a second | The page's own work a frame | Pixels to the page | Home screen | Supervisor | Browser | Load |");
console.log("|---|---|---|---|---|---|---|---|");
const browser = await launch();
for (const device of devices) await measureDevice(browser, device);
for (const device of devices)
  for (const options of [[], ["--no-compress"]]) await measureDevice(browser, device, slow, options);
await browser.close();
