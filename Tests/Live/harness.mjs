// A served device, a browser on it, and the pictures that scripts take: for the page's test.
import { spawn, execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { createRequire } from "node:module";
import { createInterface } from "node:readline";
import { chromium } from "playwright-core";

const program = process.env.PENDIX_SIM ?? new URL("../../build/dev/bin/pendix-sim", import.meta.url).pathname;
const folder = mkdtempSync(join(tmpdir(), "live-page-"));

export const launch = () => chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
  args: ["--no-sandbox"] });

// Port 0 takes any that is free.
export async function serve(options, port = "0") {
  const server = spawn(program, ["live", "--port", port, ...options], { stdio: ["ignore", "pipe", "inherit"] });
  for await (const line of createInterface(server.stdout)) {
    const address = line.match(/http:\S+/)?.[0];
    if (address) return { address, end: () => ended(server), signal: name => server.kill(name) };
  }
  throw new Error("the server did not start");
}

const ended = server => new Promise(resolve => {
  server.once("exit", resolve);
  server.kill("SIGTERM");
});

// Runs a script; gives what it prints.
export function run(script) {
  const file = join(folder, "script.lua");
  writeFileSync(file, script);
  return execFileSync(program, ["run", file, "--out", folder], { encoding: "utf8" });
}

// Runs a script of the project with these options; its pictures go where those of the others do.
export function runFile(file, ...options) {
  execFileSync(program, ["run", file, "--out", folder, ...options], { encoding: "utf8", stdio: "pipe" });
}

// A file of the test's own.
export const own = name => join(folder, name);
// The picture that a script took under that name, as a data URL.
export const picture = name => `data:image/png;base64,${readFileSync(join(folder, `${name}.png`), "base64")}`;
export const cleanUp = () => rmSync(folder, { recursive: true });

// A page on which nothing may go wrong unnoticed.
export async function watched(browser, problems, options = {}) {
  const page = await browser.newPage({ viewport: { width: 1440, height: 1000 }, ...options });
  page.on("pageerror", error => problems.push(error.message));
  page.on("console", message => message.type() === "error" && problems.push(message.text()));
  return page;
}

// The live page, when it shows the device.
export async function open(browser, address, problems, options = {}) {
  const page = await watched(browser, problems, options);
  await page.goto(address);
  await page.waitForSelector("#status[data-state=good]");
  return page;
}

// The clock stands, and everything that was done is on the screen.
export async function pause(page) {
  await page.getByLabel("Pause", { exact: true }).check();
  await page.waitForFunction(() => document.querySelector("[name=speed][value='0']").checked);
}

const resume = page => page.getByLabel("Real time", { exact: true }).check();

// A second of the device's time, in which what moves there comes to rest.
async function settle(page) {
  const now = parseFloat(await page.textContent("#time"));
  await page.waitForFunction(until => parseFloat(document.getElementById("time").textContent) >= until, now + 1);
}

// Lets a frame pass on a device whose clock stands. The mouse stays where it is.
async function step(page) {
  const before = await page.textContent("#time");
  await page.evaluate(() => document.getElementById("step").click());
  await page.waitForFunction(time => document.getElementById("time").textContent !== time, before);
}

// The device's screen under the mouse, in its points. A touch waits until the screen has come to rest. Then the clock
// stands but for a frame at each place, so that it is as quick on every machine; after it real time goes on.
export async function finger(page) {
  const box = await page.locator("#screen").boundingBox();
  const zoom = box.width / await page.evaluate(() => document.getElementById("screen").width / 2);
  const at = (x, y) => [box.x + x * zoom, box.y + y * zoom];
  async function touch(...places) {
    await settle(page);
    await pause(page);
    await page.mouse.move(...at(...places[0]));
    await page.mouse.down();
    for (const place of places) {
      await page.mouse.move(...at(...place));
      await step(page);
    }
    await page.mouse.up();
    await resume(page);
  }
  return {
    point: (x, y) => page.mouse.move(...at(x, y)),
    async click() {
      await page.mouse.down();
      await page.mouse.up();
    },
    tap: (x, y) => touch([x, y]),
    swipe: (x, y, dx, dy) => touch(...Array.from({ length: 13 }, (_, i) => [x + dx * i / 12, y + dy * i / 12])),
    // To and fro between the ends of the way for some seconds, a place every 8 ms, so that there is one for each of the
    // device's frames, and always as fast: a finger that slows down at the ends leaves frames without a change. The places
    // are made in the page: the browser's own mouse waits for an answer after each.
    async shake(x, y, dx, dy, seconds) {
      await page.mouse.move(...at(x, y));
      await page.mouse.down();
      await page.evaluate(({ from, to, time }) => new Promise(resolve => {
        const canvas = document.getElementById("screen"), start = performance.now();
        const timer = setInterval(() => {
          const passed = performance.now() - start, way = 1 - Math.abs(passed / 470 % 2 - 1);
          const [clientX, clientY] = from.map((value, index) => value + (to[index] - value) * way);
          canvas.dispatchEvent(new PointerEvent("pointermove", { pointerId: 1, clientX, clientY }));
          if (passed < time) return;
          clearInterval(timer);
          resolve();
        }, 8);
      }), { from: at(x, y), to: at(x + dx, y + dy), time: 1000 * seconds });
      await page.mouse.up();
    },
  };
}

// What of the page seriously stands in the way of assistive programs. The page must have been opened with bypassCSP.
export async function seriousFindings(page) {
  await page.addScriptTag({ path: createRequire(import.meta.url).resolve("axe-core/axe.min.js") });
  const { violations } = await page.evaluate(() => window.axe.run());
  return violations.filter(({ impact }) => ["serious", "critical"].includes(impact))
    .map(({ id, nodes }) => [id, ...nodes.map(node => node.html)]);
}

// How many pixels of the canvas differ from a picture; -1 for one of another size.
export const difference = (page, url, id = "screen") => page.evaluate(async ([source, id]) => {
  const canvas = document.getElementById(id);
  const image = new Image();
  image.src = source;
  await image.decode();
  if (image.width !== canvas.width || image.height !== canvas.height) return -1;
  const other = Object.assign(document.createElement("canvas"), { width: canvas.width, height: canvas.height });
  other.getContext("2d").drawImage(image, 0, 0);
  const pixels = from => new Uint32Array(from.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data.buffer);
  const one = pixels(canvas), two = pixels(other);
  return one.reduce((sum, pixel, index) => sum + (pixel !== two[index]), 0);
}, [url, id]);
