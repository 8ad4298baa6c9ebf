"""What the Debian package says of the program agrees with what the build says."""

import os
import re
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
# Wanted by ./run on a machine that may have nothing, and not by a build.
NOT_TO_BUILD = {"fonts-dejavu-core", "g++", "qt6-qpa-plugins", "qt6-wayland", "xdg-utils"}
# Wanted by Debian's tools alone.
NOT_TO_RUN = {"debhelper-compat"}


def text(*path):
    with open(os.path.join(ROOT, *path), encoding="utf-8") as file:
        return file.read()


def packages(section):
    inside = text("packages.txt").split(f"[{section}]\n")[1].split("\n[")[0]
    return {line.split("#")[0].strip() for line in inside.splitlines()} - {""}


class DebianTest(unittest.TestCase):
    def test_the_package_has_the_version_of_the_program(self):
        package = re.match(r"tarvelo \((.+)-\d+\) ", text("debian", "changelog"))[1]

        self.assertEqual(re.search(r"project\(Tarvelo VERSION (\S+)", text("CMakeLists.txt"))[1], package)

    def test_the_package_is_built_with_what_the_scripts_install(self):
        field = re.search(r"^Build-Depends:\n((?: .*\n)+)", text("debian", "control"), re.MULTILINE)[1]
        names = set(re.findall(r"^ ([\w.+-]+)", field, re.MULTILINE))

        self.assertEqual(packages("build") - NOT_TO_BUILD, names - NOT_TO_RUN)

    def test_what_the_program_asks_of_a_desktop_is_recommended(self):
        field = re.search(r"^Recommends:\n((?: .*\n)+)", text("debian", "control"), re.MULTILINE)[1]

        for name in ("xdg-utils", "qt6-wayland"):
            self.assertIn(name, field)


if __name__ == "__main__":
    unittest.main()
