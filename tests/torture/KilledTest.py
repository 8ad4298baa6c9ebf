"""What of a killed take counts as lost elsewhere than at its end."""

import math
import os
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
sys.dont_write_bytecode = True

from torturing.killed import EDGE, Piece, missing_elsewhere  # noqa: E402  (found by the path set above)


class KilledTest(unittest.TestCase):
    def test_nothing_is_missing_of_a_take_that_begins_before_it_was_known_to_run(self):
        self.assertEqual(missing_elsewhere([(9.8, 20)], [Piece(9, 10, 21)]), 0)

    def test_what_is_missing_at_the_beginning_counts(self):
        self.assertAlmostEqual(missing_elsewhere([(11.5, 20)], [Piece(9, 10, 20)]), 1.5)

    def test_what_is_missing_at_the_end_counts_elsewhere(self):
        self.assertEqual(missing_elsewhere([(10, 18)], [Piece(9, 10, 20)]), 0)

    def test_what_is_missing_beside_a_pause_counts(self):
        pieces = [Piece(9, 10, 20), Piece(29, 30, 40)]

        self.assertEqual(missing_elsewhere([(10, 20), (30, 40)], pieces), 0)
        self.assertAlmostEqual(missing_elsewhere([(10, 18), (30, 40)], pieces), 2 - EDGE)
        self.assertAlmostEqual(missing_elsewhere([(10, 20), (33, 40)], pieces), 3 - EDGE)

    def test_nobody_knows_when_a_piece_ran_that_was_not_seen_to(self):
        self.assertEqual(missing_elsewhere([(12, 20)], [Piece(9, math.inf, 20)]), 0)


if __name__ == "__main__":
    unittest.main()
