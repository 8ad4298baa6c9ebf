"""What the package script does where it can install nothing: a clear list, and a status that stops the build."""

import os
import shutil
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
# What the script itself calls, apart from the package tools.
TOOLS = ["awk", "bash", "dirname", "sort", "comm", "env", "mktemp", "rm", "sed", "id", "cat"]


class PackagesTest(unittest.TestCase):
    def setUp(self):
        self._tools = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self._tools)
        for name in TOOLS:
            os.symlink(shutil.which(name), os.path.join(self._tools, name))

    def _script(self, *sections, path):
        return subprocess.run(["bash", os.path.join(ROOT, "scripts", "packages"), *sections], capture_output=True,
                              text=True, check=False, env={"PATH": path, "LC_ALL": "C.UTF-8"})

    def _pretend(self, name, script):
        path = os.path.join(self._tools, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/bash\n" + script + "\n")
        os.chmod(path, 0o755)

    def test_without_apt_what_is_needed_is_listed_and_nothing_goes_on(self):
        done = self._script("build", path=self._tools)

        self.assertNotEqual(done.returncode, 0)
        self.assertIn("no apt", done.stderr)
        self.assertRegex(done.stderr, r"(?m)^ +cmake$")
        self.assertIn("Nothing was built.", done.stderr)

    def test_packages_that_cannot_be_installed_are_listed(self):
        self._pretend("dpkg-query", "exit 0")
        self._pretend("apt-get", "exit 100")
        self._pretend("sudo", 'exec "$@"')
        self._pretend("tail", "exit 0")

        done = self._script("build", path=self._tools)

        self.assertNotEqual(done.returncode, 0)
        self.assertRegex(done.stderr, r"(?m)^ +cmake$")

    def test_nothing_is_installed_when_nothing_is_missing(self):
        self._pretend("dpkg-query", "while read -r name; do echo \"$name installed\"; done < <(awk '!/^(#|\\[)/ && NF "
                      "{ print $1 }' " + os.path.join(ROOT, "packages.txt") + ")")
        self._pretend("apt-get", "exit 100")

        done = self._script("build", "demo", "test", "check", path=self._tools)

        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def test_a_section_that_is_not_there_is_an_error(self):
        done = self._script("bulid", path=self._tools)

        self.assertNotEqual(done.returncode, 0)
        self.assertIn("[bulid]", done.stderr)


if __name__ == "__main__":
    unittest.main()
