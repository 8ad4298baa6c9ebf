"""What counts as another look of a window, what is told of it, and what is taken over."""

import pathlib
import sys
import tempfile
import unittest
import unittest.mock

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent.parent / "scripts"))
sys.dont_write_bytecode = True

from PIL import Image, ImageDraw  # noqa: E402

from picturing import comparing, references, taking, wings  # noqa: E402  (found by the path set above)

SIZE = (100, 50)
GREY = (200, 200, 200, 255)
BUTTON = (20, 10, 39, 19)


def window(size=SIZE, background=GREY, button=BUTTON):
    picture = Image.new("RGBA", size, background)
    ImageDraw.Draw(picture).rectangle(button, fill="red")
    return picture


def off_by(steps):
    return (GREY[0], GREY[1] + steps, GREY[2], 255)


class ComparisonTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.taken, self.kept = self.folder / "taken", self.folder / "kept"

    def put(self, folder, name, picture):
        path = folder / f"{name}.png"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(comparing.encoded(picture))
        return path

    def differences(self, kept):
        return references.differences(self.taken, self.kept, kept)

    def complaints(self, kept):
        return [references.told(pair) for pair in self.differences(kept)]

    def test_the_same_picture_is_no_change(self):
        self.assertIsNone(comparing.change(window(), window()))

    def test_what_another_processor_may_round_is_no_change(self):
        self.assertIsNone(comparing.change(window(), window(background=off_by(comparing.TOLERANCE))))

    def test_a_colour_that_is_off_by_little_more_is_one(self):
        seen = comparing.change(window(), window(background=off_by(-comparing.TOLERANCE - 1)))

        self.assertEqual(seen.box, (0, 0, *SIZE))
        self.assertAlmostEqual(seen.share, 1 - 20 * 10 / (100 * 50))

    def test_a_control_that_moved_by_two_pixels_is_one(self):
        seen = comparing.change(window(), window(button=(22, 10, 41, 19)))

        self.assertEqual(seen.box, (20, 10, 42, 20))
        self.assertEqual(comparing.told(seen), "0.80 % of its pixels changed, within 22 x 10 at (20, 10)")

    def test_a_single_pixel_is_one(self):
        dotted = window()
        dotted.putpixel((99, 49), (0, 0, 0, 255))

        self.assertEqual(comparing.change(window(), dotted).box, (99, 49, 100, 50))

    def test_less_to_see_through_is_one(self):
        self.assertIsNotNone(comparing.change(window(background=(0, 0, 0, 0)), window(background=(0, 0, 0, 9))))

    def test_another_colour_that_hardly_shows_is_none(self):
        self.assertIsNone(comparing.change(window(background=(0, 0, 0, 9)), window(background=(40, 0, 0, 9))))

    def test_another_size_is_one_even_if_nothing_is_in_what_was_added(self):
        clear = (0, 0, 0, 0)
        seen = comparing.change(window(background=clear), window((100, 52), clear))

        self.assertIn("it was 100 x 50 and is 100 x 52", comparing.told(seen))

    def test_a_picture_is_kept_without_loss(self):
        for picture in (window(), window(background=(10, 20, 30, 40))):
            path = self.put(self.kept, "a/b", picture)

            self.assertEqual(comparing.load(path).tobytes(), picture.tobytes())

    def test_only_what_changed_is_told_and_shown_and_nothing_older(self):
        for folder, button in ((self.kept, BUTTON), (self.taken, (20, 12, 39, 21))):
            self.put(folder, "en/same", window())
            self.put(folder, "en/moved", window(button=button))
        shown = self.folder / "shown"
        self.put(shown, "en/older", window())

        pairs = self.differences({"en": None})
        references.show(pairs, shown)

        self.assertEqual([references.told(pair) for pair in pairs],
                         ["en/moved: 1.60 % of its pixels changed, within 20 x 12 at (20, 10)"])
        self.assertEqual([path.name for path in shown.glob("*/*")], ["moved.png"])
        self.assertGreater(comparing.load(shown / "en" / "moved.png").width, 3 * SIZE[0])

    def test_a_scene_without_a_picture_and_a_picture_without_a_scene_are_told(self):
        self.put(self.taken, "en/new", window())
        self.put(self.kept, "en/old", window())

        self.assertEqual(self.complaints({"en": None}),
                         ["en/new: this scene has no picture to be compared with",
                          "en/old: there is a picture, but no scene that is compared with it"])

    def test_of_a_choice_no_other_scene_is_wanted_but_each_of_them(self):
        for scene in ("chosen", "other"):
            self.put(self.taken, f"de/{scene}", window())
        self.put(self.kept, "de/chosen", window())
        self.put(self.kept, "de/other", window())

        self.assertEqual(self.complaints({"de": ("chosen", "gone")}),
                         ["de/gone: no such scene, though its picture is to be kept",
                          "de/other: there is a picture, but no scene that is compared with it"])

    def test_pictures_of_a_wing_that_is_not_compared_are_told(self):
        self.put(self.kept, "fr/main", window())

        self.assertEqual(self.complaints({}), ["fr/main: there is a picture, but no scene that is compared with it"])

    def test_what_is_accepted_is_no_difference_any_more(self):
        self.put(self.taken, "en/new", window())
        self.put(self.taken, "en/changed", window(background=off_by(9)))
        for name in ("en/changed", "en/old", "fr/old"):
            self.put(self.kept, name, window())

        references.accept(self.differences({"en": None}), self.kept)

        self.assertEqual(self.complaints({"en": None}), [])
        self.assertEqual(sorted(path.name for path in self.kept.glob("**/*")), ["changed.png", "en", "new.png"])

    def test_a_picture_that_did_not_change_keeps_its_bytes(self):
        self.put(self.taken, "en/main", window(background=off_by(1)))
        path = self.put(self.kept, "en/main", window())
        before = path.read_bytes()

        references.accept(self.differences({"en": None}), self.kept)

        self.assertEqual(path.read_bytes(), before)

    def test_every_wing_that_is_kept_is_one_of_the_gallery(self):
        self.assertEqual({wing.name for wing in wings.kept_wings()}, set(wings.KEPT))

    def test_a_font_that_is_missing_is_named(self):
        configuration = self.folder / "fonts.conf"
        configuration.write_text("<acceptfont><glob>/no/Such.ttf</glob></acceptfont>", encoding="utf-8")

        self.assertEqual(taking.missing_fonts(configuration), ["/no/Such.ttf"])

    def test_a_program_that_fails_is_told(self):
        with self.assertRaisesRegex(taking.NotTaken, "en-light ended with status 1"):
            taking.take("/bin/false", self.taken, wings.kept_wings())

    def test_no_setting_of_the_caller_reaches_the_pictures(self):
        wing = wings.kept_wings()[0]
        with unittest.mock.patch.dict("os.environ", {"QT_FONT_DPI": "200", "DISPLAY": ":0", "ASAN_OPTIONS": "x=1"}):
            passed = taking.environment(wing, "/home")

        self.assertNotIn("QT_FONT_DPI", passed)
        self.assertNotIn("DISPLAY", passed)
        self.assertEqual(passed["ASAN_OPTIONS"], "x=1")


if __name__ == "__main__":
    unittest.main()
