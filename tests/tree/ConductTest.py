"""Tests wait for states and always run; every source file is built; folders are made in one way."""

import os
import re
import unittest

from RuleTest import RuleTest

SLEEP = re.compile(r"\b(qWait|qSleep|sleep_for|sleep_until|nanosleep|usleep|msleep|sleep)\s*\(")
SKIP = re.compile(r"\b(QSKIP|GTEST_SKIP)\b")
# Also the modes of everything that the process makes, which the programs started from it would take over.
OWN_FOLDERS = re.compile(r"\b(mkpath|mkdir|mkdirat|create_directory|create_directories|umask)\s*\(")
DISABLED = re.compile(r"\b(DISABLED|SKIP_RETURN_CODE|SKIP_REGULAR_EXPRESSION)\b")


def tests_never_sleep(tree):
    return [f"{path} calls {match[1]}: wait for the state instead"
            for path in tree.files("tests", ".cpp", ".h") for match in SLEEP.finditer(tree.code(path))]


def tests_always_run(tree):
    skipped = [f"{path} skips a test" for path in tree.files("tests", ".cpp", ".h") if SKIP.search(tree.code(path))]
    return skipped + [f"{path} switches a test off" for path in tree.files("tests", "CMakeLists.txt")
                      if DISABLED.search(tree.text(path))]


def folders_are_private(tree):
    return [f"{path} calls {match[1]}: folders are made by platform/PrivateFiles"
            for path in tree.files("src", ".cpp", ".h") for match in OWN_FOLDERS.finditer(tree.code(path))
            if path != "src/platform/PrivateFiles.cpp"]


def unrolled(listing):
    """The listing with its loops over names written out."""
    def repeat(loop):
        return "".join(loop[3].replace("${%s}" % loop[1], item) for item in loop[2].split())

    return re.sub(r"\bforeach\((\w+)\s+([^()]*)\)(.*?)\bendforeach\(\)", repeat, listing, flags=re.DOTALL)


def by_function(listing):
    """What the calls of the listing's own functions name, where such a function adds the ending: f(${name}.cpp)."""
    functions = re.findall(r"\bfunction\((\w+)\s+(\w+)[^()]*\)(.*?)\bendfunction\(\)", listing, flags=re.DOTALL)
    return "".join(f" {name}.cpp" for function, parameter, text in functions if "${%s}.cpp" % parameter in text
                   for name in re.findall(rf"\b{function}\(\s*(\w+)", listing) if name != parameter)


def is_listed(tree, path):
    """Whether the list of the file's folder, or of one above it, names the file."""
    folder = os.path.dirname(path)
    while folder:
        listing = os.path.join(folder, "CMakeLists.txt")
        name = re.escape(os.path.relpath(path, folder))
        text = unrolled(tree.text(listing)) if tree.has(listing) else ""
        if re.search(rf"(?<![\w./-]){name}(?![\w.-])", text + by_function(text)):
            return True
        folder = os.path.dirname(folder)
    return False


def sources_are_listed(tree):
    sources = [path for folder in ("src", "tests", "bench") for path in tree.files(folder, ".cpp")]
    # The build looks for signals and slots in the header beside a listed source, and in listed headers.
    sources += [path for folder in ("src", "tests", "bench") for path in tree.files(folder, ".h")
                if re.search(r"\bQ_(OBJECT|GADGET)\b", tree.code(path)) and not tree.has(path[:-1] + "cpp")]
    sources += tree.files("tests", "Test.py")
    return [f"{path} is in no CMakeLists.txt" for path in sources
            if not is_listed(tree, path) and not path.endswith("/RuleTest.py")]


class ConductTest(RuleTest):
    def test_tests_never_sleep(self):
        self.assertHolds(tests_never_sleep)

    def test_a_sleep_is_found(self):
        for line in ("QTest::qWait(50);", "std::this_thread::sleep_for(1s);", "usleep(5);", "QThread::msleep(5);"):
            self.assertComplains(tests_never_sleep, {"tests/ATest.cpp": line}, "ATest.cpp")

    def test_waiting_for_a_state_is_no_sleep(self):
        lines = 'QVERIFY(QTest::qWaitFor(isReady)); // no sleep() here\nrun("sleep (3)");\n'
        self.assertAccepts(tests_never_sleep, {"tests/ATest.cpp": lines})

    def test_tests_always_run(self):
        self.assertHolds(tests_always_run)

    def test_a_skipped_test_is_found(self):
        self.assertComplains(tests_always_run, {"tests/ATest.cpp": 'QSKIP("no");'}, "ATest.cpp")
        listing = "set_tests_properties(ATest PROPERTIES DISABLED TRUE)"
        self.assertComplains(tests_always_run, {"tests/CMakeLists.txt": listing}, "switches")

    def test_folders_are_private(self):
        self.assertHolds(folders_are_private)

    def test_a_folder_made_another_way_is_found(self):
        for line in ("QDir().mkpath(folder);", "std::filesystem::create_directories(folder);", "umask(0);"):
            self.assertComplains(folders_are_private, {"src/store/A.cpp": line}, "store/A.cpp")
        self.assertAccepts(folders_are_private, {"src/platform/PrivateFiles.cpp": "::mkdir(folder, 0700);"})

    def test_every_source_is_listed(self):
        self.assertHolds(sources_are_listed)

    def test_a_source_that_a_loop_names_is_listed(self):
        files = {"tests/CMakeLists.txt": "foreach(name A B)\n  add(${name}Test.cpp)\nendforeach()", "tests/BTest.cpp": ""}
        self.assertAccepts(sources_are_listed, files)
        self.assertComplains(sources_are_listed, files | {"tests/CTest.cpp": ""}, "CTest.cpp")

    def test_a_source_that_a_function_names_is_listed(self):
        function = "function(sound name)\n  add(${name} SOURCES ${name}.cpp)\nendfunction()\nsound(ATest)\nother(BTest)\n"
        files = {"tests/CMakeLists.txt": function, "tests/ATest.cpp": "", "tests/BTest.cpp": ""}
        self.assertComplains(sources_are_listed, files, "BTest.cpp")

    def test_a_forgotten_source_is_found(self):
        files = {"src/store/CMakeLists.txt": "SOURCES LectureA.cpp", "src/store/A.cpp": "", "src/store/LectureA.cpp": ""}
        self.assertComplains(sources_are_listed, files, "store/A.cpp")

    def test_a_header_with_signals_and_no_source_is_found(self):
        files = {"src/store/CMakeLists.txt": "SOURCES A.cpp", "src/store/A.cpp": "", "src/store/A.h": "Q_OBJECT",
                 "src/store/B.h": "Q_OBJECT"}
        self.assertComplains(sources_are_listed, files, "store/B.h")


if __name__ == "__main__":
    unittest.main()
