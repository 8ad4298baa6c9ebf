"""Walks through every window of the program by keyboard and asks the accessibility bus what a blind student would hear."""

import datetime
import os
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from checker import faults, focused, unreached  # noqa: E402  (beside this file)
from outside import home, names  # noqa: E402  (found by the path set above)
from outside.case import SoundTest  # noqa: E402
from outside.waiting import wait_for  # noqa: E402

PROGRAM = os.path.abspath(sys.argv.pop(1))
MOST_STOPS = 60


def keys(*pressed):
    subprocess.run(["xdotool", "key", *pressed], check=True, stdin=subprocess.DEVNULL)


class WalkTest(SoundTest):
    maxDiff = None

    def setUp(self):
        super().setUp()
        self.add_lectures()
        self.start()

    def add_lectures(self):
        """Two that can be heard, and one that cannot."""
        with home.made(self.desktop.data) as database:
            for number, subject in enumerate(("Silence", "Optics", "Waves")):
                path = home.recording(self.desktop.data, f"Audio - {number}.m4a")
                subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-f", "lavfi", "-i", "sine=frequency=300:duration=60",
                                "-c:a", "aac", path], check=True)
                database.execute("INSERT INTO audioData VALUES (?, ?, 'test course', ?, ?, '10.00 AM', '11.30 AM', ?, '00:01:00')",
                                 (number, subject, "Notes", datetime.date.today().isoformat(), path if number else ""))

    def start(self):
        from listener import Listener  # finds its bus in the environment, which stands only now

        self.program = self.new_program(PROGRAM)
        self.program.start("first")
        self.ears = Listener(names.APPLICATION)
        self.program.hands.row(names.MAIN_WINDOW, names.LECTURES, "Waves")

    def window(self, name):
        return self.ears.window(name)

    def walk(self, name):
        """Presses Tab until the keyboard comes round. Everything to which it came, in this order."""
        self.ears.focus()
        stops = []
        for _ in range(MOST_STOPS):
            keys("Tab")
            heard = wait_for(f"Tab to lead on in {name!r} after {stops[-1:]}", self.ears.focus, 10)
            # A list says itself first and then its row.
            if heard[-1] in stops:
                return stops
            stops += heard
        raise AssertionError(f"Tab does not come round in {name!r}: {stops}")

    def visit(self, expected, *pressed):
        """Presses the keys, and listens until the keyboard has been in so many places."""
        self.ears.focus()
        visited = []
        keys(*pressed)
        wait_for(f"{expected} places by {pressed[:3]}", lambda: visited.extend(self.ears.focus()) or len(set(visited)) >= expected, 20)
        return visited

    def check(self, name, visited):
        window = self.window(name)
        self.assertEqual(faults(window), [])
        self.assertEqual(unreached(window, visited), [])
        return window

    @staticmethod
    def order(stops, first):
        """The names of the stops, from one of them on."""
        found = [name for _, name, _ in stops]
        at = found.index(first)
        return found[at:] + found[:at]

    def shows(self, role):
        return any(thing.role == role for thing in self.window(names.MAIN_WINDOW).below())

    def days(self):
        """From the first day of the month on, by the arrow keys."""
        today = datetime.date.today()
        last = (today.replace(day=28) + datetime.timedelta(days=4)).replace(day=1) - datetime.timedelta(days=1)
        self.keyboard_on_calendar()
        keys(*["Left"] * (today.day - 1))
        return self.visit(last.day - 1, *["Right"] * (last.day - 1)) + self.visit(last.day - 1, *["Left"] * (last.day - 1))

    def keyboard_on_calendar(self):
        self.ears.focus()
        keys("F6")
        role, name, _ = wait_for("a part of the window", self.ears.focus)[-1]
        if role != "push button":
            keys("shift+F6")
            wait_for("the calendar", lambda: any(place[0] == "push button" for place in self.ears.focus()))
        keys("Home")

    def keyboard_on_row(self, subject):
        """From whichever part of the main window."""
        self.keyboard_on_calendar()
        self.ears.focus()
        keys("F6")
        wait_for("the list", lambda: any(place[0].startswith("list") for place in self.ears.focus()))
        keys("Home")
        for _ in range(4):
            if self.row_with_keyboard().startswith(subject):
                return
            keys("Down")
        raise AssertionError(f"the arrow keys do not come to {subject!r}")

    def row_with_keyboard(self):
        def row():
            found = focused(self.window(names.MAIN_WINDOW))
            return found[1] if found and found[0] == "list item" else None

        self.ears.focus()
        return wait_for("a row with the keyboard", row)

    def test_the_main_window(self):
        days = self.days()
        self.keyboard_on_row("Waves")
        rows = self.visit(2, "Down", "Down") + self.visit(2, "Up", "Up")
        stops = self.walk(names.MAIN_WINDOW)
        self.check(names.MAIN_WINDOW, days + rows + stops)

        keys("F9")
        wait_for("the list to go", lambda: not self.shows("list"))
        self.check(names.MAIN_WINDOW, days + self.walk(names.MAIN_WINDOW))

    def test_the_lecture_beside_the_list_and_alone(self):
        days = self.days()
        self.keyboard_on_row("Waves")
        rows = self.visit(2, "Down", "Down") + self.visit(2, "Up", "Up")
        keys("Return")
        self.program.hands.control(names.MAIN_WINDOW, "Show Lecture")
        self.check(names.MAIN_WINDOW, days + rows + self.walk(names.MAIN_WINDOW))

        self.keyboard_on_row("Waves")
        while self.visit(1, "Tab")[-1][1] != "Show Lecture":
            pass
        keys("space")
        self.program.hands.control(names.MAIN_WINDOW, "Back to List")
        wait_for("calendar and list to go", lambda: not self.shows("list") and not self.shows("grouping"))
        self.check(names.MAIN_WINDOW, self.walk(names.MAIN_WINDOW))

    def test_the_menus(self):
        self.check_menu(["New Lecture", "All List", "Fold List", "Quit"], "F10")
        self.keyboard_on_row("Waves")
        self.check_menu(["Edit", "Delete", "Show in Finder", "Share via Email"], "shift+F10")
        self.keyboard_on_row("Waves")
        self.check_menu(["Export file to iTunes"], "ctrl+shift+F10")

    def check_menu(self, wanted, opened_by):
        keys(opened_by)
        menu = wait_for("the menu", self.menu)
        commands = [thing for thing in menu.below() if thing.role == "menu item"]
        visited = self.visit(len(commands) - 1, *["Down"] * len(commands)) if len(commands) > 1 else []
        keys("Escape")
        wait_for("the menu to go", lambda: not self.menu())
        self.assertEqual(faults(self.window(names.MAIN_WINDOW)), [])
        self.assertTrue(menu.name)
        self.assertLessEqual(set(wanted), {command.name for command in commands})
        if visited:
            self.assertLessEqual({command.name for command in commands[1:]}, {name for _, name, _ in visited})

    def menu(self):
        things = [thing for window in self.ears.windows() for thing in window.below()]
        return next((thing for thing in things if thing.role == "popup menu"), None)

    def test_a_lecture_is_recorded_and_every_step_is_said(self):
        window = names.NEW_LECTURE_WINDOW
        keys("ctrl+n")
        self.window(window)
        stops = self.walk(window)
        self.check(window, stops)
        self.assertEqual(self.order(stops, names.SUBJECT),
                         ["Subject", "Notes", "Start recording", "Done", "Close", "Cancel"])

        keys("ctrl+r")
        self.ears.said("Recording started")
        stops = self.walk(window)
        self.check(window, stops)
        self.assertEqual(self.order(stops, names.SUBJECT),
                         ["Subject", "Notes", "Insert Time", "Pause", "Stop", "Done", "Close", "Cancel"])

        keys("ctrl+r")
        self.ears.said("Recording paused")
        self.check(window, self.walk(window))
        keys("ctrl+r")
        self.ears.said("Recording resumed")
        keys("ctrl+r")
        self.ears.said("Recording paused")
        keys("ctrl+shift+r")
        self.ears.said("Recording stopped")
        self.check(window, self.walk(window))
        keys("F8")
        self.program.hands.control(window, "Pause")
        self.check(window, self.walk(window))
        self.check_sheet(window, "There is a record that needs to be saved!", "Escape")
        keys("ctrl+Return")
        self.ears.said("Lecture saved")
        self.program.hands.row(names.MAIN_WINDOW, names.LECTURES, "Untitled")

    def check_sheet(self, over, message, keys_that_bring_it):
        keys(keys_that_bring_it)
        sheet = self.window(message)
        self.assertEqual((sheet.role, faults(sheet)), ("alert", []))
        self.assertEqual(focused(sheet)[:2], ("push button", "Ok"))
        keys("Return")
        self.program.hands.window_goes(message)
        wait_for("the window under the sheet", lambda: focused(self.window(over)))

    def test_a_lecture_is_discarded(self):
        keys("ctrl+n")
        self.window(names.NEW_LECTURE_WINDOW)
        keys("ctrl+r")
        self.ears.said("Recording started")
        keys("ctrl+shift+r")
        self.ears.said("Recording stopped")
        while self.visit(1, "Tab")[-1][1] != "Cancel":
            pass
        keys("space")
        self.ears.said("Recording discarded")
        self.program.hands.window_goes(names.NEW_LECTURE_WINDOW)

    def test_the_play_window(self):
        self.keyboard_on_row("Waves")
        keys("space")
        self.window("Waves")
        stops = self.walk("Waves")
        self.assertEqual(self.order(stops, "Pause"),
                         ["Pause", "Playback position", "The recorded speed", "Close", "Subject"])
        while self.visit(1, "Tab")[-1][0] != "radio button":
            pass
        self.check("Waves", stops + self.visit(4, *["Left"] * 4))
        keys("Escape")
        self.program.hands.window_goes("Waves")

    def test_the_window_that_changes_a_lecture(self):
        self.keyboard_on_row("Waves")
        keys("F2")
        self.window(names.EDIT_WINDOW)
        stops = self.walk(names.EDIT_WINDOW)
        self.check(names.EDIT_WINDOW, stops)
        self.assertEqual(self.order(stops, names.SUBJECT), ["Subject", "Notes", "Done", "Cancel"])
        keys("shift+Tab", "End", "x", "Escape")
        sheet = self.window("Lecture has been changed!")
        self.assertEqual((sheet.role, faults(sheet)), ("alert", []))

    def test_the_preferences(self):
        keys("ctrl+comma")
        self.window("Preferences")
        stops = self.walk("Preferences")
        while self.visit(1, "Tab")[-1][0] != "radio button":
            pass
        self.check("Preferences", stops + self.visit(2, "Down", "Up"))

    def test_the_questions(self):
        self.keyboard_on_row("Waves")
        keys("Delete")
        question = self.window(names.CONFIRM_DELETE)
        self.assertEqual(question.role, "dialog")
        self.check(names.CONFIRM_DELETE, self.walk(names.CONFIRM_DELETE))
        keys("Escape")
        self.program.hands.window_goes(names.CONFIRM_DELETE)

        self.keyboard_on_row("Silence")
        keys("space")
        answer = wait_for("the answer", lambda: next((window for window in self.ears.windows() if window.role == "dialog"), None))
        self.assertEqual(faults(answer), [])
        self.assertEqual(focused(answer)[:2], ("push button", "Close"))

    def test_a_day_without_lectures(self):
        self.keyboard_on_calendar()
        keys("Page_Down")
        self.program.hands.control(names.MAIN_WINDOW, names.NO_LECTURES)
        stops = self.walk(names.MAIN_WINDOW)
        self.assertEqual(faults(self.window(names.MAIN_WINDOW)), [])
        self.assertIn(("push button", names.NEW_LECTURE), [stop[:2] for stop in stops])


if __name__ == "__main__":
    unittest.main()
