"""While the program records, the computer does not sleep, and as soon as it does not, the computer may."""

import os
import signal
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from outside import names  # noqa: E402  (found by the path set above)
from outside.case import SoundTest  # noqa: E402
from outside.waiting import Children  # noqa: E402

PROGRAM = sys.argv.pop(1)


class AwakeTest(SoundTest):
    def setUp(self):
        super().setUp()
        self.children = Children()
        self.addCleanup(self.children.stop)
        self.start_system()

    def start_system(self):
        # The bus lives as long as the shell in it, and that waits for the end of its input.
        shell = self.children.start("dbus-run-session", "--", "sh", "-c", 'echo "$DBUS_SESSION_BUS_ADDRESS"; cat',
                                    stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = shell.stdout.readline().strip()
        self.login = self.children.start(sys.executable, "-B", os.path.join(HERE, "StandInLogin.py"),
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.expect("ready")

    def expect(self, line):
        self.assertEqual(self.login.stdout.readline().strip(), line)

    def test_a_recording_and_its_end(self):
        program = self.new_program(PROGRAM)
        program.start("first")
        hands, window = program.hands, names.NEW_LECTURE_WINDOW
        hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)

        hands.click(window, names.START_RECORDING)
        self.expect("1")
        hands.control(window, names.PAUSE)
        hands.click(window, names.PAUSE)
        hands.click(window, names.RESUME)
        hands.control(window, names.PAUSE)
        hands.click(window, names.STOP)

        # Nothing else was heard of in between: the pause was no end.
        self.expect("0")
        hands.control(window, names.PLAY)
        hands.click(window, names.DONE)
        hands.window_goes(window)

        hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        hands.click(window, names.START_RECORDING)
        self.expect("1")
        program.send(signal.SIGKILL)
        self.expect("0")
        program.expect_silence()


if __name__ == "__main__":
    unittest.main()
