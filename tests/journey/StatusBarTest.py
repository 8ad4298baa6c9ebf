"""The status item in real status bars: one that asks over the session bus, and one that embeds windows."""

import os
import subprocess
import sys
import tempfile
import unittest

from gi.repository import Gio, GLib

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "scripts"))

from outside import names  # noqa: E402  (found by the path set above)
from outside.case import DesktopTest  # noqa: E402
from outside.waiting import Children, wait_for  # noqa: E402

PROGRAM = os.path.abspath(sys.argv.pop(1))
ENTRIES = ["Open Tarvelo", names.NEW_LECTURE, "Preferences…", "Quit"]


class Bar:
    """A stand-in that takes items over the session bus."""

    def __init__(self, folder, children, *when):
        self._folder = tempfile.mkdtemp(dir=folder)
        self._process = children.start(sys.executable, "-B", os.path.join(HERE, "StandInStatusBar.py"), self._folder,
                                       *when, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        if self._process.stdout.readline() != "ready\n":
            raise AssertionError("no status bar")

    def begin_to_show(self):
        wait_for("the program's question", lambda: os.path.exists(os.path.join(self._folder, "asked")))
        self._process.stdin.write("now\n")
        self._process.stdin.flush()

    def leave(self):
        self._process.stdin.close()
        self._process.wait(10)

    def item(self, number=0):
        path = os.path.join(self._folder, f"item-{number}")
        wait_for(f"item {number}", lambda: os.path.exists(path))
        with open(path, encoding="utf-8") as file:
            return Item(file.read())


class Item:
    """What a status bar does with an item: asks for its looks and its menu, and presses an entry of that."""

    def __init__(self, sender):
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self._sender = sender
        self._menu = self.look("Menu")

    def look(self, name):
        return self._call("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", ("org.kde.StatusNotifierItem", name)))[0]

    def is_there(self):
        try:
            return bool(self.look("Id"))
        except GLib.Error:
            return False

    def entries(self):
        """Number by title, as far as there is one."""
        asked = GLib.Variant("(iias)", (0, -1, []))
        layout = self._call(self._menu, "com.canonical.dbusmenu", "GetLayout", asked)[1]
        return {entry[1]["label"].replace("_", ""): entry[0] for entry in layout[2] if entry[1].get("label")}

    def press(self, title):
        event = GLib.Variant("(isvu)", (self.entries()[title], "clicked", GLib.Variant("s", ""), 0))
        self._call(self._menu, "com.canonical.dbusmenu", "Event", event)

    def activate(self):
        """Presses the item itself."""
        self._call("/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate", GLib.Variant("(ii)", (0, 0)))

    def _call(self, path, interface, method, arguments):
        answer = self._bus.call_sync(self._sender, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 10000)
        return answer.unpack()


class StatusBarTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.children = Children()
        self.addCleanup(self.children.stop)

    def start(self):
        self.program = self.new_program(PROGRAM)
        self.program.start("first")
        self.hands = self.program.hands

    def switch(self):
        """The item on or off, by its box in the preferences."""
        self.hands.press(names.MAIN_WINDOW, names.PREFERENCES_KEYS)
        self.hands.click(names.PREFERENCES_WINDOW, names.STATUS_BAR)
        self.hands.click(names.PREFERENCES_WINDOW, names.DONE)
        self.hands.window_goes(names.PREFERENCES_WINDOW)

    def embedded(self):
        """The windows of the program within the bar's own."""
        tree = subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True, text=True, check=True).stdout
        lines = iter(tree.splitlines())
        bar = next((line for line in lines if '("panel" "trayer")' in line), None)
        depth = len(bar) - len(bar.lstrip()) if bar else 0
        inside = []
        for line in lines if bar else []:
            if len(line) - len(line.lstrip()) <= depth:
                break
            if names.APPLICATION in line:
                inside.append(line)
        return inside

    def test_an_item_on_the_session_bus_has_looks_and_a_menu(self):
        bar = Bar(self.folder, self.children)
        self.start()

        self.switch()
        item = bar.item()

        self.assertIn((20, 20), [(width, height) for width, height, _ in item.look("IconPixmap")])
        self.assertEqual(list(item.entries()), ENTRIES)
        self.switch()
        wait_for("the item to go", lambda: not item.is_there())
        self.switch()
        item = bar.item(1)
        item.press(names.NEW_LECTURE)
        self.hands.window(names.NEW_LECTURE_WINDOW)
        self.hands.press(names.NEW_LECTURE_WINDOW, "Escape")
        self.hands.window_goes(names.NEW_LECTURE_WINDOW)
        item.press("Preferences…")
        self.hands.click(names.PREFERENCES_WINDOW, names.DONE)
        self.hands.press(names.MAIN_WINDOW, "ctrl+w")
        self.hands.window_goes(names.MAIN_WINDOW)
        item.press("Open Tarvelo")
        self.hands.window(names.MAIN_WINDOW)
        self.hands.press(names.MAIN_WINDOW, "ctrl+w")
        self.hands.window_goes(names.MAIN_WINDOW)
        item.activate()
        self.hands.window(names.MAIN_WINDOW)
        item.press("Quit")
        self.program.expect_end()
        self.program.expect_silence()

    def test_a_bar_that_comes_later_or_again_on_the_session_bus_gets_the_item(self):
        self.start()
        self.switch()

        first = Bar(self.folder, self.children, "later")
        first.begin_to_show()
        self.assertEqual(list(first.item().entries()), ENTRIES)
        first.leave()
        second = Bar(self.folder, self.children)

        self.assertEqual(list(second.item().entries()), ENTRIES)
        self.program.quit()
        self.program.expect_silence()

    def test_an_item_in_a_bar_that_embeds_windows(self):
        self.start()
        self.switch()
        self.assertEqual(self.embedded(), [])

        bar = self.children.start("trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24")
        wait_for("the item in the bar that came later", self.embedded)
        self.switch()
        wait_for("the item to leave the bar", lambda: not self.embedded())
        self.switch()
        wait_for("the item in the bar again", self.embedded)

        bar.terminate()
        bar.wait()
        self.children.start("trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24")
        wait_for("the item in the next bar", self.embedded)
        self.program.quit()
        self.program.expect_silence()


if __name__ == "__main__":
    unittest.main()
