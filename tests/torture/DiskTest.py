"""What a power cut leaves of what was done to a disk."""

import os
import random
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
sys.dont_write_bytecode = True

from torturing.disk import Disk  # noqa: E402  (found by the path set above)


def disk_after(*operations):
    """Each is a word, a path, and what else it takes: another path, or an offset and bytes."""
    disk = Disk("/home")
    for operation, path, *rest in operations:
        other = rest[0] if rest and isinstance(rest[0], str) else ""
        offset, data = (rest[0], rest[1]) if len(rest) == 2 else (0, b"")
        disk.do(operation, 0.0, path, other, offset, data)
    return dict(disk.variants(random.Random(1)))


class DiskTest(unittest.TestCase):
    def test_what_was_not_synced_is_gone(self):
        left = disk_after(("create", "/home/a"), ("sync", "/home"), ("write", "/home/a", 0, b"old"), ("sync", "/home/a"),
                          ("write", "/home/a", 3, b"new"))

        self.assertEqual(left["only what was synced"], {"/home": None, "/home/a": b"old"})
        self.assertEqual(left["everything"], {"/home": None, "/home/a": b"oldnew"})

    def test_a_file_whose_folder_was_not_synced_has_no_name(self):
        left = disk_after(("create", "/home/a"), ("write", "/home/a", 0, b"text"), ("sync", "/home/a"))

        self.assertEqual(left["only what was synced"], {"/home": None})
        self.assertEqual(left["all names, synced content"], {"/home": None, "/home/a": b"text"})

    def test_a_renamed_file_keeps_its_old_name_until_the_folder_is_synced(self):
        moved = [("create", "/home/a"), ("write", "/home/a", 0, b"text"), ("sync", "/home/a"), ("sync", "/home"),
                 ("rename", "/home/a", "/home/b")]

        self.assertEqual(disk_after(*moved)["only what was synced"], {"/home": None, "/home/a": b"text"})
        self.assertEqual(disk_after(*moved, ("sync", "/home"))["only what was synced"], {"/home": None, "/home/b": b"text"})

    def test_two_files_change_names_when_their_folder_is_synced(self):
        swapped = [("create", "/home/a"), ("write", "/home/a", 0, b"a"), ("sync", "/home/a"), ("create", "/home/b"), ("sync", "/home"),
                   ("swap", "/home/a", "/home/b")]

        self.assertEqual(disk_after(*swapped)["only what was synced"]["/home/a"], b"a")
        self.assertEqual(disk_after(*swapped, ("sync", "/home"))["only what was synced"]["/home/b"], b"a")

    def test_a_removed_file_comes_back_until_the_folder_is_synced(self):
        removed = [("create", "/home/a"), ("sync", "/home"), ("unlink", "/home/a")]

        self.assertIn("/home/a", disk_after(*removed)["only what was synced"])
        self.assertNotIn("/home/a", disk_after(*removed, ("sync", "/home"))["only what was synced"])

    def test_what_lies_in_a_folder_that_is_gone_is_gone(self):
        left = disk_after(("mkdir", "/home/f"), ("create", "/home/f/a"), ("sync", "/home/f"))

        self.assertEqual(left["only what was synced"], {"/home": None})

    def test_some_pages_may_have_come_to_the_disk(self):
        old, new = bytes(8 * 4096), b"x" * (8 * 4096)
        left = disk_after(("create", "/home/a"), ("write", "/home/a", 0, old), ("sync", "/home/a"), ("write", "/home/a", 0, new))
        torn = left["all names, some of the rest"]["/home/a"]

        self.assertEqual({torn[at : at + 4096] for at in range(0, len(torn), 4096)}, {old[:4096], new[:4096]})


if __name__ == "__main__":
    unittest.main()
