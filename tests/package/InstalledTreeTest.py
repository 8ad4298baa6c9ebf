"""What `cmake --install` puts where, and what the desktop's own checkers say to it."""

import configparser
import glob
import os
import stat
import struct
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

ID = "org.tarvelo.Tarvelo"
SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]
MENU_ENTRY = f"share/applications/{ID}.desktop"
SERVICE = f"share/dbus-1/services/{ID}.service"
DESCRIPTION = "share/metainfo/org.tarvelo.tarvelo.metainfo.xml"
GUIDE = "share/Tarvelo/Guide.pdf"
FILES = {
    "bin/Tarvelo",
    MENU_ENTRY,
    SERVICE,
    DESCRIPTION,
    GUIDE,
    "share/doc/Tarvelo/LICENSE",
    "share/man/man1/Tarvelo.1",
    f"share/icons/hicolor/scalable/apps/{ID}.svg",
    f"share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg",
    *(f"share/icons/hicolor/{size}x{size}/apps/{ID}.png" for size in SIZES),
}
TEXTS = os.path.join(os.path.dirname(__file__), "../../resources/texts")
# The languages of the program but the one that stands without a name.
LANGUAGES = sorted({os.path.splitext(name)[0].removeprefix("tarvelo_") for name in os.listdir(TEXTS)} - {"en"})
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def run(*command, **environment):
    return subprocess.run(command, capture_output=True, text=True, check=False, stdin=subprocess.DEVNULL,
                          env={**os.environ, **environment})


def files_below(folder):
    return {os.path.relpath(os.path.join(path, name), folder)
            for path, _, names in os.walk(folder) for name in names}


class InstalledTreeTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls._folder = cls.enterClassContext(tempfile.TemporaryDirectory())
        cls.installed = run(os.environ["TARVELO_CMAKE"], "--install", os.environ["TARVELO_BUILD"], "--prefix", "/usr",
                            DESTDIR=cls._folder)
        cls.tree = os.path.join(cls._folder, "usr")

    def path(self, name):
        return os.path.join(self.tree, name)

    def keys(self, name):
        parser = configparser.ConfigParser(interpolation=None, delimiters=["="])
        parser.optionxform = str
        parser.read(self.path(name), encoding="utf-8")
        return parser

    def assertHasNothingToSay(self, done):
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def test_these_files_are_installed_and_no_others(self):
        self.assertEqual(self.installed.returncode, 0, self.installed.stderr)
        self.assertEqual(FILES, files_below(self.tree))
        self.assertEqual(["usr"], os.listdir(self._folder))

    def test_everybody_may_read_and_only_the_program_runs(self):
        for name in FILES:
            mode = stat.S_IMODE(os.stat(self.path(name)).st_mode)
            self.assertEqual(oct(0o755 if name == "bin/Tarvelo" else 0o644), oct(mode), name)

    def test_the_menu_entry_is_valid(self):
        self.assertHasNothingToSay(run("desktop-file-validate", self.path(MENU_ENTRY)))

    def test_the_description_is_valid(self):
        done = run("appstreamcli", "validate", "--pedantic", "--no-net", "--no-color", self.path(DESCRIPTION))

        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertNotRegex(done.stdout, r"(?m)^[EWIP]:")
        self.assertEqual(run("appstreamcli", "validate-tree", "--no-net", self._folder).returncode, 0)

    def test_the_menu_entry_speaks_the_users_language(self):
        entry = self.keys(MENU_ENTRY)

        for language in LANGUAGES:
            for key in ("GenericName", "Comment", "Keywords"):
                self.assertNotIn(entry["Desktop Entry"][f"{key}[{language}]"], ("", entry["Desktop Entry"][key]))
            for action in ("new-lecture", "preferences"):
                self.assertTrue(entry[f"Desktop Action {action}"][f"Name[{language}]"])

    def test_the_description_speaks_the_users_language(self):
        description = xml.etree.ElementTree.parse(self.path(DESCRIPTION)).getroot()

        for paragraphs in (description.findall("summary"), description.findall("description/p")):
            untranslated = [paragraph for paragraph in paragraphs if LANGUAGE not in paragraph.attrib]
            self.assertEqual(sorted(LANGUAGES * len(untranslated)),
                             sorted(paragraph.get(LANGUAGE) for paragraph in paragraphs if paragraph not in untranslated))
            self.assertEqual(len(paragraphs), len({"".join(paragraph.itertext()) for paragraph in paragraphs}))

    def test_the_menu_entry_opens_no_kind_of_file(self):
        self.assertNotIn("MimeType", self.keys(MENU_ENTRY)["Desktop Entry"])

    def test_each_action_has_its_option(self):
        entry = self.keys(MENU_ENTRY)

        self.assertEqual("new-lecture;preferences;", entry["Desktop Entry"]["Actions"])
        self.assertEqual("/usr/bin/Tarvelo --new-lecture", entry["Desktop Action new-lecture"]["Exec"])
        self.assertEqual("/usr/bin/Tarvelo --preferences", entry["Desktop Action preferences"]["Exec"])

    def test_the_bus_starts_the_installed_program_by_the_name_of_the_menu_entry(self):
        service = self.keys(SERVICE)["D-BUS Service"]

        self.assertEqual({"Name": ID, "Exec": "/usr/bin/Tarvelo"}, dict(service))
        self.assertEqual("true", self.keys(MENU_ENTRY)["Desktop Entry"]["DBusActivatable"])

    def test_another_place_is_started_from_there(self):
        with tempfile.TemporaryDirectory() as home:
            prefix = os.path.join(home, ".local")
            run(os.environ["TARVELO_CMAKE"], "--install", os.environ["TARVELO_BUILD"], "--prefix", prefix, DESTDIR="")
            self.tree = prefix

            self.assertEqual(FILES, files_below(prefix))
            self.assertEqual(f"{prefix}/bin/Tarvelo", self.keys(SERVICE)["D-BUS Service"]["Exec"])
            self.assertEqual(f"{prefix}/bin/Tarvelo", self.keys(MENU_ENTRY)["Desktop Entry"]["Exec"])

    def test_each_drawn_icon_has_the_size_of_its_folder(self):
        for size in SIZES:
            with open(self.path(f"share/icons/hicolor/{size}x{size}/apps/{ID}.png"), "rb") as picture:
                head = picture.read(24)
            self.assertEqual((b"\x89PNG", size, size), (head[:4], *struct.unpack(">II", head[16:])))

    def test_the_icon_of_the_menu_entry_is_among_the_icons(self):
        name = self.keys(MENU_ENTRY)["Desktop Entry"]["Icon"]

        self.assertEqual(len(SIZES) + 1, len(glob.glob(self.path(f"share/icons/hicolor/*/apps/{name}.*"))))

    def test_the_description_names_what_is_installed(self):
        description = xml.etree.ElementTree.parse(self.path(DESCRIPTION)).getroot()

        self.assertEqual(os.path.basename(MENU_ENTRY), description.findtext("launchable"))
        self.assertEqual("Tarvelo", description.findtext("provides/binary"))
        self.assertEqual(ID, description.findtext("provides/dbus"))
        self.assertEqual(ID, description.findtext("icon"))


if __name__ == "__main__":
    unittest.main()
