// A line between a page and its server that carries so many bits a second and takes its time: for measurements.
import { connect, createServer } from "node:net";
import { once } from "node:events";

const MOST_WAITING = 512 << 10; // bytes, those on their way among them

// One direction. Chunks leave in order, when the line has had the time for them, and the sender waits while many do.
function carry(from, to, { bits, delay }, change = chunk => chunk) {
  const queue = [];
  let free = 0, waiting = 0;
  const pass = () => {
    const now = performance.now();
    while (queue.length && queue[0].at <= now) {
      const { chunk } = queue.shift();
      waiting -= chunk.length;
      to.write(chunk);
    }
    if (waiting < MOST_WAITING) from.resume();
    if (queue.length) setTimeout(pass, Math.max(1, queue[0].at - now));
  };
  from.on("data", data => {
    const chunk = change(data);
    free = Math.max(performance.now(), free) + chunk.length * 8000 / bits;
    waiting += chunk.length;
    if (waiting >= MOST_WAITING) from.pause();
    if (queue.push({ chunk, at: free + delay }) === 1) setTimeout(pass, Math.max(1, free + delay - performance.now()));
  });
  for (const end of ["end", "error"]) from.on(end, () => to.destroy());
}

// The address of the page by that line; `delay` is for one way, in ms.
export async function slowLine(address, line) {
  const { port } = new URL(address);
  const server = createServer(async page => {
    const device = connect(port, "127.0.0.1");
    // The server answers only those who name its own address.
    const own = `127.0.0.1:${server.address().port}`;
    const rename = chunk => chunk.subarray(0, 4).toString() === "GET "
      ? Buffer.from(chunk.toString("latin1").replaceAll(own, `127.0.0.1:${port}`), "latin1") : chunk;
    carry(page, device, line, rename);
    carry(device, page, line);
  });
  server.listen(0, "127.0.0.1");
  await once(server, "listening");
  return { address: `http://127.0.0.1:${server.address().port}/`, end: () => server.close() };
}
