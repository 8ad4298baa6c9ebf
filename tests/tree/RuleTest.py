"""The base of the tests over the tree: a rule is a function from a tree to its complaints."""

import tempfile
import unittest

from tree import Tree, write


class RuleTest(unittest.TestCase):
    maxDiff = None

    def assertHolds(self, rule):
        self.assertEqual([], rule(Tree()))

    def assertComplains(self, rule, files, *words):
        """The rule makes just one complaint about these files, with all these words in it."""
        complaints = self._complaints(rule, files)
        self.assertEqual(1, len(complaints), complaints)
        for word in words:
            self.assertIn(word, complaints[0])

    def assertAccepts(self, rule, files):
        self.assertEqual([], self._complaints(rule, files))

    @staticmethod
    def _complaints(rule, files):
        with tempfile.TemporaryDirectory() as folder:
            return rule(write(folder, files))
