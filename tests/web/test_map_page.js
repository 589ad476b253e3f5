// The map page in a real browser (Debian's chromium, driven by playwright-core), loaded beside
// Leaflet as the program's base URL does, offline (tile requests fail) and online (a tile made
// here). Usage: node test_map_page.js PAGE LEAFLET_DIR OUTPUT_DIR (screenshots go there).
"use strict";

const fs = require("fs");
const os = require("os");
const path = require("path");
const { chromium } = require("playwright-core");

const [page_, leafletDir, outputDir] = process.argv.slice(2);
let failures = 0;

function check(ok, message) {
  console.log((ok ? "ok    " : "FAIL  ") + message);
  if (!ok) failures++;
}

// A 256 x 256 PNG tile of one light colour (ImageMagick's, as the first-start test uses).
const TILE = require("child_process").execFileSync("convert", ["-size", "256x256", "xc:#d8e4c8", "png:-"]);

// A drive east along a street, fast, then slow, with a stretch without a fix.
const ROUTE = [];
for (let i = 0; i < 60; i++) {
  const noFix = i >= 40 && i < 45;
  ROUTE.push(noFix ? [0, 0, 0] : [37.5, 127.0 + i * 0.0002, i < 30 ? 95 : 20]);
}

async function mapState(page) {
  return page.evaluate(() => {
    const car = document.querySelector(".car");
    const lines = Array.from(document.querySelectorAll("path.leaflet-interactive"));
    const status = document.getElementById("status");
    return {
      car: car ? { x: car.getBoundingClientRect().x, y: car.getBoundingClientRect().y,
                   speed: car.querySelector(".speed").textContent,
                   arrow: car.querySelector(".arrow").style.transform } : null,
      colours: lines.map((l) => l.getAttribute("stroke")),
      scale: document.querySelector(".leaflet-control-scale-line") !== null &&
          document.querySelector(".leaflet-control-scale-line").textContent,
      ground: document.querySelectorAll("canvas.leaflet-tile").length,
      status: status.style.display === "block" ? status.textContent : "",
      centre: map.getCenter(),
      zoom: map.getZoom(),
      background: getComputedStyle(document.getElementById("map")).backgroundColor,
    };
  });
}

async function run(browser, online) {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "tavoric-map-"));
  fs.copyFileSync(page_, path.join(folder, "map.html"));
  fs.cpSync(leafletDir, path.join(folder, "leaflet"), { recursive: true });
  const page = await browser.newPage({ viewport: { width: 310, height: 678 } });
  const tiles = [];
  await page.route(/^https?:\/\//, (route) => {
    tiles.push(route.request().url());
    if (online)
      route.fulfill({ status: 200, contentType: "image/png", body: TILE });
    else
      route.abort("internetdisconnected");
  });
  const errors = [];
  page.on("pageerror", (error) => errors.push(String(error)));
  await page.goto("file://" + path.join(folder, "map.html"));
  const name = online ? "online" : "offline";

  await page.evaluate(() => initMap());
  await page.evaluate((route) => setRoute(route), ROUTE);
  await page.evaluate(() => setLatLng(37.50000, 127.00000, 95, true));
  await page.waitForTimeout(800);
  let state = await mapState(page);
  check(state.car !== null && state.car.speed === "95 km/h", name + ": the car is shown with its speed");
  check(Math.abs(state.centre.lat - 37.5) < 1e-6 && Math.abs(state.centre.lng - 127.0) < 1e-6 &&
        state.zoom === 16, name + ": the first position centres the map");
  // Fast (red) for the first part, slow (green) after it; the stretch without a fix breaks it.
  check(state.colours.includes("#ff3a00") && state.colours.includes("#65ca26"),
        name + ": the route is drawn coloured by speed (" + state.colours.join(" ") + ")");
  check(state.colours.length >= 3, name + ": the route breaks where there is no fix");
  check(state.scale && /\d+ (m|km)/.test(state.scale), name + ": a scale is shown (" + state.scale + ")");
  check(state.ground > 0, name + ": the map has its own ground under the tiles");
  check(state.background === "rgb(31, 35, 43)", name + ": the background is the program's, not grey");
  const first = state.car;

  await page.evaluate(() => setLatLng(37.50000, 127.00100, 20, false));
  await page.waitForTimeout(300);
  state = await mapState(page);
  check(state.car.x > first.x + 20, name + ": a move takes the car east (" + first.x + " -> " + state.car.x + ")");
  const angle = parseFloat((/rotate\(([-\d.]+)deg\)/.exec(state.car.arrow) || [])[1]);
  check(Math.abs(angle - 90) < 2, name + ": the arrow points the way it went, east (" + angle + ")");
  check(state.zoom === 16, name + ": a move keeps the zoom");

  // Miles per hour: the car's speed and the scale change unit at once, and stay so on a new
  // map.
  await page.evaluate(() => { setSpeedUnit(true); setLatLng(37.50000, 127.00100, 20, false); });
  state = await mapState(page);
  check(state.car.speed === "12 mph" && /\d+ (ft|mi)/.test(state.scale),
        name + ": in miles per hour (" + state.car.speed + ", " + state.scale + ")");
  await page.evaluate(() => { initMap(); setLatLng(37.50000, 127.00000, 95, true); });
  state = await mapState(page);
  check(state.car.speed === "59 mph" && /\d+ (ft|mi)/.test(state.scale),
        name + ": a new map keeps the unit (" + state.car.speed + ", " + state.scale + ")");
  await page.evaluate(() => setSpeedUnit(false));

  // A drive's incidents as pins where they happened, each with its tool tip; replaced, not
  // added to, by the next call.
  await page.evaluate(() => setIncidents([[37.5, 127.002, "01:28 1.24 g"],
                                          [37.5, 127.006, "02:10 0.52 g"]]));
  let pins = await page.evaluate(() => Array.from(document.querySelectorAll("path.incident"))
      .map((pin) => pin.getAttribute("fill")));
  check(pins.length === 2 && pins.every((fill) => fill === "#ffa02e"),
        name + ": two incident pins (" + pins.join(", ") + ")");
  await page.hover("path.incident");
  const tip = await page.evaluate(() => {
    const shown = document.querySelector(".leaflet-tooltip");
    return shown ? shown.textContent : "";
  });
  check(tip === "01:28 1.24 g" || tip === "02:10 0.52 g", name + ": a pin tells what (" + tip + ")");
  await page.evaluate(() => setIncidents([[37.5, 127.004, "00:05 0.50 g"]]));
  pins = await page.evaluate(() => document.querySelectorAll("path.incident").length);
  check(pins === 1, name + ": the next drive's pins replace the last ones (" + pins + ")");

  // A new recording starts on a new map.
  await page.evaluate(() => initMap());
  state = await mapState(page);
  check(state.car === null && state.colours.length === 0 &&
        (await page.evaluate(() => document.querySelectorAll("path.incident").length)) === 0,
        name + ": initMap() clears the last recording");
  await page.evaluate((route) => setRoute(route), ROUTE);
  await page.evaluate(() => setLatLng(37.50000, 127.00000, 95, true));
  await page.waitForTimeout(600);
  state = await mapState(page);
  if (online) {
    check(tiles.some((url) => /^https:\/\/tile\.openstreetmap\.org\/16\/\d+\/\d+\.png$/.test(url)),
          "online: OpenStreetMap tiles are asked for");
    check(state.status === "", "online: no offline note");
  } else {
    check(state.status === "Offline map", "offline: the map says it is offline");
  }
  check(errors.length === 0, name + ": no script errors (" + errors.join("; ") + ")");
  await page.screenshot({ path: path.join(outputDir, "map-page-" + name + ".png") });
  await page.close();
  fs.rmSync(folder, { recursive: true, force: true });
}

(async () => {
  fs.mkdirSync(outputDir, { recursive: true });
  const browser = await chromium.launch({
    executablePath: "/usr/bin/chromium",
    args: ["--no-sandbox", "--disable-gpu", "--disable-background-networking",
           "--disable-component-update", "--disable-sync", "--no-first-run"],
  });
  try {
    await run(browser, false);
    await run(browser, true);
  } finally {
    await browser.close();
  }
  if (failures > 0) {
    console.log(failures + " checks failed");
    process.exit(1);
  }
})().catch((error) => {
  console.error(error);
  process.exit(1);
});
