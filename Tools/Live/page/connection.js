// The socket to the device. Comes back by itself when it is lost.

const FIRST_PAUSE = 400;
const LONGEST_PAUSE = 3000;

export class Connection {
  #socket = null;
  #listeners = new Map();
  #pause = FIRST_PAUSE;

  // `listener` gets every message of that kind; "frame" an ArrayBuffer, "open" and "lost" nothing.
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
      this.#tell("open");
    };
    socket.onmessage = ({ data }) => {
      if (typeof data !== "string") return this.#tell("frame", data);
      const message = JSON.parse(data);
      this.#tell(message.kind, message);
    };
    socket.onclose = () => {
      this.#tell("lost");
      setTimeout(() => this.open(), this.#pause);
      this.#pause = Math.min(this.#pause * 1.6, LONGEST_PAUSE);
    };
    this.#socket = socket;
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
