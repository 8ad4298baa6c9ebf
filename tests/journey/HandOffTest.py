"""What a row's menu hands over to the desktop reaches it unchanged, from the program itself."""

import datetime
import json
import os
import sqlite3
import subprocess
import sys
import tempfile
import unittest
import urllib.parse

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from outside import names  # noqa: E402  (found by the path set above)
from outside.desktop import Desktop  # noqa: E402
from outside.waiting import wait_for  # noqa: E402

PROGRAM = os.path.abspath(sys.argv.pop(1))
# Subjects are shown and sent with capital letters: this one is written so already.
SUBJECT = 'Optics: "it\'s" $(touch Ran)'
NOTES = "--help\n$(touch RAN); 'touch' \"RAN\" `touch RAN`\n\\cos x, 100 % 📚 عربي"
NAME = "Audio - 1 $(touch RAN) 'it'.m4a"
SOUND = bytes(range(256)) * 4099
TABLE = """CREATE TABLE audioData (ID INTEGER PRIMARY KEY, subject TEXT, course TEXT, notes TEXT, recordingDate DATETIME,
           lectureStartTime TEXT, lectureEndTime TEXT, audioFileFullPath TEXT, recordDuration TEXT)"""


class HandOffTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.desktop = Desktop(folder.name)
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(self.folder)  # what runs by mistake leaves its mark here
        self.home = os.path.join(self.desktop.data, "Tarvelo")
        self.add_lecture()
        self.start_services()

    def add_lecture(self):
        """As the program stores one: with two slashes before the file's name."""
        os.makedirs(os.path.join(self.home, "Audio"))
        path = f"{self.home}/Audio//{NAME}"
        with open(path, "wb") as file:
            file.write(SOUND)
        database = sqlite3.connect(os.path.join(self.home, "TarveloInfo.db"))
        database.execute(TABLE)
        database.execute("INSERT INTO audioData VALUES (1, ?, 'test course', ?, ?, '10.00 AM', '11.30 AM', ?, '00:45:00')",
                         (SUBJECT, NOTES, datetime.date.today().isoformat(), path))
        database.commit()
        database.close()

    def start_services(self):
        self.records = os.path.join(self.folder, "records")
        os.mkdir(self.records)
        services = subprocess.Popen([sys.executable, "-B", os.path.join(HERE, "StandInDesktop.py"), self.records],
                                    stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(services.wait, 10)
        self.addCleanup(services.stdout.close)
        self.addCleanup(services.stdin.close)
        self.assertEqual(services.stdout.readline(), "ready\n")

    def record(self, name):
        path = os.path.join(self.records, name)
        wait_for(name, lambda: os.path.exists(path))
        with open(path, encoding="utf-8") as file:
            return json.load(file)

    def stand_in_for_the_viewer(self):
        """Found first on the path, it writes down the file that it is to show."""
        path = os.path.join(self.folder, "xdg-open")
        with open(path, "w", encoding="utf-8") as file:
            file.write(f'#!/bin/sh\nprintf \'["%s"]\' "$*" > "{self.records}/part" && mv "{self.records}/part" "{self.records}/open.json"\n')
        os.chmod(path, 0o755)
        os.environ["PATH"] = self.folder + os.pathsep + os.environ["PATH"]

    def test_a_row_is_mailed_and_shown_and_the_guide_too(self):
        from outside.program import Program  # finds its bus in the environment, which stands only now

        self.stand_in_for_the_viewer()
        program = Program(PROGRAM, self.desktop)
        self.addCleanup(program.stop)
        program.start("first")

        program.hands.choose(names.MAIN_WINDOW, names.LECTURES, SUBJECT, names.SHARE_KEYS)
        mail = self.record("mail-0.json")
        program.hands.choose(names.MAIN_WINDOW, names.LECTURES, SUBJECT, names.SHOW_FILE_KEYS)
        shown = self.record("show-0.json")
        program.hands.press(names.MAIN_WINDOW, names.GUIDE_KEYS)
        guide = self.record("open.json")
        program.quit()

        self.assertEqual(mail["options"], {"body": f"{SUBJECT}\n\n{NOTES}\n_"})
        with open(mail["attached"][0], "rb") as file:
            self.assertEqual(file.read(), SOUND)
        addresses = [urllib.parse.unquote(address) for address in shown["addresses"]]
        self.assertEqual(addresses, [f"file://{self.home}/Audio/{NAME}"])
        self.assertFalse(os.path.exists("RAN"))
        self.assertEqual(guide, [os.path.normpath(os.path.join(PROGRAM, "../../share/Tarvelo/Guide.pdf"))])
        self.assertTrue(os.path.isfile(guide[0]))
        program.expect_silence()


if __name__ == "__main__":
    unittest.main()
