"""The guide that the build makes: its pages, its pictures, and that it tells of every key."""

import os
import re
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
BUILD = os.environ["TARVELO_BUILD"]
GUIDE = os.path.join(BUILD, "src", "share", "Tarvelo", "Guide.pdf")
WRITER = os.path.join(BUILD, "desktop", "tarvelo_write_guide")
SOURCE = os.path.join(ROOT, "resources", "guide", "guide.html")


def run(*command, **environment):
    return subprocess.run(command, capture_output=True, check=True, stdin=subprocess.DEVNULL, text=True,
                          env={**os.environ, **environment})


def content(*path):
    with open(os.path.join(ROOT, *path), encoding="utf-8") as file:
        return file.read()


def words(page=None):
    """The text of a page, or of all, with one blank between two words."""
    pages = [] if page is None else ["-f", str(page), "-l", str(page)]
    return " ".join(run("pdftotext", *pages, GUIDE, "-").stdout.split())


def keys_of_the_menus():
    """As the guide writes them: Qt::CTRL | Qt::Key_N is Ctrl+N."""
    used = re.findall(r"((?:Qt::CTRL \| |Qt::SHIFT \| )*Qt::Key_\w+)", content("src", "app", "AppMenus.cpp"))
    return {key.replace(" | ", "+").replace("Qt::CTRL", "Ctrl").replace("Qt::SHIFT", "Shift").replace("Qt::Key_", "")
            for key in used}


def keys_of_the_page():
    """The first column of every table of the page that lists the keys, without the place where a key is pressed."""
    cells = re.findall(r"^\| ([^|]+?) \|", content("docs", "keyboard.md"), re.MULTILINE)
    keys = [key for cell in cells if cell != "keys" for key in cell.split(", ")]
    return {re.split(r" (?:to|in|on) ", key)[0] for key in keys if re.match(r"[A-Z]", key)}


class GuideTest(unittest.TestCase):
    def test_it_is_a_document_of_some_pages_with_a_title(self):
        said = dict(re.findall(r"^([^:]+): +(.*)$", run("pdfinfo", GUIDE).stdout, re.MULTILINE))

        self.assertEqual("The Tarvelo Guide", said["Title"])
        self.assertIn("A4", said["Page size"])
        self.assertIn(int(said["Pages"]), range(6, 11))

    def test_it_tells_of_every_key(self):
        self.assertGreater(len(keys_of_the_menus()), 6)
        self.assertGreater(len(keys_of_the_page()), 20)
        text = words()

        for key in sorted(keys_of_the_menus() | keys_of_the_page()):
            self.assertRegex(text, rf"(?<![\w+]){re.escape(key)}(?![\w+])")

    def test_its_contents_lead_to_its_chapters(self):
        chapters = re.findall(r'<h[12][^>]*><a name="\w+"></a>(.*?)</h', content("resources", "guide", "guide.html"))

        self.assertGreater(len(chapters), 6)
        for chapter in chapters:
            page = re.search(rf"{re.escape(chapter)} (\d+)\b", words(1))[1]
            self.assertIn(chapter, words(int(page)))

    def test_its_pictures_are_in_it(self):
        named = set(re.findall(r'<img src="([\w-]+\.png)"', content("resources", "guide", "guide.html")))
        listed = run("pdfimages", "-list", GUIDE).stdout.splitlines()[2:]

        self.assertEqual(named, {name for name in os.listdir(os.path.dirname(SOURCE)) if name.endswith(".png")})
        self.assertGreaterEqual(len([line for line in listed if " image " in line]), len(named))

    def test_the_same_sources_give_the_same_document(self):
        with tempfile.TemporaryDirectory() as folder:
            made = []
            for zone in ("UTC", "Asia/Tokyo"):
                path = os.path.join(folder, "Guide.pdf")
                done = run(WRITER, SOURCE, path, TZ=zone, SOURCE_DATE_EPOCH="1700000000", ASAN_OPTIONS="detect_leaks=0")
                self.assertEqual((done.stdout, done.stderr), ("", ""))
                with open(path, "rb") as file:
                    made.append(file.read())

        self.assertEqual(*made)


if __name__ == "__main__":
    unittest.main()
