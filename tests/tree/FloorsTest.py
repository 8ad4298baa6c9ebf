"""A folder includes only what stands below it, and each library has one folder that knows it."""

import os
import re
import unittest

from RuleTest import RuleTest

BELOW = {
    "src/platform": [],
    "src/widgets": ["platform"],
    "src/store": ["platform"],
    "src/audio/engine": ["platform"],
    "src/calendar": ["widgets", "store", "platform"],
    "src/audio": ["audio/engine", "store", "widgets", "platform"],
    "src/lectures": ["calendar", "audio", "store", "widgets", "platform"],
    "src/app": ["lectures", "calendar", "audio", "audio/engine", "store", "widgets", "platform"],
}
OWNERS = [
    (re.compile(r"^.(libav|libsw|libpostproc)\w*/"), "FFmpeg", "src/audio/engine"),
    (re.compile(r"^.pulse/"), "the sound server's client", "src/audio/engine"),
    (re.compile(r"^.rubberband/"), "Rubber Band", "src/audio/engine"),
    (re.compile(r"^.unicode/"), "ICU", "src/platform"),
    (re.compile(r"^.(QtDBus|QDBus)"), "D-Bus", "src/platform"),
    (re.compile(r"^.sqlite3"), "SQLite", "src/store"),
    (re.compile(r"^.xcb/"), "the X11 client", "src/app"),
]
GENERATED = re.compile(r'^"(ui_\w+\.h|\w+\.moc|moc_\w+\.cpp)$')


def sources(tree):
    return tree.files("src", ".cpp", ".h")


def only_below(tree):
    complaints = []
    for path in sources(tree):
        folder = os.path.dirname(path)
        if folder not in BELOW:
            complaints.append(f"{path}: {folder} has no floor in {os.path.basename(__file__)}")
            continue
        own = folder.removeprefix("src/")
        for name in tree.includes(path):
            if not name.startswith('"') or GENERATED.match(name):
                continue
            if os.path.dirname(name[1:]) not in [own, *BELOW[folder]]:
                complaints.append(f"{path} includes {name[1:]}, which does not stand below {own}")
    return complaints


def named_from_the_root(tree):
    return [f"{path} includes {name[1:]}, which is no path below src/"
            for path in sources(tree) for name in tree.includes(path)
            if name.startswith('"') and not GENERATED.match(name) and not tree.has("src/" + name[1:])]


def libraries_have_one_folder(tree):
    return [f"{path} includes {name[1:]}: {library} belongs to {owner}"
            for path in sources(tree) for name in tree.includes(path)
            for pattern, library, owner in OWNERS
            if pattern.match(name) and os.path.dirname(path) != owner]


def store_hides_sqlite(tree):
    """Nobody outside the store comes to sqlite3.h, neither straight nor through a header of the store."""
    def reaches(path, seen):
        if path in seen or not tree.has(path):
            return False
        seen.add(path)
        return any("sqlite3" in name or (name.startswith('"') and reaches("src/" + name[1:], seen))
                   for name in tree.includes(path))

    return [f"{path} comes to sqlite3.h" for path in sources(tree)
            if not path.startswith("src/store/") and reaches(path, set())]


class FloorsTest(RuleTest):
    def test_a_folder_includes_only_what_stands_below_it(self):
        self.assertHolds(only_below)

    def test_an_include_upwards_is_found(self):
        self.assertComplains(only_below, {"src/store/A.cpp": '#include "calendar/B.h"\n'}, "store/A.cpp", "calendar/B.h")

    def test_an_include_sideways_is_found(self):
        self.assertComplains(only_below, {"src/calendar/A.h": '#  include "audio/B.h"\n'}, "audio/B.h")

    def test_the_engine_is_a_floor_of_its_own(self):
        self.assertComplains(only_below, {"src/audio/engine/A.h": '#include "audio/B.h"\n'}, "audio/B.h")
        self.assertComplains(only_below, {"src/lectures/A.h": '#include "audio/engine/B.h"\n'}, "audio/engine/B.h")
        self.assertAccepts(only_below, {"src/audio/A.h": '#include "audio/engine/B.h"\n#include "store/C.h"\n'})

    def test_a_folder_without_a_floor_is_found(self):
        self.assertComplains(only_below, {"src/util/A.h": ""}, "src/util has no floor")

    def test_includes_are_named_from_the_root_of_the_sources(self):
        self.assertHolds(named_from_the_root)

    def test_an_include_by_its_bare_name_is_found(self):
        files = {"src/store/A.cpp": '#include "B.h"\n#include "ui_Window.h"\n', "src/store/B.h": ""}
        self.assertComplains(named_from_the_root, files, "B.h")

    def test_each_library_is_known_to_one_folder(self):
        self.assertHolds(libraries_have_one_folder)

    def test_a_library_in_a_strange_folder_is_found(self):
        for header in ("libavcodec/avcodec.h", "libswresample/swresample.h", "pulse/pulseaudio.h", "unicode/ucal.h",
                       "QDBusConnection", "QtDBus/QDBusMessage", "sqlite3.h", "xcb/xcb.h", "rubberband/RubberBandStretcher.h"):
            files = {"src/audio/A.cpp": f"#include <{header}>\n"}
            self.assertComplains(libraries_have_one_folder, files, header)

    def test_the_store_keeps_sqlite_to_itself(self):
        self.assertHolds(store_hides_sqlite)

    def test_a_header_of_the_store_that_hands_sqlite_on_is_found(self):
        files = {"src/calendar/A.cpp": '#include "store/B.h"\n', "src/store/B.h": '#include "store/C.h"\n',
                 "src/store/C.h": "#include <sqlite3.h>\n"}
        self.assertComplains(store_hides_sqlite, files, "calendar/A.cpp")


if __name__ == "__main__":
    unittest.main()
