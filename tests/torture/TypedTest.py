"""What of the typing counts as lost after a power cut."""

import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
sys.dont_write_bytecode = True

from outside.waiting import Failed  # noqa: E402  (found by the path set above)
from torturing.typed import Text, Typed, texts_of_journals  # noqa: E402


class TypedTest(unittest.TestCase):
    def setUp(self):
        self.typed = Typed()
        self.typed.saw(100, "Optics", "")
        self.typed.saw(101, "Optics", "Lenses")
        self.typed.saw(103, "Optics", "Lenses bend light")

    def test_nothing_is_expected_before_its_time(self):
        self.assertEqual(self.typed.lost(99, []), 0)
        self.assertEqual(self.typed.lost(104, []), 4)

    def test_what_is_older_than_five_seconds_has_to_be_there(self):
        self.assertEqual(self.typed.lost(107, [Text("Optics", "Lenses")]), 4)
        self.assertEqual(self.typed.lost(107, [Text("Optics", "Lenses bend light of")]), 0)
        self.expect_failure(lambda: self.typed.lost(107, [Text("Optics", "")]))
        self.expect_failure(lambda: self.typed.lost(107, [Text("Waves", "Lenses bend light")]))

    def test_a_lecture_may_have_its_new_subject_early_and_not_its_old_one_late(self):
        self.typed.saw(110, "Light", "Lenses bend light", 3)

        self.typed.lost(111, [Text("Optics", "Lenses bend light")])
        self.typed.lost(111, [Text("Light", "Lenses bend light")])
        self.expect_failure(lambda: self.typed.lost(114, [Text("Optics", "Lenses bend light")]))

    def test_what_a_kill_took_before_it_was_safe_is_not_expected_later(self):
        self.typed.is_killed(107)

        self.typed.lost(200, [Text("Optics", "Lenses")])
        self.expect_failure(lambda: self.typed.lost(200, [Text("Optics", "")]))

    def test_journals_are_read_whose_names_are_not_hidden(self):
        with tempfile.TemporaryDirectory() as home:
            self.write(home, "lecture.journal", '{"subject": "Optics", "notes": "Lenses"}   \n')
            self.write(home, ".lecture.journal.spare", '{"subject": "Waves", "notes": "Water"}')
            self.write(home, "TarveloInfo.db-journal", "\x00\x01")

            self.assertEqual(texts_of_journals(home), [Text("Optics", "Lenses")])

    def expect_failure(self, act):
        with self.assertRaisesRegex(Failed, "has lost its notes"):
            act()

    @staticmethod
    def write(folder, name, content):
        with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
            file.write(content)


if __name__ == "__main__":
    unittest.main()
