"""Extensions of one's own, as their author meets them: made, built for both bodies, run, and refused with words."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CLONE = pathlib.Path(__file__).resolve().parents[2]

# A constructor that uses its own unit's class and selectors, and what a device's compiler settings give.
WHOLE_UNIT = """
#import <Foundation/Foundation.h>
@interface Greeter : NSObject {
    NSString *_name;
}
@property(nonatomic, retain) NSString *name;
@end
@implementation Greeter
@synthesize name = _name;
@end
__attribute__((constructor)) static void start() {
    Greeter *greeter = [Greeter new];
    [greeter performSelector:@selector(setName:) withObject:@"Ada"];
    NSDictionary *facts = @{@"name" : greeter.name, @"list" : @[ @1, @YES, @2.5 ]};
    NSLog(@"<Whole> %@ %@ %@", [facts objectForKey:@"name"], [[facts objectForKey:@"list"] objectAtIndex:1], greeter);
    [greeter release];
}
"""


def sim(*arguments, folder):
    return subprocess.run([SIMULATOR, *arguments], cwd=folder, capture_output=True, text=True, check=False)


class Extensions(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="extensions-"))
        self.addCleanup(shutil.rmtree, self.folder)

    def does(self, *arguments):
        done = sim(*arguments, folder=self.folder)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout

    def refused(self, *arguments):
        done = sim(*arguments, folder=self.folder)
        self.assertEqual(done.returncode, 2, done.stdout + done.stderr)
        return done.stderr

    def holds_both_slices(self, package):
        files = subprocess.run(["dpkg-deb", "--fsys-tarfile", package], capture_output=True, check=True).stdout
        library = subprocess.run(["tar", "-xO", "--wildcards", "*.dylib"], input=files, capture_output=True, check=True).stdout
        (self.folder / "library").write_bytes(library)
        slices = subprocess.run(["llvm-lipo-14", "-archs", self.folder / "library"], capture_output=True, text=True, check=True)
        self.assertEqual(sorted(slices.stdout.split()), ["arm64", "armv7"])

    def test_the_template_is_made_built_and_run(self):
        self.assertIn("pendix-sim build Hello", self.does("new", "Hello"))
        package = self.does("build", "Hello", "--phone").split()[-1]
        self.assertIn("1 passed, 0 failed", self.does("test", "Hello/Tests"))
        self.holds_both_slices(package)
        self.assertIn("there is already a Hello", self.refused("new", "Hello"))
        # Its test sees what it does.
        source = self.folder / "Hello/Hello.mm"
        source.write_text(source.read_text().replace("Opening", "Leaving"))
        self.does("build", "Hello", "--phone")
        self.assertEqual(sim("run", "Hello/Tests/opens.lua", "--out", "pictures", folder=self.folder).returncode, 1)

    def test_the_example_is_built_and_run(self):
        shutil.copytree(CLONE / "examples/Focus", self.folder / "Focus", ignore=shutil.ignore_patterns("build"))
        self.holds_both_slices(self.does("build", "Focus", "--phone").split()[-1])
        self.assertIn("2 passed, 0 failed", self.does("test", "Focus/Tests", "--jobs", "2"))

    def test_a_constructor_finds_its_own_unit_and_the_log_has_no_addresses(self):
        self.does("new", "Whole")
        (self.folder / "Whole/Whole.mm").write_text(WHOLE_UNIT)
        self.does("build", "Whole", "--phone")
        (self.folder / "log.lua").write_text('expect_eq(boot { extension = false }:log(), { "<Whole> Ada 1 <Greeter>" })')
        self.does("run", "log.lua", "--extension", "Whole", "--out", "pictures")

    def test_mistakes_are_told_with_what_to_do(self):
        self.does("new", "Wrong")
        folder = self.folder / "Wrong"
        (self.folder / "boot.lua").write_text("boot { extensions = { args[1] } }")
        for told, path in {"there is no": "nowhere", "pendix-sim build": "Wrong", "there is no library": "Wrong/Tests"}.items():
            self.assertIn(told, self.refused("run", "boot.lua", "--out", "pictures", "--", path))
        self.assertIn("there is no", self.refused("build", "nowhere"))
        self.assertIn("one word", self.refused("new", "two words"))
        for file, text, told in (
                ("Wrong.mm", WHOLE_UNIT.replace("@synthesize name = _name;", ""), "write @synthesize name"),
                ("Wrong.mm", "id first(NSArray *list) { return list[0]; }", "write [list objectAtIndex:0]"),
                ("Wrong.mm", "#import <UIKit/UIPrinter.h>", "declare yourself"),
                ("extension.json", "{", "extension.json: "),
                ("extension.json", '{"name": "Wrong"}', "'identifier' must be a text"),
        ):
            before = (folder / file).read_text()
            (folder / file).write_text(text)
            self.assertIn(told, self.refused("build", "Wrong"), text)
            (folder / file).write_text(before)
        (folder / "Wrong.plist").unlink()
        self.assertIn("which processes load the extension", self.refused("build", "Wrong"))
        self.assertFalse(os.path.exists(folder / "build/simulated"))


if __name__ == "__main__":
    SIMULATOR = sys.argv.pop(1)
    unittest.main()
