"""A page's end of the live socket, and the program that serves it, for tests."""

import base64
import json
import os
import pathlib
import socket
import struct
import subprocess
import sys


class Live:
    """`pendix-sim live`, or another command that serves, on a port of its own, with a clock that moves in steps."""

    def __init__(self, program, *arguments, command="live"):
        arguments = arguments or ("--boot", "{}")  # without any it shows the tour
        self.process = subprocess.Popen([program, command, "--port", "0", "--speed", "0", *arguments], stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, text=True)
        line = self.process.stdout.readline()
        if "http://" not in line:
            sys.exit(f"the server did not start: {self.process.communicate()[1]}")
        self.port = int(line.split("http://127.0.0.1:")[1].split("/")[0])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()
        self.process.stdout.close()
        self.process.stderr.close()

    def child(self, name):
        """The number of the process of that name that it started last, by itself or through another."""
        def below(process):
            for file in pathlib.Path(f"/proc/{process}/task").glob("*/children"):
                for child in file.read_text().split():
                    yield int(child)
                    yield from below(child)
        return max(number for number in below(self.process.pid)
                   if pathlib.Path(f"/proc/{number}/comm").read_text().strip() == name)

    def end(self):
        """Ends it in order; gives its exit status and what it said on its error stream."""
        if self.process.poll() is None:
            self.process.terminate()
        errors = self.process.stderr.read()
        self.process.wait()
        return self.process.returncode, errors


def request(port, text):
    """The whole answer to one HTTP request given as lines."""
    with socket.create_connection(("127.0.0.1", port)) as connection:
        connection.sendall("\r\n".join([*text, "Connection: close", "", ""]).encode())
        return b"".join(iter(lambda: connection.recv(65536), b"")).decode("latin1")


class Closed(Exception):
    """The server has closed the socket; the argument is its code."""


class Page:
    """Keeps what it is told: the latest message of each kind, all events, the script, the number of frames."""

    def __init__(self, port):
        self.socket = socket.create_connection(("127.0.0.1", port))
        key = base64.b64encode(os.urandom(16)).decode()
        host = f"127.0.0.1:{port}"
        self.socket.sendall("\r\n".join([
            "GET /device HTTP/1.1", f"Host: {host}", f"Origin: http://{host}", "Connection: Upgrade",
            "Upgrade: websocket", "Sec-WebSocket-Version: 13", f"Sec-WebSocket-Key: {key}", "", ""]).encode())
        self.unread = b""
        while b"\r\n\r\n" not in self.unread:
            self.unread += self.socket.recv(65536)
        self.unread = self.unread.split(b"\r\n\r\n", 1)[1]
        self.latest, self.events, self.script, self.frames = {}, [], [], 0

    def close(self):
        self.socket.close()

    def send_bytes(self, payload, opcode=1):
        size = len(payload)
        head = bytes([0x80 | opcode])
        head += bytes([0x80 | size]) if size < 126 else struct.pack(">BH", 0x80 | 126, size) if size < 65536 \
            else struct.pack(">BQ", 0x80 | 127, size)
        self.socket.sendall(head + b"\0\0\0\0" + payload)

    def send(self, do, **fields):
        self.send_bytes(json.dumps({"do": do, **fields}).encode())

    def call(self, name, *arguments):
        self.send("call", call=name, arguments=list(arguments))

    def _take(self, count):
        while len(self.unread) < count:
            part = self.socket.recv(1 << 20)
            if not part:
                raise Closed(None)
            self.unread += part
        taken, self.unread = self.unread[:count], self.unread[count:]
        return taken

    def receive(self):
        """The next message's kind, after keeping it; "frame" for a picture, which is acknowledged."""
        opcode, size = self._take(2)
        if size == 126:
            size, = struct.unpack(">H", self._take(2))
        elif size == 127:
            size, = struct.unpack(">Q", self._take(8))
        payload = self._take(size)
        opcode &= 0x0F
        if opcode == 8:
            raise Closed(struct.unpack(">H", payload[:2])[0] if payload else None)
        if opcode == 9:
            self.send_bytes(payload, opcode=10)
            return self.receive()
        if opcode == 2:
            self.frames += 1
            self.send("seen", frame=struct.unpack("<I", payload[:4])[0])
            return "frame"
        return self._keep(json.loads(payload))

    def _keep(self, message):
        kind = message["kind"]
        self.latest[kind] = message
        if kind == "events":
            self.events[message["first"]:] = message["events"]
        if kind == "script":
            self.script[message["from"]:] = message["lines"]
        return kind

    def wait_for(self, kind, holds=lambda message: True):
        """Reads on until a message of that kind comes for which `holds`, and gives it."""
        while self.receive() != kind or not holds(self.latest.get(kind)):
            pass
        return self.latest.get(kind)

    def whole_script(self):
        """What comes back also shows that all that was sent before has been done."""
        self.send("script")
        return self.wait_for("whole-script")["text"]
