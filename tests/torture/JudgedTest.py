"""What counts as a loss after a fault."""

import os
import sqlite3
import sys
import tempfile
import unittest
import wave

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
sys.dont_write_bytecode = True

from outside.waiting import Failed  # noqa: E402  (found by the path set above)
from torturing.judged import Judgement  # noqa: E402
from torturing.works import Work  # noqa: E402

TABLE = "CREATE TABLE IF NOT EXISTS audioData (subject, notes, recordingDate, audioFileFullPath, recordDuration)"
RATE = 44100


class JudgedTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = folder.name
        for name in ("Audio", "Backups", "temp"):
            os.mkdir(os.path.join(self.home, name))
        self.optics = self.add("Optics", 1)

    def test_what_is_as_it_was_is_no_loss(self):
        judgement = Judgement(Work("a work"), self.home)

        judgement.expect_nothing_lost(0)
        judgement.expect_all_there(0, [])

    def test_a_row_that_is_only_in_a_copy_has_to_come_back(self):
        judgement = Judgement(Work("a work"), self.home)
        self.execute("INSERT INTO audioData VALUES (?,?,?,?,?)", self.row("Optics", self.optics), file="Backups/TarveloInfo.db")
        self.execute("DELETE FROM audioData")

        judgement.expect_nothing_lost(0)
        self.expect_failure("gone", lambda: judgement.expect_all_there(0, []))

    def test_a_row_that_is_gone_or_changed_is_lost(self):
        judgement = Judgement(Work("a work"), self.home)

        self.execute("UPDATE audioData SET notes = ''")
        self.expect_failure("changed", lambda: judgement.expect_nothing_lost(0))
        self.execute("DELETE FROM audioData")
        self.expect_failure("gone", lambda: judgement.expect_nothing_lost(0))

    def test_a_recording_that_is_changed_is_lost(self):
        judgement = Judgement(Work("a work"), self.home)

        with open(self.optics, "ab") as file:
            file.write(b"more")

        self.expect_failure("gone or changed", lambda: judgement.expect_nothing_lost(0))

    def test_nothing_may_be_there_twice(self):
        judgement = Judgement(Work("a work"), self.home)

        self.execute("INSERT INTO audioData SELECT * FROM audioData")

        self.expect_failure("2 times", lambda: judgement.expect_all_there(0, []))

    def test_a_new_lecture_is_there_with_its_notes_and_as_long_as_it_was(self):
        judgement = Judgement(Work("a work", new=frozenset({"Kepler"})), self.home)

        self.expect_failure("0.00 s of 2.00 s", lambda: judgement.expect_nothing_lost(2))
        self.add("Kepler", 2)
        judgement.expect_nothing_lost(2)
        judgement.expect_all_there(2, [])
        self.expect_failure("2.00 s of 3.00 s", lambda: judgement.expect_all_there(3, []))
        self.execute("UPDATE audioData SET notes = '' WHERE subject = 'Kepler'")
        self.expect_failure("notes", lambda: judgement.expect_all_there(2, []))

    def test_of_a_stopped_take_only_the_last_two_frames_may_be_missing(self):
        judgement = Judgement(Work("a work", new=frozenset({"Kepler"})), self.home)

        self.add("Kepler", 2)

        judgement.expect_nothing_lost(2.04)
        self.expect_failure("2.00 s of 2.10 s", lambda: judgement.expect_nothing_lost(2.1))
        self.expect_failure("2.00 s of 2.10 s", lambda: judgement.expect_all_there(2.1, []))

    def test_on_a_full_disk_a_row_need_not_wait_on_it(self):
        judgement = Judgement(Work("a work", new=frozenset({"Kepler"})), self.home)

        judgement.expect_sound_kept(0)
        self.expect_failure("no row", lambda: judgement.expect_nothing_lost(0))
        self.expect_failure("0.00 s of 2.00 s", lambda: judgement.expect_sound_kept(2))

    def test_a_new_lecture_without_a_row_waits_for_one(self):
        judgement = Judgement(Work("a work", new=frozenset({"Kepler"})), self.home)

        self.expect_failure("no row", lambda: judgement.expect_nothing_lost(0))
        with open(os.path.join(self.home, "temp", "lecture.journal"), "w", encoding="utf-8") as file:
            file.write("Kepler")

        judgement.expect_nothing_lost(0)
        self.expect_failure("not stored", lambda: judgement.expect_all_there(0, []))

    def test_in_the_end_nothing_waits_and_every_recording_has_a_lecture(self):
        judgement = Judgement(Work("a work"), self.home)

        self.expect_failure("still", lambda: judgement.expect_all_there(0, ["owed 1"]))
        self.record(os.path.join(self.home, "temp", "take.aac"), 1)
        self.expect_failure("no lecture", lambda: judgement.expect_all_there(0, []))

    def test_a_change_is_made_or_not_but_not_beside_what_it_changed(self):
        judgement = Judgement(Work("a work", changed=("Optics", "Light")), self.home)

        judgement.expect_all_there(0, [])
        self.execute("INSERT INTO audioData VALUES (?,?,?,?,?)", ("Light", *self.row("Optics", self.optics)[1:]))
        self.expect_failure("before and after", lambda: judgement.expect_all_there(0, []))
        self.execute("DELETE FROM audioData WHERE subject = 'Optics'")
        judgement.expect_all_there(0, [])

    def expect_failure(self, words, act):
        with self.assertRaisesRegex(Failed, words):
            act()

    def add(self, subject, seconds):
        path = os.path.join(self.home, "Audio", f"{subject}.aac")
        self.record(path, seconds)
        self.execute("INSERT INTO audioData VALUES (?,?,?,?,?)", self.row(subject, path))
        return path

    @staticmethod
    def row(subject, path):
        return subject, f"{subject} notes", "2024-03-05", path, "00:00:01"

    @staticmethod
    def record(path, seconds):
        with wave.open(path, "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes(bytes(2 * RATE * seconds))

    def execute(self, statement, values=(), file="TarveloInfo.db"):
        database = sqlite3.connect(os.path.join(self.home, file))
        with database:
            database.execute(TABLE)
            database.execute(statement, values)
        database.close()


if __name__ == "__main__":
    unittest.main()
