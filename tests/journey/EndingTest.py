"""Whatever ends the program while a lecture is recorded, the sound of the lecture is on the disk."""

import os
import signal
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from outside import names, sound  # noqa: E402  (found by the path set above)
from outside.case import SentenceTest  # noqa: E402
from outside.waiting import wait_for  # noqa: E402

PROGRAM = sys.argv.pop(1)
SESSION_MANAGER = sys.argv.pop(1)
# In samples: what the sound server had heard and not yet handed on when the program ended.
ON_ITS_WAY = sound.RATE // 5
MOVIE_BOXES = ("ftyp", "moov", "mdat", "free")


class SessionManager:
    """Known to every program that starts in this environment."""

    def __init__(self):
        self._process = subprocess.Popen([SESSION_MANAGER], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        os.environ["SESSION_MANAGER"] = self._process.stdout.readline().strip()

    def expect(self, word):
        heard = self._process.stdout.readline().strip()
        assert heard == word, f"the session manager heard {heard!r} instead of {word!r}"

    def tell(self, word):
        self._process.stdin.write(word + "\n")
        self._process.stdin.flush()

    def stop(self):
        self._process.stdin.close()
        self._process.wait(10)
        self._process.stdout.close()


def boxes(path):
    """The names of the boxes that an MPEG-4 file consists of, in their order."""
    found = []
    with open(path, "rb") as file:
        while header := file.read(8):
            size = int.from_bytes(header[:4], "big")
            found.append(header[4:].decode("latin-1"))
            file.seek(size - 8, os.SEEK_CUR)
    return found


class EndingTest(SentenceTest):
    def record(self):
        """Starts the program and a recording, in which the sentence is spoken."""
        self.program = self.new_program(PROGRAM)
        self.program.start("first")
        hands = self.program.hands
        hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        hands.click(names.NEW_LECTURE_WINDOW, names.START_RECORDING)
        hands.control(names.NEW_LECTURE_WINDOW, names.PAUSE)
        self.speak()

    def take(self):
        folder = os.path.join(self.desktop.data, "Tarvelo")
        files = [os.path.join(root, name) for root, _, found in os.walk(folder) for name in found]
        takes = [path for path in files if path.endswith(".m4a")]
        self.assertEqual(1, len(takes), files)
        return takes[0]

    def expect_sentence(self):
        self.expect_heard(self.take(), lost=ON_ITS_WAY)

    def expect_closed_file(self):
        self.assertLessEqual(set(boxes(self.take())), set(MOVIE_BOXES))

    def test_a_request_to_end(self):
        """It is followed; the take is closed and stays."""
        self.record()

        self.program.send(signal.SIGTERM)

        self.program.expect_end()
        self.expect_closed_file()
        self.expect_sentence()
        self.program.expect_silence()

    def test_the_end_of_the_session(self):
        """It is put off, and the recording goes on."""
        manager = SessionManager()
        self.addCleanup(manager.stop)
        self.record()
        manager.expect("registered")

        manager.tell("ask")

        manager.expect("cancelled")
        self.program.hands.window(names.RECORDING_ON_PROCESS)
        self.assertTrue(self.program.is_running())
        self.speak()
        self.program.send(signal.SIGTERM)
        self.program.expect_end()
        self.expect_sentence()

    def test_the_death_of_the_session(self):
        """The session ends without having asked: the take is closed and stays."""
        manager = SessionManager()
        self.addCleanup(manager.stop)
        self.record()
        manager.expect("registered")

        manager.tell("die")

        self.program.expect_end()
        self.expect_closed_file()
        self.expect_sentence()
        self.program.expect_silence()

    def test_the_loss_of_the_screen(self):
        """The program cannot go on: the take is closed and stays. The screen's own library says something then."""
        self.record()

        self.desktop.end_screen()

        wait_for("Tarvelo to end", lambda: not self.program.is_running())
        self.expect_closed_file()
        self.expect_sentence()


if __name__ == "__main__":
    unittest.main()
