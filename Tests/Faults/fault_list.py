"""What can be missing: read from the sources and from the staged package, so that a new look-up, hook or file is a new
fault by itself."""
import re
from pathlib import Path

PRODUCT = ("Tweak", "PendixSettings")
# The headers of what the system keeps to itself; there a look-up may come back with nothing.
PRIVATE = ("Activator", "AppList", "BiometricKit", "ColorBadges", "PassKit", "SpringBoard", "StatusBar")
PRIVATE_FILES = ("UIKit/UIApplication.h", "UIKit/UIDevice.h", "UIKit/UIStatusBar.h", "UIKit/UIBackdropView.h")

# The status-bar library makes a class of its own for it, long after the start; `UIStatusBarItemView item` stands for it.
OUT_OF_REACH = {"UIStatusBarItem indicatorName"}

EVERY_SCALE = " in every scale"


def product(source, folders=PRODUCT):
    return "\n".join(path.read_text() for folder in folders for path in sorted((source / folder).rglob("*.mm")))


def looked_up(text):
    return set(re.findall(r'(?:objc_getClass|objc_lookUpClass|objc_getMetaClass)\("(\w+)"\)', text)) | set(
        re.findall(r'NSClassFromString\(@"(\w+)"\)', text))


def hook_rows(source):
    text = (source / "Tweak/Start/HookTable.mm").read_text()
    return re.findall(r'\b(hook|add)\(\s*"(\w+)",\s*"([\w:]+)"', text)


def classes(source):
    """(class, whether Settings is where it matters)"""
    home = looked_up(product(source, ("Tweak",))) | {row[1] for row in hook_rows(source)}
    pane = looked_up(product(source, ("PendixSettings",)))
    return [(name, False) for name in sorted(home - pane)] + [(name, True) for name in sorted(pane)]


def declarations(source):
    """(class, "-" or "+", result, selector, whole text) of every method and getter of the private headers."""
    files = [path for folder in PRIVATE for path in sorted((source / "Platform" / folder).glob("*.h"))]
    files += [source / "Platform" / name for name in PRIVATE_FILES]
    for path in files:
        text = re.sub(r"//[^\n]*", "", path.read_text())
        for owner, body in re.findall(r"@interface (\w+)(.*?)@end", text, re.S):
            for kind, result, rest in re.findall(r"^([-+]) \(([^)]+)\)(.*?);", body, re.S | re.M):
                parts = re.findall(r"(\w+):", re.sub(r"\([^)]*\)", "", rest))
                selector = "".join(part + ":" for part in parts) or rest.split()[0]
                yield owner, kind, result.strip(), selector, rest
            for result, name in re.findall(r"@property[^;]*?\)\s*(\w+ ?\*?)\s*(\w+);", body):
                yield owner, "-", result.strip(), name, ""


def is_used(selector, text):
    first = re.escape(selector.split(":")[0])
    return re.search(rf"\b{first}:" if ":" in selector else rf"(?<=[\s.]){first}\b", text) is not None


def methods(source):
    """Hooked methods, and those that the library asks for before it calls them."""
    found = {f"{owner} {selector}" for kind, owner, selector in hook_rows(source) if kind == "hook"}
    text = product(source)
    asked = set(re.findall(r"respondsToSelector:@selector\(([\w:]+)\)", text))
    # Chosen by the version first.
    by_variable = len(re.findall(r"respondsToSelector:(?!@selector)", text))
    assert by_variable == 1, "another look-up by a variable: name its selectors here"
    asked |= {"bundleIdentifier", "displayIdentifier"}
    for owner, kind, _, selector, _ in declarations(source):
        if kind == "-" and selector in asked:
            found.add(f"{owner} {selector}")
    return sorted(found)


def lookups(source):
    """Methods of the system that the library calls and that give an object."""
    text = product(source)
    found = set()
    for owner, kind, result, selector, rest in declarations(source):
        gives = "*" in result or result in ("id", "instancetype")
        takes_figures = re.search(r"CGFloat|CGRect|CGSize|double", rest)
        if gives and not takes_figures and not selector.startswith("init") and is_used(selector, text):
            found.add(f"{owner} {'+' if kind == '+' else ''}{selector}")
    return sorted(found - OUT_OF_REACH)


def files(stage):
    """Each file, and each picture with all its scales: one scale alone is stood in for by another."""
    single = ["/" + str(path.relative_to(stage)) for path in stage.rglob("*") if path.is_file() or path.is_symlink()]
    pictures = [name + EVERY_SCALE for name in single if name.endswith(".png") and "@" not in name]
    return sorted(single + pictures)


def writes():
    """The error, at which call, the first that fails, how many fail."""
    return ["ENOSPC", "EACCES", "EROFS", "EIO rename", "EIO rename 1 1", "EIO rename 2 1", "ENOSPC open 1 1",
            "ENOSPC open 2 1", "ENOSPC open 3 1", "ENOSPC open 4 2"]
