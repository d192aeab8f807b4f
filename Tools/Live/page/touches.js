// Mouse, fingers, pen and keyboard as touches on the device.
import { place, pointAt, uprightSize } from "./screen.js";

const canvas = document.getElementById("screen");
const crosshair = document.getElementById("crosshair");
const KEYBOARD = -1; // the pointer of the keyboard's finger
const STEP = 8, LARGE_STEP = 32;

// `picker` takes the pointer while it is on.
export function installTouches(connection, onHover, picker) {
  const down = new Set();
  const send = (what, pointer, point) => connection.send({ do: what, pointer, ...point });

  canvas.addEventListener("pointerdown", event => {
    if (event.button !== 0) return;
    event.preventDefault();
    canvas.focus({ preventScroll: true });
    if (picker.on) return picker.keep();
    canvas.setPointerCapture(event.pointerId);
    crosshair.hidden = true;
    down.add(event.pointerId);
    send("down", event.pointerId, pointAt(event.clientX, event.clientY));
  });
  canvas.addEventListener("pointermove", event => {
    const point = pointAt(event.clientX, event.clientY);
    if (down.has(event.pointerId)) send("move", event.pointerId, point);
    else if (picker.on) picker.at(point);
    else onHover(point);
  });
  for (const kind of ["pointerup", "pointercancel"])
    canvas.addEventListener(kind, event => {
      if (!down.delete(event.pointerId)) return;
      if (kind === "pointerup") send("move", event.pointerId, pointAt(event.clientX, event.clientY));
      send("up", event.pointerId);
    });
  canvas.addEventListener("pointerleave", () => onHover(null));
  canvas.addEventListener("contextmenu", event => event.preventDefault());
  installKeyboard(connection, send, picker);
  connection.on("lost", () => down.clear());
}

function installKeyboard(connection, send, picker) {
  let finger = null, pressed = false;

  const lift = () => {
    if (pressed) send("up", KEYBOARD);
    pressed = false;
    crosshair.classList.remove("down");
  };
  const show = () => {
    crosshair.hidden = false;
    place(crosshair, finger);
  };
  const moves = {
    ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1],
  };
  const keys = { h: () => connection.call("home"), Escape: () => picker.on ? picker.stop() : canvas.blur() };

  canvas.addEventListener("keydown", event => {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    const size = uprightSize();
    finger ??= { x: size.width / 2, y: size.height / 2 };
    if (moves[event.key]) {
      const step = event.shiftKey ? LARGE_STEP : STEP;
      finger.x = Math.min(size.width - 1, Math.max(1, finger.x + moves[event.key][0] * step));
      finger.y = Math.min(size.height - 1, Math.max(1, finger.y + moves[event.key][1] * step));
      show();
      if (picker.on) picker.at({ ...finger });
      if (pressed) send("move", KEYBOARD, finger);
    } else if (event.key === " " || event.key === "Enter") {
      show();
      if (picker.on) {
        event.preventDefault();
        return picker.keep();
      }
      if (!pressed) send("down", KEYBOARD, finger);
      pressed = true;
      crosshair.classList.add("down");
    } else if (keys[event.key.length === 1 ? event.key.toLowerCase() : event.key]) {
      if (!event.repeat) keys[event.key.length === 1 ? event.key.toLowerCase() : event.key]();
    } else {
      return;
    }
    event.preventDefault();
  });
  canvas.addEventListener("keyup", event => {
    if (event.key === " " || event.key === "Enter") lift();
  });
  canvas.addEventListener("blur", () => {
    lift();
    crosshair.hidden = true;
  });
}
