"""Tests with a desktop of their own, on which they start the program."""

import os
import tempfile
import unittest

from . import sound
from .desktop import Desktop

SENTENCE = "Whatever happens now, this sentence must not be lost."
# What the coder costs is below this.
HEARD = 0.98


class DesktopTest(unittest.TestCase):
    """Each test has a desktop, in a folder that goes with it."""

    def setUp(self):
        self.folder = os.path.realpath(self.enterContext(tempfile.TemporaryDirectory()))
        self.desktop = self.enterContext(Desktop(self.folder))

    def new_program(self, path):
        """Not started yet. It is stopped after the test."""
        from .program import Program  # finds its bus in the environment, which stands only now

        program = Program(path, self.desktop)
        self.addCleanup(program.stop)
        return program


class SoundTest(DesktopTest):
    """There is a sound server too."""

    def setUp(self):
        super().setUp()
        self.server = self.enterContext(sound.SoundServer())


class SentenceTest(SoundTest):
    """A sentence is spoken, and looked for in what the program recorded."""

    def setUp(self):
        super().setUp()
        self.sentence = os.path.join(self.folder, "sentence.wav")
        sound.write_speech(SENTENCE, self.sentence)

    def speak(self):
        self.server.speak(self.sentence)

    def expect_heard(self, path, lost=0):
        """So many samples may be missing at its end."""
        spoken = sound.samples(self.sentence)
        agreement, _ = sound.correlation(sound.samples(path), spoken[: len(spoken) - lost])
        self.assertGreater(agreement, HEARD)
