"""Reads the PNG files that the build draws: eight bits a channel, not interlaced, with or without alpha."""

import struct
import zlib


class Picture:
    """width and height in pixels; rows[y] is the bytes of a row, four (red, green, blue, alpha) a pixel."""

    def __init__(self, path):
        data = path.read_bytes()
        if data[:8] != b"\x89PNG\r\n\x1a\n":
            raise ValueError(f"{path} is not a PNG file")
        self.width, self.height, depth, kind, _, _, interlaced = struct.unpack(">IIBBBBB", data[16:29])
        if depth != 8 or kind not in (2, 6) or interlaced:
            raise ValueError(f"{path}: depth {depth}, colour type {kind}, interlacing {interlaced} are not read here")
        compressed, at = b"", 8
        while at < len(data):
            (length,) = struct.unpack(">I", data[at : at + 4])
            if data[at + 4 : at + 8] == b"IDAT":
                compressed += data[at + 8 : at + 8 + length]
            at += length + 12
        rows = _unfilter(zlib.decompress(compressed), self.width, self.height, 4 if kind == 6 else 3)
        self.rows = rows if kind == 6 else [_with_alpha(row) for row in rows]

    def pixel(self, x, y):
        """(red, green, blue, alpha); negative places count from the right and from the bottom."""
        x %= self.width
        return tuple(self.rows[y][4 * x : 4 * x + 4])

    def pixels(self):
        for row in self.rows:
            for at in range(0, len(row), 4):
                yield tuple(row[at : at + 4])

    def column(self, x):
        return [self.pixel(x, y) for y in range(self.height)]

    def row(self, y):
        return [self.pixel(x, y) for x in range(self.width)]

    def corners(self):
        return [self.pixel(x, y) for x in (0, -1) for y in (0, -1)]


def _with_alpha(row):
    whole = bytearray(b"\xff" * (len(row) // 3 * 4))
    for channel in range(3):
        whole[channel::4] = row[channel::3]
    return whole


def _unfilter(data, width, height, step):
    length = width * step
    above = bytearray(length)
    rows = []
    for y in range(height):
        start = y * (length + 1)
        row = bytearray(data[start + 1 : start + 1 + length])
        _UNFILTER[data[start]](row, above, step)
        rows.append(row)
        above = row
    return rows


def _sub(row, above, step):
    for i in range(step, len(row)):
        row[i] = (row[i] + row[i - step]) & 255


def _up(row, above, step):
    for i, value in enumerate(above):
        row[i] = (row[i] + value) & 255


def _average(row, above, step):
    for i, value in enumerate(above):
        left = row[i - step] if i >= step else 0
        row[i] = (row[i] + (left + value) // 2) & 255


def _paeth(row, above, step):
    for i, value in enumerate(above):
        left, corner = (row[i - step], above[i - step]) if i >= step else (0, 0)
        guess = left + value - corner
        nearest = min((abs(guess - left), 0, left), (abs(guess - value), 1, value), (abs(guess - corner), 2, corner))
        row[i] = (row[i] + nearest[2]) & 255


_UNFILTER = (lambda row, above, step: None, _sub, _up, _average, _paeth)
