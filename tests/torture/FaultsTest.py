"""Which faults are tried, and what has to be left of a recording by a program that ended."""

import os
import random
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
sys.dont_write_bytecode = True

from torturing.faults import ERRORS, Counts, all_faults, recorded_before  # noqa: E402  (found by the path set above)
from torturing.judged import UNSAFE  # noqa: E402
from torturing.student import Ended  # noqa: E402
from torturing.works import Work  # noqa: E402


class FaultsTest(unittest.TestCase):
    def test_of_a_recording_that_ran_all_but_the_last_second_has_to_be_there(self):
        self.assertAlmostEqual(recorded_before(Ended("", ["recorded 0.5", "recorded 3.0"])) - UNSAFE, 2)
        self.assertEqual(recorded_before(Ended("", ["recorded 0.5"])), 0)
        self.assertEqual(recorded_before(Ended("", [])), 0)

    def test_of_one_that_was_stopped_all_has_to_be_there(self):
        self.assertEqual(recorded_before(Ended("", ["recorded 3.0", "stopped"])), 3)

    def test_each_place_is_refused_memory_once_or_each_piece(self):
        self.assertEqual(self.numbers(all_memory=False), [1, 3])
        self.assertEqual(self.numbers(all_memory=True), [1, 2, 3])

    @staticmethod
    def numbers(all_memory):
        calls = {Work("a work"): Counts(dict.fromkeys(ERRORS, 0) | {"memory": 3}, [1, 3])}
        return [number for _, _, _, number in all_faults(calls, random.Random(1), False, all_memory)]


if __name__ == "__main__":
    unittest.main()
