"""A program that is killed while a lecture is recorded: the next start offers the lecture."""

import datetime
import fcntl
import os
import signal
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from outside import names, proof  # noqa: E402  (found by the path set above)
from outside.case import SentenceTest  # noqa: E402

PROGRAM = sys.argv.pop(1)
SUBJECT = "Wave Optics"
NOTES = "Huygens and his wavelets."


class LeftLectureTest(SentenceTest):
    def setUp(self):
        super().setUp()
        self.program = self.new_program(PROGRAM)
        self.hands = self.program.hands
        self.temporary = os.path.join(self.desktop.data, "Tarvelo", "temp")

    def files(self):
        return sorted(name for name in os.listdir(self.temporary) if not name.startswith("."))

    def record(self, which):
        self.program.start(which)
        self.record_now(SUBJECT)

    def record_now(self, subject):
        self.hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        self.hands.write(names.NEW_LECTURE_WINDOW, names.SUBJECT, subject)
        self.hands.write(names.NEW_LECTURE_WINDOW, names.NOTES, NOTES)
        self.hands.click(names.NEW_LECTURE_WINDOW, names.START_RECORDING)
        self.hands.control(names.NEW_LECTURE_WINDOW, names.PAUSE)
        self.speak()
        # What follows may be lost, the sentence not.
        self.speak()

    def kill(self):
        self.program.send(signal.SIGKILL)
        self.program.expect_end(-signal.SIGKILL)

    def expect_sentence_in(self, subject, others=0):
        row = proof.lecture(self.desktop.data, subject, NOTES, datetime.date.today().isoformat(), others)
        self.expect_heard(row["audioFileFullPath"])

    def test_a_killed_lecture_is_kept(self):
        self.record("first")
        self.kill()

        self.program.start("second")
        self.hands.control(names.LEFT_LECTURE, names.LISTEN)
        self.hands.click(names.LEFT_LECTURE, names.KEEP)
        self.hands.window_goes(names.LEFT_LECTURE)

        self.hands.row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)
        self.expect_sentence_in(SUBJECT)
        self.assertEqual([], self.files())
        self.program.quit()
        self.program.expect_silence()

    def test_discarded_it_is_gone(self):
        self.record("first")
        self.kill()

        self.program.start("second")
        self.hands.click(names.LEFT_LECTURE, names.DISCARD)
        self.hands.window_goes(names.LEFT_LECTURE)

        self.assertEqual([], self.files())
        self.program.quit()

    def test_a_request_to_end_leaves_it_to_the_next_start(self):
        self.record("first")
        self.program.send(signal.SIGTERM)
        self.program.expect_end()

        self.program.start("second")
        self.hands.press(names.LEFT_LECTURE, "Escape")
        self.hands.window_goes(names.LEFT_LECTURE)
        self.program.quit()
        self.program.start("third")

        self.hands.window(names.LEFT_LECTURE)

    def test_a_closed_lecture_stays_and_is_not_offered(self):
        self.record("first")
        self.hands.click(names.NEW_LECTURE_WINDOW, names.STOP)
        self.hands.control(names.NEW_LECTURE_WINDOW, names.PLAY)
        self.hands.click(names.NEW_LECTURE_WINDOW, names.CLOSE)
        self.hands.window_goes(names.NEW_LECTURE_WINDOW)
        self.program.quit()

        self.program.start("second")

        # With a sheet before it the main window would take no click.
        self.hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        self.hands.window(names.NEW_LECTURE_WINDOW)
        self.assertIn("tempAudioFile.m4a", self.files())

    def test_a_second_session_records_in_a_folder_of_its_own(self):
        os.makedirs(self.temporary, mode=0o700)
        owner = open(os.path.join(self.temporary, ".owner"), "w", encoding="utf-8")
        self.addCleanup(owner.close)
        fcntl.flock(owner, fcntl.LOCK_EX)
        take = os.path.join(self.temporary, "tempAudioFile.m4a")
        with open(take, "wb") as file:
            file.write(b"alive")
        self.record("second")
        self.kill()
        with open(take, "rb") as file:
            self.assertEqual(b"alive", file.read())

        os.remove(take)
        owner.close()
        self.program.start("next")
        self.hands.click(names.LEFT_LECTURE, names.KEEP)
        self.hands.row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)

        self.expect_sentence_in(SUBJECT)
        self.assertEqual([], self.files())
        self.program.quit()
        self.program.expect_silence()

    def test_what_is_recorded_before_an_answer_is_another_lecture(self):
        self.record("first")
        self.kill()
        self.program.start("second")
        self.hands.press(names.LEFT_LECTURE, "Escape")
        self.hands.window_goes(names.LEFT_LECTURE)

        self.record_now("Kepler")
        self.hands.click(names.NEW_LECTURE_WINDOW, names.STOP)
        self.hands.control(names.NEW_LECTURE_WINDOW, names.PLAY)
        self.hands.click(names.NEW_LECTURE_WINDOW, names.DONE)
        self.hands.row(names.MAIN_WINDOW, names.LECTURES, "Kepler")
        self.expect_sentence_in("Kepler")
        self.program.quit()
        self.program.start("third")
        self.hands.click(names.LEFT_LECTURE, names.KEEP)
        self.hands.row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)

        self.expect_sentence_in(SUBJECT, others=1)
        self.assertEqual([], self.files())


if __name__ == "__main__":
    unittest.main()
