// What a control does, or why it does nothing now: beside it while the pointer or the focus is on it, and read out.

const WAIT = 450; // ms of a pointer that rests
const tip = document.getElementById("tip");
let waiting = null;

// `reason` says why the control has no effect now; without one it has. It keeps the focus and can be asked.
export function allow(control, reason) {
  control.setAttribute("aria-disabled", String(Boolean(reason)));
  const text = reason || control.dataset.tip || "";
  if (text) control.setAttribute("aria-description", text);
  else control.removeAttribute("aria-description");
}

export const isIdle = control => control.getAttribute("aria-disabled") === "true";

function show(control) {
  const text = control.getAttribute("aria-description") ?? control.dataset.tip;
  if (!text || !control.isConnected) return;
  tip.textContent = text;
  tip.hidden = false;
  const at = control.getBoundingClientRect(), own = tip.getBoundingClientRect();
  const below = at.bottom + own.height + 12 < innerHeight;
  tip.style.top = `${below ? at.bottom + 8 : at.top - own.height - 8}px`;
  tip.style.left = `${Math.max(8, Math.min(innerWidth - own.width - 8, at.left + at.width / 2 - own.width / 2))}px`;
}

function hide() {
  clearTimeout(waiting);
  tip.hidden = true;
}

const controlOf = event => event.target.closest?.("[data-tip], [aria-description]");

export function installTips() {
  for (const control of document.querySelectorAll("[data-tip]")) control.setAttribute("aria-description", control.dataset.tip);
  document.addEventListener("pointerover", event => {
    hide();
    const control = controlOf(event);
    if (control && event.pointerType === "mouse") waiting = setTimeout(show, WAIT, control);
  });
  document.addEventListener("focusin", event => {
    hide();
    const control = controlOf(event);
    if (control?.matches(":focus-visible")) show(control);
  });
  document.addEventListener("focusout", hide);
  document.addEventListener("keydown", event => event.key === "Escape" && hide());
  // What has no effect says so when it is pressed, and does nothing.
  document.addEventListener("click", event => {
    const control = event.target.closest?.("[aria-disabled=true]");
    if (!control) return hide();
    event.preventDefault();
    event.stopImmediatePropagation();
    show(control);
  }, true);
  addEventListener("scroll", hide, true);
}
