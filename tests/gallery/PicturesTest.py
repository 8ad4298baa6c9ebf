"""Every window looks as it did: what is taken of it now is what is kept in tests/gallery/pictures/.

A change that is wanted is taken over by `scripts/gallery --accept` and is then a part of the commit."""

import os
import pathlib
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent.parent / "scripts"))
sys.dont_write_bytecode = True

from picturing import references, taking, wings  # noqa: E402  (found by the path set above)

PROGRAM = os.environ["TARVELO_GALLERY"]
DIFFERENCES = pathlib.Path(os.environ["TARVELO_BUILD"]) / "gallery-differences"


class PicturesTest(unittest.TestCase):
    def test_every_window_looks_as_it_did(self):
        with tempfile.TemporaryDirectory() as folder:
            taken = pathlib.Path(folder)
            taking.take(PROGRAM, taken, wings.kept_wings())

            pairs = references.differences(taken)
            references.show(pairs, DIFFERENCES)

        if pairs:
            self.fail("\n".join([f"{len(pairs)} pictures differ; old, new and what changed: {DIFFERENCES}",
                                 *map(references.told, pairs), "If that is wanted: scripts/gallery --accept"]))


if __name__ == "__main__":
    unittest.main()
