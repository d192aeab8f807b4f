// The page of a trace, opened from disk: whoever scrubs sees what the script's own pictures show, with the line, the events
// and the views of that step, and can lay any two pictures over each other.
import assert from "node:assert/strict";
import { readFileSync, statSync, writeFileSync } from "node:fs";
import { after, before, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { cleanUp, difference, launch, own, picture, runFile, seriousFindings, watched } from "./harness.mjs";

const TOUR = fileURLToPath(new URL("../../scenarios/tour.lua", import.meta.url));
const lines = readFileSync(TOUR, "utf8").split("\n");
let browser;

before(async () => {
  browser = await launch();
  runFile(TOUR, "--trace", own("tour.html"));
});
after(async () => {
  await browser.close();
  cleanUp();
});

// Opens a trace, and gives the page to `use`; nothing may fail on it, and nothing may be fetched.
async function withTrace(file, options, use) {
  const problems = [], fetched = [];
  const page = await watched(browser, problems, options);
  page.on("request", request => !/^(file|data):/.test(request.url()) && fetched.push(request.url()));
  await page.goto(pathToFileURL(file).href);
  await use(page);
  assert.deepEqual([problems, fetched], [[], []]);
  await page.close();
}

const shows = (page, step, id = "picture") => page.waitForFunction(([wanted, canvas]) =>
  document.getElementById(canvas).dataset.step === wanted, [String(step), id]);

// The steps as the list shows them: what is called, and the line of the script that led there last.
const listed = page => page.locator("#steps [role=option]").evaluateAll(items => items.map(item => item.textContent));

// The pictures that the tour takes, and the line of each.
const shots = lines.flatMap((line, index) => {
  const name = line.match(/^ *phone:shot\("(.*)"\)/)?.[1];
  return name ? [{ name, line: index + 1 }] : [];
});

test("scrubbing shows the pictures that the script took", () => withTrace(own("tour.html"), {}, async page => {
  assert.ok(statSync(own("tour.html")).size < 15e6);
  assert.ok(shots.length > 5);
  await shows(page, 0);
  // The line of the script itself that each step comes from, read where a person reads it.
  const count = (await listed(page)).length, from = [];
  for (let step = 0; step < count; step++) {
    assert.equal(await page.getAttribute("#scrub", "aria-valuetext").then(text => text.split(",")[0]), `step ${step + 1} of ${count}`);
    from.push(Number((await page.locator("#callers button").last().textContent()).split(":")[1]));
    await page.keyboard.press("ArrowRight");
  }
  for (const { name, line } of shots) {
    const step = from.findLastIndex(other => other < line);
    // The scrubber is dragged there from its other end.
    const box = await page.locator("#scrub").boundingBox(), place = await page.evaluate(`positions[${step}] / ALL`);
    await page.mouse.move(box.x + box.width - 9, box.y + box.height / 2);
    await page.mouse.down();
    await page.mouse.move(box.x + 8 + place * (box.width - 16), box.y + box.height / 2, { steps: 3 });
    await page.mouse.up();
    await shows(page, step);
    assert.equal(await difference(page, picture(name), "picture"), 0, `${name}, step ${step + 1}`);
  }
}));

test("a step has its line, its events and its views, and two of them can be compared", () =>
  withTrace(own("tour.html"), { colorScheme: "dark" }, async page => {
    const first = lines.findIndex(line => line.startsWith("phone:badge(mail, 3)")), steps = await listed(page);
    const step = steps.findIndex(text => text.includes('badge("com.apple.mobilemail", 3)'));
    await page.locator("#steps [role=option]").nth(step).click();
    await shows(page, step);
    assert.equal(await page.textContent("#source [aria-current]"), lines[first]);
    await page.locator("#events li", { hasText: /badge_set.*id com.apple.mobilemail  value 3/ }).waitFor();
    await page.click("#tab-views");
    await page.locator("#views .changed", { hasText: "SBIconBadgeView" }).first().hover();
    const badge = await page.locator("#outline").boundingBox(), screen = await page.locator("#screen").boundingBox();
    assert.ok(badge.y > screen.y + screen.height * 0.8 && badge.x < screen.x + screen.width / 2, `the badge in the dock is framed, not ${JSON.stringify(badge)} on ${JSON.stringify(screen)}`);

    await page.keyboard.press("c");
    await page.selectOption("#other", { index: step - 1 });
    await shows(page, step - 1, "picture-a");
    assert.equal(await difference(page, picture(shots[0].name), "picture-a"), 0, "A is before the badge");
    await page.locator("#divider").fill("25");
    const line = await page.locator("#line").boundingBox();
    assert.ok(Math.abs((line.x - screen.x) / screen.width - 0.25) < 0.01);
    assert.match(await page.evaluate(() => getComputedStyle(document.getElementById("picture-a")).clipPath), /inset\(0px 75% 0px 0px\)/);
    await page.selectOption("#this", { index: 0 });
    await shows(page, 0);
  }));

test("failures stand out, every width holds the page, and nothing serious stands in the way of assistive programs", async () => {
  writeFileSync(own("fails.lua"), `local phone = boot { device = "iPad 2" }
    test("is <b>wrong</b></script>", function() phone:home() expect(false, "no </script> here") end)`);
  assert.throws(() => runFile(own("fails.lua"), "--trace", own("fails.html")));
  for (const [width, colorScheme] of [[320, "light"], [768, "dark"], [1100, "light"]])
    await withTrace(own("fails.html"), { viewport: { width, height: 800 }, colorScheme, bypassCSP: true }, async page => {
      await shows(page, 2);
      assert.equal(await page.textContent("#failure"), "no </script> here");
      assert.equal(await page.textContent("#steps .test"), "is <b>wrong</b></script>");
      assert.match(await page.textContent("#source [aria-current]"), /expect\(false/);
      const overflow = await page.evaluate(() => document.documentElement.scrollWidth - innerWidth);
      assert.ok(overflow <= 0, `${width}: ${overflow} pixels too wide`);
      await page.keyboard.press("c");
      for (const tab of ["events", "views"]) {
        await page.click(`#tab-${tab}`);
        assert.deepEqual(await seriousFindings(page), [], `${tab}, ${colorScheme}`);
      }
    });
});
