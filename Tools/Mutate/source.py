"""A source as text whose offsets are the compiler's: bytes, each read as one character."""

import pathlib
import re

COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|@?"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'', re.DOTALL)


def without_comments(text):
    return COMMENT_OR_TEXT.sub(lambda found: " " if found[0].startswith("/") else found[0], text)


def on_one_line(text):
    """The same code in one line and without comments, for use elsewhere in the file and for being shown."""
    return re.sub(r"\s+", " ", without_comments(text)).strip()


class Source:
    def __init__(self, root, name):
        self.name = name  # from the root
        self.text = (pathlib.Path(root) / name).read_text(encoding="latin-1")

    def line_of(self, offset):
        return self.text.count("\n", 0, offset) + 1

    def line(self, number):
        return self.text.split("\n")[number - 1].encode("latin-1").decode("utf-8", "replace")

    def code(self, start, end):
        return on_one_line(self.text[start:end])

    def after(self, offset, wanted):
        """The offset behind that character when nothing but white space and comments lies before it; else None."""
        rest = self.text[offset:]
        found = re.match(r"(?:\s|//[^\n]*|/\*.*?\*/)*" + re.escape(wanted), rest, re.DOTALL)
        return offset + found.end() if found else None
