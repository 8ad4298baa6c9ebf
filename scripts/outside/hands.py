"""Eyes and hands: what the accessibility bus shows, and the mouse and keyboard that act on it."""

import subprocess

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (the version has to be named first)

from .waiting import Failed, wait_for  # noqa: E402


def _state(thing, state):
    return thing.get_state_set().contains(state)


def _children(thing):
    """Of nothing there are none: a window may go while it is looked into."""
    if thing is None:
        return []
    return [child for child in map(thing.get_child_at_index, range(thing.get_child_count())) if child]


def _below(thing):
    for child in _children(thing):
        yield child
        yield from _below(child)


def _quietly(ask):
    """What vanishes while it is looked at is not there."""
    try:
        return ask()
    except GLib.Error:
        return None


class Hands:
    """One running program. Every finding waits until what is sought is there and shows."""

    def __init__(self, application):
        self._application = application
        self._process = None
        self._desktop = Atspi.get_desktop(0)
        self._desktop.set_cache_mask(Atspi.Cache.NONE)

    def watch(self, process):
        """From now on a search fails at once when this process has ended."""
        self._process = process

    def window(self, title):
        return wait_for(f"the window {title!r}", lambda: _quietly(lambda: self._window_now(title)))

    def window_goes(self, title):
        wait_for(f"the window {title!r} to go", lambda: not _quietly(lambda: self._window_now(title)))

    def control(self, window, name, ready=Atspi.StateType.SENSITIVE, seconds=30):
        return wait_for(f"{name!r} in the window {window!r}",
                        lambda: _quietly(lambda: self._control_now(self._window_now(window), name, ready)), seconds)

    def description(self, window, name):
        return _quietly(self.control(window, name).get_description)

    def row(self, window, table, subject):
        """The row of a lecture in the table, known by the subject that it begins with."""
        return wait_for(f"{subject!r} in {table!r}", lambda: _quietly(lambda: self._row_now(window, table, subject)))

    def row_goes(self, window, table, subject):
        wait_for(f"{subject!r} to go", lambda: not _quietly(lambda: self._row_now(window, table, subject)))

    def click(self, window, name, ready=Atspi.StateType.SENSITIVE):
        self._click_on(self.control(window, name, ready), name)

    def point_at(self, window, name):
        self._point_at(self.control(window, name), name)

    def point_at_row(self, window, table, subject):
        self._point_at(self.row(window, table, subject), subject)

    def open_row(self, window, table, subject):
        self._click_on(self.row(window, table, subject), subject, "--repeat", "2", "--delay", "60")

    def choose(self, window, table, subject, keys):
        """Opens the menu of a row with the mouse and takes a command with the keys, which the menu hears from then on."""
        x, y = self._resting_place(self.row(window, table, subject), subject)
        # The mouse leaves: over the menu it would choose as well, whenever the menu comes to stand under it.
        self._xdotool("mousemove", str(x), str(y), "click", "3", "mousemove", "0", "0", "key", *keys)

    def write(self, window, name, text):
        """What stood there goes."""
        self.click(window, name, Atspi.StateType.EDITABLE)  # a label may bear the name too
        field = self.control(window, name, Atspi.StateType.FOCUSED)
        self._xdotool("key", "ctrl+a", "key", "Delete")
        self._xdotool("type", "--delay", "20", text)
        wait_for(f"{text!r} in {name!r}", lambda: _quietly(lambda: self._text(field) == text))

    def text(self, window, name):
        """What stands in a field."""
        field = self.control(window, name, Atspi.StateType.EDITABLE)
        return _quietly(lambda: self._text(field)) or ""

    def type(self, text):
        """Where the keyboard is."""
        self._xdotool("type", "--delay", "20", text)

    def press(self, window, keys):
        # The screen may show it a moment later than the accessibility bus tells of it.
        found = wait_for(f"{window!r} on the screen", lambda: subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", f"^{window}$"], capture_output=True, text=True, check=False).stdout.split())
        self._xdotool("windowactivate", "--sync", found[-1], "key", keys)

    def describe(self):
        """Everything that shows, a line each: for a reader who wonders what was not found."""
        def lines(thing, depth):
            if _state(thing, Atspi.StateType.SHOWING) or depth < 1:
                yield "  " * depth + f"{thing.get_role_name()} {thing.get_name()!r}"
                for child in _children(thing):
                    yield from lines(child, depth + 1)

        return _quietly(lambda: "\n".join(lines(self._desktop, -1))) or "the accessibility bus does not answer"

    def _window_now(self, title):
        if self._process and self._process.poll() is not None:
            raise Failed(f"{self._application} has ended by itself with status {self._process.returncode}")
        return next((window for window in self._windows() if window.get_name() == title), None)

    def _windows(self):
        """Those that show."""
        return [window for application in _children(self._desktop) if application.get_name() == self._application
                for window in _children(application) if _state(window, Atspi.StateType.SHOWING)]

    @staticmethod
    def _control_now(window, name, ready):
        for thing in _below(window):
            if thing.get_name() == name and _state(thing, Atspi.StateType.SHOWING) and _state(thing, ready):
                return thing
        return None

    def _row_now(self, window, table, subject):
        for thing in _below(self._window_now(window)):
            if thing.get_name() != table:
                continue
            for part in _below(thing):
                if part.get_name().startswith(subject) and _state(part, Atspi.StateType.SHOWING):
                    return part
        return None

    def _point_at(self, thing, name):
        x, y = self._resting_place(thing, name)
        self._xdotool("mousemove", str(x), str(y))

    def _click_on(self, thing, name, *how):
        self._point_at(thing, name)
        self._xdotool("click", *how, "1")

    @staticmethod
    def _text(field):
        return Atspi.Text.get_text(field, 0, Atspi.Text.get_character_count(field))

    def _resting_place(self, thing, name):
        """The middle of a control, once it has stopped moving: windows slide in."""
        seen = []

        def look():
            box = thing.get_extents(Atspi.CoordType.SCREEN)
            seen.append((box.x, box.y, box.width, box.height))
            return box if len(seen) > 2 and seen[-1] == seen[-2] == seen[-3] and box.width > 0 else None

        box = wait_for(f"{name!r} to stand still", lambda: _quietly(look))
        return box.x + box.width // 2, box.y + box.height // 2

    @staticmethod
    def _xdotool(*command):
        done = subprocess.run(["xdotool", *command], capture_output=True, text=True, check=False, timeout=60)
        if done.returncode != 0:
            raise Failed(f"xdotool {' '.join(command)}: {done.stderr.strip()}")
        return done.stdout
