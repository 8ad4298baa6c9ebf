"""A folder includes only what stands below it, and each library has one folder that knows it."""

import os
import re
import unittest

from RuleTest import RuleTest
from tree import COMMENT_OR_TEXT

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
# Its table is none of the program's: it asks what a database of an older kind may have.
STATEMENTS_OF_ITS_OWN = ["src/lectures/LectureRecordsHandler.cpp"]
STATEMENT = re.compile(r"\baudioData\b|\b(INSERT\s+(OR\s+\w+\s+)?INTO|REPLACE\s+INTO|UPDATE\s+\w+\s+SET|DELETE\s+FROM|"
                       r"SELECT\s)", re.IGNORECASE)
LAYOUT_HEADER = re.compile(r"<header[^>]*>\s*([^<]*?)\s*</header>")


def sources(tree):
    return tree.files("src", ".cpp", ".h")


def own(tree, path):
    """What a source or a layout includes of this program, named from the root of the sources, in whichever form."""
    if path.endswith(".ui"):
        return LAYOUT_HEADER.findall(tree.text(path))
    return [name[1:] for name in tree.includes(path)
            if not GENERATED.match(name) and (name.startswith('"') or tree.has("src/" + name[1:]))]


def only_below(tree):
    complaints = []
    for path in sources(tree) + tree.files("src", ".ui"):
        folder = os.path.dirname(path)
        if folder not in BELOW:
            complaints.append(f"{path}: {folder} has no floor in {os.path.basename(__file__)}")
            continue
        floor = folder.removeprefix("src/")
        complaints += [f"{path} includes {name}, which does not stand below {floor}" for name in own(tree, path)
                       if os.path.dirname(name) not in [floor, *BELOW[folder]]]
    return complaints


def named_from_the_root(tree):
    strange = [f"{path} includes {name}, which is no path below src/"
               for path in sources(tree) + tree.files("src", ".ui") for name in own(tree, path)
               if not tree.has("src/" + name)]
    return strange + [f"{path} includes {name[1:]}, which is this program's own, in angle brackets"
                      for path in sources(tree) for name in tree.includes(path)
                      if name.startswith("<") and tree.has("src/" + name[1:])]


def circles(tree):
    """A class' header, sources and layout are one; what it needs must not need it in turn."""
    needs = {}
    for path in sources(tree) + tree.files("src", ".ui"):
        node = needs.setdefault(of_class(tree, path), set())
        node |= {of_class(tree, "src/" + name) for name in own(tree, path) if tree.has("src/" + name)}
    complaints, done = [], set()

    def follow(node, way):
        if node in way:
            complaints.append("a circle: " + " - ".join([*way[way.index(node):], node]))
        elif node not in done:
            for other in sorted(needs.get(node, set()) - {node}):
                follow(other, [*way, node])
            done.add(node)

    for node in sorted(needs):
        follow(node, [])
    return complaints


def of_class(tree, path):
    """The path without its ending; of a source without a header of its own, that of the header whose name it begins with."""
    stem = os.path.splitext(path)[0]
    if path.endswith(".cpp") and not tree.has(stem + ".h"):
        headers = [os.path.splitext("src/" + name)[0] for name in own(tree, path)]
        return max((header for header in headers if stem.startswith(header)), key=len, default=stem)
    return stem


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
        return any("sqlite3" in name for name in tree.includes(path)) or \
            any(reaches("src/" + name, seen) for name in own(tree, path))

    return [f"{path} comes to sqlite3.h" for path in sources(tree)
            if not path.startswith("src/store/") and reaches(path, set())]


def store_keeps_its_statements(tree):
    """Nobody outside the store names its table or writes a statement."""
    return [f"{path} has the statement {text[0]}, which belongs to the store"
            for path in sources(tree) if not path.startswith("src/store/") and path not in STATEMENTS_OF_ITS_OWN
            for text in COMMENT_OR_TEXT.finditer(tree.text(path))
            if text[0].startswith('"') and STATEMENT.search(text[0])]


class FloorsTest(RuleTest):
    def test_a_folder_includes_only_what_stands_below_it(self):
        self.assertHolds(only_below)

    def test_an_include_upwards_is_found(self):
        self.assertComplains(only_below, {"src/store/A.cpp": '#include "calendar/B.h"\n'}, "store/A.cpp", "calendar/B.h")

    def test_an_include_sideways_is_found(self):
        self.assertComplains(only_below, {"src/calendar/A.h": '#  include "audio/B.h"\n'}, "audio/B.h")

    def test_angle_brackets_and_layouts_include_too(self):
        header = {"src/app/B.h": ""}
        self.assertComplains(only_below, header | {"src/store/A.cpp": "#include <app/B.h>\n"}, "store/A.cpp", "app/B.h")
        layout = "<customwidget><header>app/B.h</header></customwidget>"
        self.assertComplains(only_below, header | {"src/lectures/A.ui": layout}, "lectures/A.ui", "app/B.h")
        self.assertAccepts(only_below, {"src/lectures/A.ui": "<header>widgets/B.h</header>", "src/app/C.h": "#include <map>\n"})

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
        self.assertComplains(named_from_the_root, {"src/app/A.ui": "<header>B.h</header>"}, "app/A.ui", "B.h")

    def test_an_own_header_in_angle_brackets_is_found(self):
        files = {"src/store/A.cpp": "#include <store/B.h>\n#include <vector>\n", "src/store/B.h": ""}
        self.assertComplains(named_from_the_root, files, "store/B.h", "angle brackets")

    def test_no_classes_need_each_other(self):
        self.assertHolds(circles)

    def test_a_circle_is_found(self):
        files = {"src/store/A.h": "", "src/store/A.cpp": '#include "store/A.h"\n#include "store/B.h"\n',
                 "src/store/B.h": '#include "store/C.h"\n', "src/store/C.h": "",
                 "src/store/C.cpp": '#include "store/C.h"\n#include <store/A.h>\n'}
        self.assertComplains(circles, files, "store/A - src/store/B - src/store/C - src/store/A")

    def test_a_circle_through_a_second_source_of_a_class_is_found(self):
        files = {"src/store/A.h": "", "src/store/AMore.cpp": '#include "store/A.h"\n#include "store/B.h"\n',
                 "src/store/B.h": "", "src/store/B.cpp": '#include "store/B.h"\n#include "store/A.h"\n'}
        self.assertComplains(circles, files, "store/A - src/store/B - src/store/A")

    def test_a_class_may_need_its_own_header_and_two_may_need_a_third(self):
        files = {"src/store/A.h": "", "src/store/A.cpp": '#include "store/A.h"\n#include "store/C.h"\n',
                 "src/store/B.cpp": '#include "store/A.h"\n#include "store/C.h"\n', "src/store/C.h": ""}
        self.assertAccepts(circles, files)

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

    def test_the_store_keeps_its_statements_to_itself(self):
        self.assertHolds(store_keeps_its_statements)

    def test_a_statement_outside_the_store_is_found(self):
        for text in ("select ID from t where ID = ?", "INSERT OR IGNORE INTO t VALUES (1)", "UPDATE t SET a = ?",
                     "DELETE FROM t", "audioData"):
            files = {"src/audio/A.cpp": f'run(QStringLiteral("{text}"));\n'}
            self.assertComplains(store_keeps_its_statements, files, "audio/A.cpp", text)

    def test_words_that_are_no_statement_are_accepted(self):
        lines = '// select it, or delete from audioData\nm_audioData = text("UPDATE_LECTURE") + "updated, deleted";\n'
        self.assertAccepts(store_keeps_its_statements, {"src/audio/A.cpp": lines})
        self.assertAccepts(store_keeps_its_statements, {"src/store/A.cpp": 'run("SELECT 1 FROM audioData");\n'})


if __name__ == "__main__":
    unittest.main()
