// The live page in a real browser: a person sees badges come, opens the panel with a tap, clears a badge with a swipe,
// changes a setting, records and replays all that; and the screen shows, pixel by pixel, what a script's picture shows.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { cleanUp, difference, finger, launch, open, pause, picture, run, seriousFindings, serve } from "./harness.mjs";

const SETTINGS = ["--set", "enable=true", "--set", "glow=true"];
const MAIL = "com.apple.mobilemail";
const panelView = page => page.locator("#views-tree [role=treeitem] > span", { hasText: /^NewUIScrollView/ });
let browser, problems;

before(async () => { browser = await launch(); });
after(async () => {
  await browser.close();
  cleanUp();
});

async function withDevice(options, use) {
  const device = await serve(options);
  problems = [];
  try {
    await use(device.address);
  } finally {
    assert.equal(await device.end(), 0);
  }
  assert.deepEqual(problems, []);
}

async function setBadge(page, id, number) {
  await page.selectOption("[aria-label=Application]", id);
  await page.fill("[aria-label=Badge]", String(number));
  await page.getByRole("button", { name: "Set", exact: true }).click();
  await page.waitForFunction(([app, value]) => [...document.querySelectorAll("#events-list .badge_set")]
    .some(item => item.textContent.includes(`id ${app}, value ${value}`)), [id, number]);
}

const scriptText = page => page.evaluate(() =>
  [...document.querySelectorAll("#script-lines li")].map(line => line.textContent).join("\n"));

async function wholeScript(page) {
  await page.click("#tab-script");
  const [download] = await Promise.all([page.waitForEvent("download"), page.click("#script-save")]);
  const chunks = [];
  for await (const chunk of await download.createReadStream()) chunks.push(chunk);
  return Buffer.concat(chunks).toString();
}

// Where a script finds things is where a person sees them.
const places = script => run(`${script}
  local function centre(view) return (view.screen.x + view.screen.w / 2) .. " " .. (view.screen.y + view.screen.h / 2) end
  phone:wait(1)
  print(centre(phone:indicator().view))
  phone:tap(phone:indicator().view) phone:wait(1)
  print(centre(phone:find{ window = "overlay", name = "${MAIL}" }))`).trim().split("\n").map(line => line.split(" ").map(Number));

test("a session by hand, recorded and replayed", () => withDevice(SETTINGS, async address => {
  const page = await open(browser, address, problems);
  await setBadge(page, MAIL, 3);
  await setBadge(page, "com.apple.MobileSMS", 12);
  const [indicator, mail] = places(await scriptText(page));

  await page.click("#tab-views");
  const hand = await finger(page);
  await hand.tap(...indicator);
  await panelView(page).waitFor();

  await page.click("#tab-events");
  await hand.swipe(...mail, 0, 60);
  await page.waitForFunction(id => [...document.querySelectorAll("#events-list .badge_set")]
    .some(item => item.textContent.endsWith(`id ${id}, value 0`)), MAIL);

  await page.click("#tab-settings");
  await page.getByLabel("glow", { exact: true }).uncheck();
  await page.locator("#settings-text", { hasText: /<key>glow<\/key>\s*<false\/>/ }).waitFor({ state: "attached" });

  await pause(page);
  const script = await wholeScript(page);
  // A press that lasts as long as a tap does is written as one.
  for (const part of [/phone:badge/, /phone:(tap|hold)/, /phone:move/, /phone:set\("glow", false\)/])
    assert.match(script, part);
  run(`${script}\nphone:shot("end")`);
  assert.equal(await difference(page, picture("end")), 0, "the page shows what the script's picture shows");

  await page.click("#script-hurry");
  await page.locator("#script-state", { hasText: "same events and picture" }).waitFor();
}));

test("a tablet on its side, its Settings and back", () => withDevice(["--device", "iPad Air 2", ...SETTINGS],
  async address => {
    const page = await open(browser, address, problems);
    await page.getByRole("button", { name: "Left", exact: true }).click();
    await page.waitForFunction(() => document.getElementById("screen").width === 2048);
    const box = await page.locator("#screen").boundingBox();
    assert.ok(box.width > box.height, "the picture lies on its side as the device does");
    await setBadge(page, MAIL, 3);
    const [indicator] = places(await scriptText(page));
    await page.click("#tab-views");
    const hand = await finger(page);
    await hand.tap(...indicator);
    await panelView(page).waitFor();

    await page.getByRole("button", { name: "Settings", exact: true }).click();
    await page.locator("#views-tree", { hasText: "UISwitch" }).waitFor();
    const [toggle] = run(`${await scriptText(page)}
      pane:wait(1)
      local first = pane:find{ class = "UISwitch" }.screen
      print((first.x + first.w / 2) .. " " .. (first.y + first.h / 2))`).trim().split("\n")
      .map(line => line.split(" ").map(Number));
    await hand.tap(...toggle);
    await page.click("#tab-settings");
    await page.locator("#settings-text", { hasText: /<key>enable<\/key>\s*<false\/>/ }).waitFor({ state: "attached" });
    await pause(page);
    run(`${await wholeScript(page)}\npane:shot("settings")`);
    assert.equal(await difference(page, picture("settings")), 0, "the page shows Settings as a script's picture does");

    await page.click("#frame-home");
    await page.waitForSelector("[data-show=home][aria-pressed=true]");
    run(`${await wholeScript(page)}\nphone:shot("home")`);
    assert.equal(await difference(page, picture("home")), 0, "and the home screen behind it");
    await page.click("#script-hurry");
    await page.locator("#script-state", { hasText: "same events and picture" }).waitFor();
  }));

test("at first sight: badges, a word what to do, and what a finger meets there", () => withDevice(["--compress"],
  async address => {
    const page = await open(browser, address, problems);
    await page.locator("#greeting", { hasText: "Three applications carry badges" }).waitFor();
    await page.locator("#status-text", { hasText: "compressed" }).waitFor();
    await page.click("#tab-script");
    const [indicator, mail] = places(await scriptText(page));
    const hand = await finger(page);
    await page.click("#tab-views");
    await hand.tap(...indicator);
    await panelView(page).waitFor();
    assert.equal(await page.locator("#views-tree .said", { hasText: "12" }).count(), 1, "a text is told from a frame");

    await page.click("#pick");
    await hand.point(...mail);
    await page.locator("#pick-query", { hasText: `name = "${MAIL}" }` }).waitFor();
    await hand.click();
    const query = await page.textContent("#pick-query");
    assert.equal(await page.getAttribute("#pick", "aria-pressed"), "false");
    await pause(page);
    const script = await wholeScript(page);
    assert.match(script, /phone:(tap|hold)\(phone:indicator\(\)\.view[^\n]*\nphone:wait\([\d.]+\)\n$/, "a pick is no touch");
    assert.match(run(`${script}\nprint(${query}.class)\nphone:shot("packed")`), /UIImageView/);
    assert.equal(await difference(page, picture("packed")), 0, "packed frames lose nothing");
  }));

test("what has no effect now says so, and what is chosen shows in every scheme", () => withDevice(
  ["--device", "iPad 2", ...SETTINGS], async address => {
    const page = await open(browser, address, problems);
    const button = name => page.getByRole("button", { name, exact: true });
    await page.locator("[aria-disabled=true]", { hasText: "Matches" }).waitFor();
    await button("Matches").focus();
    await page.keyboard.press("Enter");
    await page.locator("#tip", { hasText: "no fingerprint sensor" }).waitFor();
    await button("Display off").click();
    await button("Display on").click();
    await page.locator("[aria-disabled=false]", { hasText: "Unlock" }).waitFor();
    await button("Unlock").click();
    await button("Step a frame").hover();
    await page.locator("#tip", { hasText: "pause it" }).waitFor();

    await page.click("#tab-settings");
    await button("Remove glow").click();
    await page.locator("#settings-state", { hasText: "2 keys" }).waitFor();
    assert.doesNotMatch(await page.textContent("#settings-text"), /glow/);

    await page.click("#tab-script");
    await page.focus("#script-lines li");
    await page.keyboard.press("End");
    assert.match(await page.evaluate(() => document.activeElement.textContent), /phone:set\("glow", nil\)/);
    assert.doesNotMatch(await scriptText(page), /finger/, "what has no effect is not done");

    await page.emulateMedia({ forcedColors: "active" });
    const ground = selector => page.$eval(selector, element => getComputedStyle(element).backgroundColor);
    assert.notEqual(await ground("[data-show=home]"), await ground("[data-show=settings]"));
    assert.notEqual(await ground("[name=speed]:checked + span"), await ground("[name=speed]:not(:checked) + span"));
    assert.notEqual(await ground("#tab-script"), await ground("#tab-events"));
  }));

test("nothing serious stands in the way of assistive programs", () => withDevice(["--no-compress"], async address => {
  for (const colorScheme of ["light", "dark"]) {
    const page = await open(browser, address, problems, { colorScheme, bypassCSP: true });
    await page.getByRole("button", { name: "Activator", exact: true }).click();
    for (const tab of ["events", "views", "counters", "settings", "script"]) {
      await page.click(`#tab-${tab}`);
      if (tab === "views") await page.locator("#views-tree li").first().click();
      assert.deepEqual(await seriousFindings(page), [], `${tab}, ${colorScheme}`);
    }
    await page.close();
  }
}));

test("a page without a mouse, and one that loses its server", async () => {
  await withDevice(SETTINGS, async address => {
    const page = await open(browser, address, problems);
    await page.focus("#screen");
    for (let i = 0; i < 3; i++) await page.keyboard.press("Shift+ArrowDown");
    await page.keyboard.down("Space");
    await page.keyboard.press("ArrowUp");
    await page.keyboard.up("Space");
    await page.keyboard.press("h");
    await page.focus("#tab-events");
    for (let i = 0; i < 4; i++) await page.keyboard.press("ArrowRight");
    assert.equal(await page.getAttribute("#tab-script", "aria-selected"), "true");
    await page.locator("#script-lines", { hasText: "phone:home()" }).waitFor();
    assert.match(await scriptText(page), /phone:down\{187\.5, 429\.5\}/);

    await page.selectOption("#device-name", "iPad 2");
    assert.deepEqual(await page.locator("#device-ios option").allTextContents(), ["7.0", "7.1", "8.0", "8.1", "8.3"]);
    await page.getByRole("button", { name: "Boot", exact: true }).click();
    await page.waitForFunction(() => document.getElementById("screen").height === 1024);
    const unnamed = await page.evaluate(() => [...document.querySelectorAll("button, input, select, canvas")]
      .filter(element => !element.closest("[hidden]") && !element.getAttribute("aria-label")
        && !element.textContent.trim() && !element.labels?.length).map(element => element.outerHTML));
    assert.deepEqual(unnamed, [], "everything has a name to be read out");
  });
});

test("the page says so when the server goes, and comes back with it", async () => {
  problems = [];
  const first = await serve(SETTINGS);
  const page = await open(browser, first.address, []);
  first.signal("SIGSTOP");
  await page.locator("#status[data-state=bad]", { hasText: "does not answer" }).waitFor();
  first.signal("SIGCONT");
  await page.waitForSelector("#status[data-state=good]");
  await page.locator("#veil").waitFor({ state: "hidden" });
  await first.end();
  await page.locator("#veil", { hasText: "Trying again" }).waitFor();
  // Each attempt sets the lamp; nothing else may light it up between two.
  await page.evaluate(() => {
    window.states = [];
    new MutationObserver(() => window.states.push(document.getElementById("status").dataset.state))
      .observe(document.getElementById("status"), { attributes: true });
  });
  await page.waitForFunction(() => window.states.length >= 4);
  assert.deepEqual([...new Set(await page.evaluate(() => window.states))], ["bad"]);
  const second = await serve(SETTINGS, new URL(first.address).port);
  await page.waitForSelector("#status[data-state=good]");
  await page.locator("#veil").waitFor({ state: "hidden" });
  await second.end();
});

test("a phone's width holds everything without scrolling sideways", () => withDevice(SETTINGS, async address => {
  for (const [width, colorScheme] of [[320, "light"], [390, "dark"], [768, "light"], [1100, "dark"]]) {
    const page = await open(browser, address, problems, { viewport: { width, height: 800 }, colorScheme });
    const overflow = await page.evaluate(() => document.documentElement.scrollWidth - innerWidth);
    assert.ok(overflow <= 0, `${width}: ${overflow} pixels too wide`);
    await page.close();
  }
}));
