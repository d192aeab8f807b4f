// What the processes below this one have used of the processor.
import { readdirSync, readFileSync } from "node:fs";

const ticksPerSecond = 100; // of /proc/PID/stat, on every Linux

const read = path => {
  try {
    return readFileSync(path, "utf8");
  } catch {
    return null; // it has ended meanwhile
  }
};
// What follows the name in /proc/PID/stat: parent is number 1, user and system time are 11 and 12.
const fields = pid => read(`/proc/${pid}/stat`)?.split(") ").pop().split(" ").map(Number);

function isBelow(pid, ancestor) {
  for (; pid > 1; pid = fields(pid)?.[1] ?? 0) if (pid === ancestor) return true;
  return false;
}

function kind(pid) {
  const command = read(`/proc/${pid}/cmdline`) ?? "";
  if (command.includes("pendix-home")) return "home screen";
  return command.includes("pendix-sim") ? "supervisor" : "browser";
}

// Seconds of processor time so far, by kind of process.
export function processorTime() {
  const sum = {};
  for (const pid of readdirSync("/proc").filter(name => /^\d+$/.test(name)).map(Number)) {
    if (pid === process.pid || !isBelow(pid, process.pid)) continue;
    const of = fields(pid);
    if (of) sum[kind(pid)] = (sum[kind(pid)] ?? 0) + (of[11] + of[12]) / ticksPerSecond;
  }
  return sum;
}

// The machine's load average over the last minute, this included.
export const load = () => read("/proc/loadavg").split(" ")[0];
