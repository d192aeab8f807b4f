"""Where the project's files and the staged tree are, and what the product's sources name."""

import os
import re
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
STAGE = Path(os.environ.get("STAGE", PROJECT / "build/dev/stage"))

_STRING = r'@?"((?:[^"\\\n]|\\.)*)"'


def product_sources():
    """The text of every source of the product: {path from the project's root: text}."""
    found = {}
    for folder in ("Tweak", "PendixSettings"):
        for path in sorted((PROJECT / folder).rglob("*")):
            if path.suffix in (".mm", ".m", ".cpp", ".h", ".hpp"):
                found[str(path.relative_to(PROJECT))] = path.read_text("utf-8")
    return found


def text_keys(source):
    """The keys of texts that a source looks up: what it hands to Translator or shownText, and every footer's key."""
    keys = set(re.findall(r'"(desc_\w+)"', source))
    for arguments in re.findall(r"\b(?:Translator|shownText)\(([^)]*)\)", source):
        keys.update(re.findall(_STRING, arguments))
    return keys


def picture_names(source):
    """The picture files that a source names, as written there: whole paths or plain names."""
    return {text for text in re.findall(_STRING, source) if text.endswith(".png") and "%" not in text}
