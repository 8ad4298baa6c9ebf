"""docs/behaviours.md and the tests tell of each other: what a row names is there, and only once."""

import collections
import os
import re
import unittest

from RuleTest import RuleTest

DOCUMENT = "docs/behaviours.md"
HEADER = "| operation | wanted | test |"
CLASS = re.compile(r"\bclass\s+(\w+)\b[^;{}():]*:\s*public\s+(?:\w+::)*(\w+)[^;{]*\{")
FUNCTION = re.compile(r"\bvoid\s+(\w+)\s*\(\s*\)")
SLOTS = re.compile(r"\bprivate\s+(?:Q_SLOTS|slots)\s*:(.*?)(?=\b(?:private|protected|public)\b[^;(){}]*:|\Z)", re.DOTALL)
NAMED = re.compile(r"`(\w+::\w+|\w+Test\.test_\w+)`")


def body(code, start):
    """What stands between the brace that opens before `start` and the one that closes it."""
    depth = 1
    for place in range(start, len(code)):
        depth += {"{": 1, "}": -1}.get(code[place], 0)
        if depth == 0:
            return code[start:place]
    return code[start:]


def flat(code):
    """The code without the bodies of its functions."""
    while (less := re.sub(r"\{[^{}]*\}", ";", code)) != code:
        code = less
    return code


def tests(tree):
    """[(class, [function, ...], path), ...] of what derives from TestCase, straight or through a fixture."""
    classes = [(match[1], match[2], body(code, match.end()), path)
               for path in tree.files("tests", ".cpp", ".h") for code in [tree.code(path)]
               for match in CLASS.finditer(code)]
    bases = {"TestCase"}
    while more := {name for name, base, _, _ in classes if base in bases} - bases:
        bases |= more
    return [(name, [function for slots in SLOTS.findall(flat(text)) for function in FUNCTION.findall(slots)
                    if not function.endswith("_data")], path)
            for name, base, text, path in classes if base in bases]


def python_tests(tree):
    """The names of those that drive the built program from outside."""
    return {f"{os.path.basename(path).removesuffix('.py')}.{function}" for path in tree.files("tests", ".py")
            for function in re.findall(r"^    def (test_\w+)\(", tree.text(path), re.MULTILINE)}


def rows(tree):
    lines = tree.text(DOCUMENT).splitlines()
    return [[cell.strip() for cell in re.split(r"(?<!\\)\|", line.strip().strip("|"))] for line in lines
            if line.startswith("|") and line.strip() != HEADER and not re.fullmatch(r"[|\s-]+", line)]


def rows_are_whole(tree):
    return [f"{DOCUMENT}: a row wants an operation, what is wanted, and a test: {' | '.join(row)}"
            for row in rows(tree) if len(row) != 3 or not all(row) or not NAMED.search(row[2])]


def named_tests_exist(tree):
    there = {f"{name}::{function}" for name, functions, _ in tests(tree) for function in functions} | python_tests(tree)
    return [f"{DOCUMENT} names {test}, which is no test"
            for row in rows(tree) for test in NAMED.findall(row[-1]) if test not in there]


def names_are_given_once(tree):
    classes = collections.defaultdict(list)
    complaints = []
    for name, functions, path in tests(tree):
        classes[name].append(path)
        complaints += [f"{path}: {name}::{function} is there {count} times"
                       for function, count in collections.Counter(functions).items() if count > 1]
        if name.endswith("Test") and not functions:
            complaints.append(f"{path}: {name} has no test")
    return complaints + [f"the test class {name} is in {' and '.join(paths)}"
                         for name, paths in classes.items() if len(paths) > 1]


TEST = "class ATest final : public tarvelo::tests::TestCase\n{{\n    Q_OBJECT\nprivate Q_SLOTS:\n{}\nprivate:\n    void helps();\n}};\n"


def document(row):
    return f"{HEADER}\n|---|---|---|\n{row}\n"


class BehavioursTest(RuleTest):
    def test_every_row_says_what_is_wanted_and_which_test_holds_it(self):
        self.assertHolds(rows_are_whole)

    def test_a_row_without_a_test_is_found(self):
        self.assertComplains(rows_are_whole, {DOCUMENT: document("| `a` | b | later |")}, "later")
        self.assertComplains(rows_are_whole, {DOCUMENT: document("| `a` | | `ATest::b` |")}, "ATest::b")

    def test_every_test_that_a_row_names_exists(self):
        self.assertHolds(named_tests_exist)

    def test_a_name_of_no_test_is_found(self):
        files = {DOCUMENT: document("| `a` | b | `ATest::isHere`, `ATest::isGone` |"),
                 "tests/ATest.cpp": TEST.format("    void isHere() { if (true) { } }\n    // void isGone();")}
        self.assertComplains(named_tests_exist, files, "ATest::isGone")

    def test_a_test_in_python_is_named_with_a_dot(self):
        files = {DOCUMENT: document("| `a` | b | `ATest.test_c` |"), "tests/ATest.py": "class ATest:\n    def test_c(self):\n"}
        self.assertAccepts(rows_are_whole, files)
        self.assertAccepts(named_tests_exist, files)
        self.assertComplains(named_tests_exist, files | {"tests/ATest.py": "    def test_d(self):\n"}, "ATest.test_c")

    def test_a_test_class_may_derive_from_a_fixture(self):
        files = {DOCUMENT: document("| `a` | b | `ATest::c` |"),
                 "tests/AFixture.h": "class AFixture : public TestCase\n{\n};\n",
                 "tests/ATest.cpp": TEST.format("    void c();").replace("TestCase", "AFixture")}
        self.assertAccepts(named_tests_exist, files)
        self.assertAccepts(names_are_given_once, files)

    def test_a_helper_is_no_test(self):
        files = {DOCUMENT: document("| `a` | b | `ATest::helps` |"), "tests/ATest.cpp": TEST.format("    void b();")}
        self.assertComplains(named_tests_exist, files, "ATest::helps")

    def test_test_names_are_given_once(self):
        self.assertHolds(names_are_given_once)

    def test_a_class_in_two_files_is_found(self):
        files = {path: TEST.format("    void b();") for path in ("tests/x/ATest.cpp", "tests/y/ATest.cpp")}
        self.assertComplains(names_are_given_once, files, "x/ATest.cpp", "y/ATest.cpp")

    def test_a_class_without_a_test_is_found(self):
        self.assertComplains(names_are_given_once, {"tests/ATest.cpp": TEST.format("    void b_data();")}, "no test")


if __name__ == "__main__":
    unittest.main()
