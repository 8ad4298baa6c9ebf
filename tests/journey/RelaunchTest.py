"""The program without its task-bar entry: it is asked, ends, and comes back by itself without one."""

import os
import shutil
import signal
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from outside import names  # noqa: E402  (found by the path set above)
from outside.case import DesktopTest  # noqa: E402
from outside.waiting import wait_for  # noqa: E402

PROGRAM = os.path.abspath(sys.argv.pop(1))
SKIPPED = "_NET_WM_STATE_SKIP_TASKBAR"


def read(number, name):
    """Of what is gone there is nothing."""
    try:
        with open(f"/proc/{number}/{name}", "rb") as file:
            return file.read().decode()
    except OSError:
        return ""


def processes(folder, is_sought):
    """The numbers of those that live in this test's folder: another test may start the same file."""
    numbers = (int(number) for number in os.listdir("/proc") if number.isdigit())
    return {number for number in numbers if f"XDG_DATA_HOME={folder}/" in read(number, "environ") and is_sought(number)}


def processes_of(path, folder):
    """Those that run this file."""
    return processes(folder, lambda number: os.path.realpath(f"/proc/{number}/exe") == path)


def shells_of(path, folder):
    """Those that wait before they start this file."""
    def waits(number):
        command = read(number, "cmdline")
        return command.startswith("/bin/sh\0-c\0sleep 3 ; ") and path in command

    return processes(folder, waits)


def windows_of(number):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(number), "--name", f"^{names.MAIN_WINDOW}$"],
                           capture_output=True, text=True, check=False)
    return found.stdout.split()


def is_skipped(window):
    state = subprocess.run(["xprop", "-id", window, "_NET_WM_STATE"], capture_output=True, text=True, check=False)
    return SKIPPED in state.stdout


class RelaunchTest(DesktopTest):
    def start(self, path):
        self.path = os.path.realpath(path)
        self.addCleanup(self.end_all)
        self.program = self.new_program(path)
        self.program.start("first")
        self.first = next(iter(self.processes()))

    def processes(self):
        return processes_of(self.path, self.folder)

    def shells(self):
        return shells_of(self.path, self.folder)

    def end_all(self):
        for number in self.processes() | self.shells():
            os.kill(number, signal.SIGKILL)

    def answer(self, button):
        """To the question that unticking the box brings."""
        hands = self.program.hands
        hands.press(names.MAIN_WINDOW, names.PREFERENCES_KEYS)
        hands.click(names.PREFERENCES_WINDOW, names.TASK_BAR)
        hands.click(names.MUST_RESTART, button)

    def main_window(self, number):
        return wait_for("the main window", lambda: windows_of(number))[0]

    def test_relaunch_now_brings_the_program_back_without_its_entry(self):
        self.start(PROGRAM)
        self.assertFalse(is_skipped(self.main_window(self.first)))

        self.answer(names.RELAUNCH_NOW)
        self.program.expect_end()
        second = wait_for("another process", lambda: self.processes() - {self.first}).pop()
        window = self.main_window(second)
        wait_for("the window to leave the task bar", lambda: is_skipped(window))

        self.program.hands.watch(None)
        self.program.hands.press(names.MAIN_WINDOW, names.PREFERENCES_KEYS)
        self.program.hands.click(names.PREFERENCES_WINDOW, names.TASK_BAR)
        wait_for("the window to stand in the task bar again", lambda: not is_skipped(window))
        self.assertEqual(self.processes(), {second})
        self.program.expect_silence()

    def test_later_leaves_everything_as_it_is(self):
        self.start(PROGRAM)

        self.answer(names.LATER)

        self.program.hands.window_goes(names.MUST_RESTART)
        self.assertEqual(self.shells(), set())
        self.assertEqual(self.processes(), {self.first})
        self.assertFalse(is_skipped(self.main_window(self.first)))
        self.program.hands.click(names.PREFERENCES_WINDOW, names.DONE)
        self.program.quit()
        self.program.expect_silence()

    def test_a_path_with_an_apostrophe_ends_and_nothing_comes_back(self):
        place = os.path.join(self.folder, "it's here")
        os.mkdir(place)
        self.start(shutil.copy(PROGRAM, place))

        self.answer(names.RELAUNCH_NOW)
        self.program.expect_end()

        # Its shell cannot read the command, and is gone at once.
        wait_for("the shell to go", lambda: not self.shells())
        self.assertEqual(self.processes(), set())
        self.program.expect_silence()


if __name__ == "__main__":
    unittest.main()
