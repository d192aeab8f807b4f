// Pictures by their places in the run: whole ones, and parts that lie on a whole one.
"use strict";
const decoded = new Map(); // promises of images, by the entry; the oldest go first
const MOST_DECODED = 40;

function imageOf(entry) {
  let image = decoded.get(entry);
  if (!image) {
    const loading = new Image();
    loading.src = `data:image/png;base64,${entry.png}`;
    image = loading.decode().then(() => loading);
  }
  decoded.delete(entry);
  decoded.set(entry, image);
  if (decoded.size > MOST_DECODED) decoded.delete(decoded.keys().next().value);
  return image;
}

const wholeOf = number => {
  const entry = trace.run.pictures[number];
  return entry.on === undefined ? entry : trace.run.pictures[entry.on];
};

// The layers of a picture, decoded, in the order in which they are drawn.
async function layersOf(number) {
  const entry = trace.run.pictures[number], whole = wholeOf(number);
  const layers = [{ image: await imageOf(whole), x: 0, y: 0 }];
  if (entry !== whole) layers.push({ image: await imageOf(entry), x: entry.x, y: entry.y });
  return layers;
}

// Draws a picture at its own size into a canvas, unless `stillWanted` says no by the time it is decoded.
async function drawPicture(canvas, number, stillWanted = () => true) {
  const whole = wholeOf(number), layers = await layersOf(number);
  if (!stillWanted()) return false;
  canvas.width = whole.width;
  canvas.height = whole.height;
  const context = canvas.getContext("2d");
  for (const { image, x, y } of layers) context.drawImage(image, x, y);
  return true;
}
