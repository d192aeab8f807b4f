// The picture of the device's screen, in a frame that fits the page, and the way between its points and the page's.

const PHONE = { side: 15, chin: 62, home: 41, corner: 44, rim: 3 };
const PAD = { side: 34, chin: 66, home: 42, corner: 38, rim: 4 };
// How far the frame is turned for each device orientation of the contract's rotate(1 … 4).
const ANGLES = { 1: 0, 2: 180, 3: -90, 4: 90 };
// How the picture, which comes upright, is turned about its corner into the frame for each way that the interface lies.
const PICTURE_TURNS = {
  1: "none", 2: "rotate(180deg) translate(-100%, -100%)", 3: "rotate(90deg) translateY(-100%)",
  4: "rotate(-90deg) translateX(-100%)",
};

const canvas = document.getElementById("screen");
// Pixels only ever come from memory: a canvas that a graphics processor keeps would take them over again for each frame.
const context = canvas.getContext("2d", { alpha: false, willReadFrequently: true });
const frame = document.getElementById("frame");
const turn = document.getElementById("turn");
const highlight = document.getElementById("highlight");

let device = null;
let zoom = 1;

const PACKED = 0x80000000; // in the number of areas
let drawing = Promise.resolve(); // frames are drawn in the order in which they came

async function unpack(bytes) {
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("deflate-raw"));
  return new Response(stream).arrayBuffer();
}

// A frame: number, width, height, areas; their places; their pixels. Gives its number and whether it came packed.
export function draw(buffer) {
  const [number, width, height, areas] = new Uint32Array(buffer, 0, 4);
  const packed = areas >= PACKED, rest = new Uint8Array(buffer, 16);
  const body = packed ? unpack(rest) : null;
  drawing = drawing.then(async () => {
    const [bytes, start] = body ? [await body, 0] : [buffer, 16];
    paint(width, height, areas % PACKED, bytes, start);
    return { number, packed };
  });
  return drawing;
}

function paint(width, height, count, body, start) {
  if (canvas.width !== width || canvas.height !== height) Object.assign(canvas, { width, height });
  const places = new Uint32Array(body, start, count * 4);
  let offset = start + count * 16;
  for (let i = 0; i < count; i++) {
    const [x, y, w, h] = places.subarray(i * 4, i * 4 + 4);
    context.putImageData(new ImageData(new Uint8ClampedArray(body, offset, w * h * 4), w, h), x, y);
    offset += w * h * 4;
  }
}

export function setDevice(next) {
  device = next;
  frame.classList.toggle("pad", next.pad);
  frame.classList.toggle("sensor", next.sensor);
  // The button moved to the side with the larger phones.
  frame.classList.toggle("top-power", next.pad || next.height < 600);
  canvas.setAttribute("aria-label", `Screen of the ${next.name} with iOS ${next.ios}`);
  fit();
}

// As large as it is, or smaller when the page has less room.
export function fit() {
  if (!device) return;
  const shape = device.pad ? PAD : PHONE;
  const chin = device.pad || device.height > 500 ? shape.chin : shape.chin + 8;
  const unit = device.pad ? 1 : device.width / 375;
  const body = { width: device.width + 2 * shape.side * unit, height: device.height + 2 * chin * unit };
  const angle = ANGLES[device.turned ?? 1] ?? 0;
  const sideways = Math.abs(angle) === 90;
  const outer = sideways ? { width: body.height, height: body.width } : body;
  const room = roomFor(outer);
  zoom = Math.min(1, room.width / outer.width, room.height / outer.height);
  const lengths = {
    "body-width": body.width, "body-height": body.height, "screen-width": device.width, "screen-height": device.height,
    side: shape.side * unit, chin: chin * unit, home: shape.home * unit, corner: shape.corner * unit,
    rim: shape.rim * unit, unit,
  };
  for (const [name, length] of Object.entries(lengths)) frame.style.setProperty(`--${name}`, length * zoom);
  frame.style.setProperty("--angle", `${angle}deg`);
  const picture = uprightSize();
  frame.style.setProperty("--picture-width", picture.width * zoom);
  frame.style.setProperty("--picture-height", picture.height * zoom);
  frame.style.setProperty("--picture-turn", PICTURE_TURNS[device.interface] ?? "none");
  turn.style.setProperty("--turn-width", `${outer.width * zoom}px`);
  turn.style.setProperty("--turn-height", `${outer.height * zoom}px`);
}

function roomFor(outer) {
  const stage = turn.parentElement;
  const wide = matchMedia("(min-width: 1000px)").matches;
  const below = [...stage.children].filter(child => child !== turn && !child.hidden)
    .reduce((sum, child) => sum + child.offsetHeight + 14, 0);
  const width = stage.clientWidth - 24;
  const height = (wide ? stage.clientHeight : innerHeight * 0.92) - below - 40;
  return { width, height: Math.max(height, Math.min(outer.height, 320)) };
}

// The place on the page as a point of the screen seen upright, whichever way the frame is turned.
export function pointAt(clientX, clientY) {
  const box = canvas.getBoundingClientRect();
  const angle = (ANGLES[device.turned ?? 1] ?? 0) * Math.PI / -180;
  const dx = clientX - box.left - box.width / 2, dy = clientY - box.top - box.height / 2;
  const x = (dx * Math.cos(angle) - dy * Math.sin(angle)) / zoom + device.width / 2;
  const y = (dx * Math.sin(angle) + dy * Math.cos(angle)) / zoom + device.height / 2;
  return upright({ x, y });
}

// From points of the screen held in portrait, and back: by the way the interface is turned.
function upright({ x, y }) {
  const { width, height } = device;
  switch (device.interface) {
    case 2: return { x: width - x, y: height - y };
    case 3: return { x: y, y: width - x };
    case 4: return { x: height - y, y: x };
    default: return { x, y };
  }
}

function portrait({ x, y }) {
  const { width, height } = device;
  switch (device.interface) {
    case 2: return { x: width - x, y: height - y };
    case 3: return { x: width - y, y: x };
    case 4: return { x: y, y: height - x };
    default: return { x, y };
  }
}

export const uprightSize = () => device.interface > 2 ? { width: device.height, height: device.width }
  : { width: device.width, height: device.height };

// Puts a mark at an upright point.
export function place(mark, point) {
  const { x, y } = portrait(point);
  mark.style.left = `${x * zoom}px`;
  mark.style.top = `${y * zoom}px`;
}

// Outlines an upright rectangle {x, y, w, h}; nothing takes the outline away.
export function outline(rect) {
  highlight.hidden = !rect;
  if (!rect) return;
  const a = portrait(rect), b = portrait({ x: rect.x + rect.w, y: rect.y + rect.h });
  place(highlight, rect);
  highlight.style.left = `${Math.min(a.x, b.x) * zoom}px`;
  highlight.style.top = `${Math.min(a.y, b.y) * zoom}px`;
  highlight.style.width = `${Math.abs(a.x - b.x) * zoom}px`;
  highlight.style.height = `${Math.abs(a.y - b.y) * zoom}px`;
}

addEventListener("resize", fit);
