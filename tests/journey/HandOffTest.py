"""What a row's menu hands over to the desktop reaches it unchanged, from the program itself."""

import datetime
import json
import os
import subprocess
import sys
import unittest
import urllib.parse

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from outside import home, names  # noqa: E402  (found by the path set above)
from outside.case import DesktopTest  # noqa: E402
from outside.waiting import wait_for  # noqa: E402

PROGRAM = os.path.abspath(sys.argv.pop(1))
# Subjects are shown and sent with capital letters: this one is written so already.
SUBJECT = 'Optics: "it\'s" $(touch Ran)'
NOTES = "--help\n$(touch RAN); 'touch' \"RAN\" `touch RAN`\n\\cos x, 100 % 📚 عربي"
NAME = "Audio - 1 $(touch RAN) 'it'.m4a"
SOUND = bytes(range(256)) * 4099


class HandOffTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(self.folder)  # what runs by mistake leaves its mark here
        self.add_lecture()
        self.start_services()

    def add_lecture(self):
        path = home.recording(self.desktop.data, NAME)
        with home.made(self.desktop.data) as database, open(path, "wb") as file:
            file.write(SOUND)
            database.execute("INSERT INTO audioData VALUES (1, ?, 'test course', ?, ?, '10.00 AM', '11.30 AM', ?, '00:45:00')",
                             (SUBJECT, NOTES, datetime.date.today().isoformat(), path))

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
        self.stand_in_for_the_viewer()
        program = self.new_program(PROGRAM)
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
        self.assertEqual(addresses, [f"file://{self.desktop.data}/Tarvelo/Audio/{NAME}"])
        self.assertFalse(os.path.exists("RAN"))
        self.assertEqual(guide, [os.path.normpath(os.path.join(PROGRAM, "../../share/Tarvelo/Guide.pdf"))])
        self.assertTrue(os.path.isfile(guide[0]))
        program.expect_silence()


if __name__ == "__main__":
    unittest.main()
