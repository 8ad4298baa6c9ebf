"""The journey's proof fails for a recording that is not what was spoken."""

import os
import sqlite3
import subprocess
import sys
import tempfile
import unittest

import numpy

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))

from outside import proof, sound  # noqa: E402  (found by the path set above)
from outside.waiting import Failed  # noqa: E402

SECOND = sound.RATE


def noise(seed, seconds=2.0):
    return numpy.random.default_rng(seed).normal(0, 0.1, int(seconds * SECOND))


def write(path, samples):
    command = ["ffmpeg", "-v", "error", "-y", "-f", "f32le", "-ar", str(SECOND), "-i", "-", path]
    subprocess.run(command, input=samples.astype(numpy.float32).tobytes(), check=True)
    return path


class ProofTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.spoken = [write(self.path("first.wav"), noise(1)), write(self.path("second.wav"), noise(2))]
        self.paused = [write(self.path("paused.wav"), noise(3))]

    def path(self, name):
        return os.path.join(self.folder, name)

    def recording(self, *parts, duration="00:00:05"):
        path = write(self.path("recording.wav"), numpy.concatenate(parts))
        return {"audioFileFullPath": path, "recordDuration": duration}

    def test_what_was_spoken_is_recognised(self):
        row = self.recording(noise(9, 0.7) * 0.01, noise(1), noise(9, 0.5) * 0.01, noise(2))

        for agreement in proof.audio(row, self.spoken, self.paused):
            self.assertGreater(agreement, 0.999)

    def test_five_lost_milliseconds_are_noticed(self):
        hole = numpy.delete(noise(1), slice(SECOND, SECOND + SECOND // 200))

        self.assertRaises(Failed, proof.audio, self.recording(hole, noise(9, 1), noise(2)), self.spoken, self.paused)

    def test_silence_is_noticed(self):
        row = self.recording(numpy.zeros(SECOND * 5))

        self.assertRaises(Failed, proof.audio, row, self.spoken, self.paused)

    def test_sound_from_the_pause_is_noticed(self):
        row = self.recording(noise(1), noise(3), noise(2), duration="00:00:06")

        self.assertRaises(Failed, proof.audio, row, self.spoken, self.paused)

    def test_a_wrong_order_is_noticed(self):
        self.assertRaises(Failed, proof.audio, self.recording(noise(2), noise(1), noise(9, 1)), self.spoken, [])

    def test_a_wrong_length_is_noticed(self):
        row = self.recording(noise(1), noise(2), duration="00:00:09")

        self.assertRaises(Failed, proof.audio, row, self.spoken, self.paused)

    def test_what_was_played_is_recognised(self):
        row = self.recording(noise(1))

        heard = numpy.concatenate([numpy.zeros(SECOND), noise(1), numpy.zeros(SECOND)])
        self.assertGreater(proof.played(row, heard), 0.999)
        self.assertRaises(Failed, proof.played, row, noise(2, 4.0))
        self.assertRaises(Failed, proof.played, row, numpy.zeros(SECOND * 4))
        self.assertRaises(Failed, proof.played, row, heard[:SECOND])

    def test_what_was_played_slowly_is_recognised(self):
        loud = numpy.repeat(numpy.random.default_rng(5).uniform(0.01, 1, 60), SECOND // 10)
        row = self.recording(noise(1, 6.0) * loud)
        slow = noise(3, 12.0) * numpy.repeat(loud, 2)

        length, agreement = proof.played_slowly(row, slow, 0.5)
        self.assertAlmostEqual(2.0, length, places=2)
        self.assertGreater(agreement, 0.98)
        self.assertGreater(proof.played_slowly(row, numpy.insert(slow, SECOND, numpy.zeros(SECOND // 10)), 0.5)[1], 0.9)
        self.assertRaises(Failed, proof.played_slowly, row, slow, 0.45)
        self.assertRaises(Failed, proof.played_slowly, row, slow[::-1], 0.5)

    def test_what_is_left_of_a_deleted_lecture_is_noticed(self):
        os.makedirs(self.path("Tarvelo"))
        row = {"audioFileFullPath": self.path("a.m4a")}
        with sqlite3.connect(self.path("Tarvelo/TarveloInfo.db")) as database:
            database.execute(f"CREATE TABLE audioData ({proof.COLUMNS})")
        proof.deleted(self.folder, row)

        with open(row["audioFileFullPath"], "wb"):
            self.assertRaises(Failed, proof.deleted, self.folder, row)
        os.remove(row["audioFileFullPath"])
        with sqlite3.connect(self.path("Tarvelo/TarveloInfo.db")) as database:
            database.execute("INSERT INTO audioData VALUES ('a', 'b', '2024-03-05', '', '00:00:01')")
        self.assertRaises(Failed, proof.deleted, self.folder, row)

    def test_what_others_can_read_is_noticed(self):
        kept = self.path("Tarvelo")
        os.mkdir(kept, 0o700)
        file = os.path.join(kept, "TarveloInfo.db")
        os.close(os.open(file, os.O_CREAT | os.O_WRONLY, 0o600))
        self.assertEqual(2, proof.private(kept))

        os.chmod(file, 0o640)
        self.assertRaises(Failed, proof.private, kept)
        os.chmod(file, 0o600)
        os.chmod(kept, 0o755)
        self.assertRaises(Failed, proof.private, kept)

    def test_a_row_is_recognised_and_a_wrong_one_is_noticed(self):
        os.makedirs(self.path("Tarvelo"))
        with sqlite3.connect(self.path("Tarvelo/TarveloInfo.db")) as database:
            database.execute(f"CREATE TABLE audioData ({proof.COLUMNS})")
            database.execute("INSERT INTO audioData VALUES ('a', 'b', '2024-03-05', ?, '00:00:01')",
                             [self.path("Tarvelo/Audio//a.m4a")])

        self.assertEqual("b", proof.lecture(self.folder, "a", "b", "2024-03-05")["notes"])
        self.assertRaises(Failed, proof.lecture, self.folder, "a", "b", "2024-03-06")
        self.assertRaises(Failed, proof.lecture, self.folder, "x", "b", "2024-03-05")
        self.assertRaises(Failed, proof.lecture, self.path("elsewhere"), "a", "b", "2024-03-05")


if __name__ == "__main__":
    unittest.main()
