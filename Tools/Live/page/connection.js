// The socket to the device. Comes back by itself when it is lost.

const FIRST_PAUSE = 400;
const LONGEST_PAUSE = 3000;
// ms: a server that is well answers at once, also when nothing moves on its device.
const ASK_EVERY = 1000;
const SILENT_AFTER = 4000;
const GIVE_UP_AFTER = 12000;

export class Connection {
  #socket = null;
  #listeners = new Map();
  #pause = FIRST_PAUSE;

  #heard = 0;
  #silent = false;

  // `listener` gets every message of that kind; "frame" an ArrayBuffer, "open" and "lost" nothing, "silent" whether the
  // server is there and does not answer.
  on(kind, listener) {
    const listeners = this.#listeners.get(kind) ?? [];
    listeners.push(listener);
    this.#listeners.set(kind, listeners);
  }

  open() {
    const socket = new WebSocket(`ws://${location.host}/device`);
    socket.binaryType = "arraybuffer";
    socket.onopen = () => {
      this.#pause = FIRST_PAUSE;
      this.#hear();
      this.#tell("open");
    };
    socket.onmessage = ({ data }) => {
      this.#hear();
      if (typeof data !== "string") return this.#tell("frame", data);
      const message = JSON.parse(data);
      this.#tell(message.kind, message);
    };
    const asking = setInterval(() => this.#ask(socket), ASK_EVERY);
    socket.onclose = () => {
      clearInterval(asking);
      if (this.#socket !== socket) return;
      this.#tell("lost");
      setTimeout(() => this.open(), this.#pause);
      this.#pause = Math.min(this.#pause * 1.6, LONGEST_PAUSE);
    };
    this.#socket = socket;
  }

  #hear() {
    this.#heard = performance.now();
    if (!this.#silent) return;
    this.#silent = false;
    this.#tell("silent", false);
  }

  #ask(socket) {
    if (socket.readyState !== WebSocket.OPEN) return;
    this.send({ do: "alive" });
    const silence = performance.now() - this.#heard;
    // Closing waits for the other end's word, which may never come.
    if (silence > GIVE_UP_AFTER) {
      socket.close();
      socket.onclose();
    } else if (silence > SILENT_AFTER && !this.#silent) {
      this.#silent = true;
      this.#tell("silent", true);
    }
  }

  // Dropped while there is no connection: what is done to a device that is not there has no effect.
  send(message) {
    if (this.#socket?.readyState === WebSocket.OPEN) this.#socket.send(JSON.stringify(message));
  }

  // One of the calls that scripts make, as phone:NAME(arguments…).
  call(name, ...args) {
    this.send({ do: "call", call: name, arguments: args });
  }

  #tell(kind, message) {
    for (const listener of this.#listeners.get(kind) ?? []) listener(message);
  }
}
