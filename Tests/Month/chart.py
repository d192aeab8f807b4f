"""Draws a table of watch.py, and tells how fast each process grew.

chart.py TABLE.csv CHART.png

The growth is the slope of the least-squares line through a process's hours, in MB a day. A process that starts again (the
home screen at a respring, Settings when it is opened after one) begins a line of its own; the slope is common to its lines.
The first DAY of each life counts for the picture and not for the slope: what is made with the first use and kept is no growth."""
import csv
import pathlib
import subprocess
import sys
import tempfile

WEEK, DAY = 7 * 24, 24
WIDTH, HEIGHT, LEFT, RIGHT, TOP, BOTTOM = 1000, 460, 76, 28, 78, 62
COLOURS = {"supervisor": "#1b6fb5", "home screen": "#c8451b", "Settings": "#3d8b40"}
NAMES = {"supervisor": "Supervisor", "home screen": "Home screen", "Settings": "Settings"}
INK, PALE, LINE = "#222222", "#666666", "#dddddd"


def read(path):
    """name -> [(hour, MB)]"""
    rows = list(csv.DictReader(pathlib.Path(path).open()))
    names = [name for name in rows[0] if name != "hour"]
    return {name: [(int(row["hour"]), float(row[name])) for row in rows if row[name]] for name in names}


def lives(name, points):
    """Cut where the process started again: at the end of a week, and at gaps."""
    parts = []
    for hour, value in points:
        again = name != "supervisor" and (hour - 1) % WEEK == 0
        if not parts or again or hour != parts[-1][-1][0] + 1:
            parts.append([])
        parts[-1].append((hour, value))
    return parts


def slope(parts):
    """MB a day; None without two points after the first day of a life."""
    above = below = 0.0
    for part in parts:
        settled = [(hour, value) for hour, value in part if hour >= part[0][0] + DAY]
        if len(settled) < 2:
            continue
        x = sum(hour for hour, _ in settled) / len(settled)
        y = sum(value for _, value in settled) / len(settled)
        above += sum((hour - x) * (value - y) for hour, value in settled)
        below += sum((hour - x) ** 2 for hour, _ in settled)
    return DAY * above / below if below else None


def ticks(most):
    step = next(step for step in (1, 2, 5, 10, 20, 50, 100, 200, 500, 1000) if most / step <= 6)
    return [step * i for i in range(int(most // step) + 2)]


def text(x, y, words, anchor="middle", colour=PALE, size=14, more=""):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" fill="{colour}" font-size="{size}" '
            f'font-family="Inter, sans-serif" {more}>{words}</text>')


class Frame:
    """Where an hour and a number of MB lie in the picture."""

    def __init__(self, table):
        self.hours = max(hour for points in table.values() for hour, _ in points)
        self.ticks = ticks(max(value for points in table.values() for _, value in points))

    def across(self, hour):
        return LEFT + (WIDTH - LEFT - RIGHT) * hour / self.hours

    def up(self, value):
        return HEIGHT - BOTTOM - (HEIGHT - TOP - BOTTOM) * value / self.ticks[-1]


def axes(frame):
    days, middle = frame.hours // DAY, (TOP + HEIGHT - BOTTOM) / 2
    parts = [text(LEFT, 28, f"Resident memory at the end of each hour, {days} days of use", "start", INK, 18)]
    for value in frame.ticks:
        parts.append(f'<path d="M{LEFT} {frame.up(value):.1f}H{WIDTH - RIGHT}" stroke="{LINE}"/>')
        parts.append(text(LEFT - 10, frame.up(value) + 5, value, "end"))
    for day in range(0, days + 1, max(1, days // 10)):
        x = frame.across(day * DAY)
        parts.append(f'<path d="M{x:.1f} {HEIGHT - BOTTOM}v6" stroke="{PALE}"/>')
        parts.append(text(x, HEIGHT - BOTTOM + 23, day))
    for hour in range(WEEK, frame.hours, WEEK):
        parts.append(f'<path d="M{frame.across(hour):.1f} {TOP}V{HEIGHT - BOTTOM}" stroke="{PALE}" stroke-dasharray="3 4"/>')
    parts.append(text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 14, "Days (dashed: the home screen starts again)", colour=INK))
    parts.append(text(22, middle, "MB", colour=INK, more=f'transform="rotate(-90 22 {middle})"'))
    return parts


def curve(frame, name, points):
    parts = []
    for part in lives(name, points):
        line = "L".join(f"{frame.across(hour):.1f} {frame.up(value):.1f}" for hour, value in part)
        parts.append(f'<path d="M{line}" fill="none" stroke="{COLOURS[name]}" stroke-width="2.2" stroke-linejoin="round"/>')
    return parts


def key(x, name, points):
    grew = slope(lives(name, points))
    words = NAMES[name] + ("" if grew is None else f": {grew:+.3f} MB a day".replace("-", "−"))
    return [f'<path d="M{x} 52h26" stroke="{COLOURS[name]}" stroke-width="3"/>', text(x + 34, 57, words, "start", INK)]


def chart(table):
    frame = Frame(table)
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}">',
             f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>', *axes(frame)]
    for place, (name, points) in enumerate(table.items()):
        parts += curve(frame, name, points) + key(LEFT + 300 * place, name, points)
    return "\n".join(parts + ["</svg>\n"])


def main():
    path, out = sys.argv[1:]
    table = read(path)
    with tempfile.NamedTemporaryFile("w", suffix=".svg") as drawing:
        drawing.write(chart(table))
        drawing.flush()
        subprocess.run(["rsvg-convert", "--zoom", "2", "--output", out, drawing.name], check=True)
    for name, points in table.items():
        values = [value for _, value in points]
        grew = slope(lives(name, points))
        told = "too short a time for a line" if grew is None else f"{grew:+.3f} MB a day"
        print(f"{NAMES[name]}: {len(values)} hours, {min(values):.1f} to {max(values):.1f} MB, {told}")


if __name__ == "__main__":
    main()
