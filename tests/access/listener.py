"""A stand-in for a screen reader: hears from the accessibility bus where the keyboard is and what is said."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (the version has to be named first)

from checker import Node  # noqa: E402
from outside.waiting import wait_for  # noqa: E402

STATE = Atspi.StateType


def node(thing):
    """A copy of the thing and of all below it that shows; None for what has gone meanwhile."""
    try:
        states = thing.get_state_set()
        if not states.contains(STATE.SHOWING):
            return None
        corner = thing.get_position(Atspi.CoordType.WINDOW)
        children = [node(child) for child in map(thing.get_child_at_index, range(thing.get_child_count())) if child]
        return Node(thing.get_role_name(), thing.get_name() or "", states.contains(STATE.SENSITIVE),
                    states.contains(STATE.FOCUSABLE), states.contains(STATE.FOCUSED), (corner.x, corner.y),
                    [child for child in children if child])
    except GLib.Error:
        return None


class Listener:
    """Listens from its making on. What was heard is kept in the order in which it came."""

    def __init__(self, application):
        self._application = application
        self._events = []
        self._heard = []
        self._listener = Atspi.EventListener.new(self._events.append)
        for event in ("object:state-changed:focused", "object:state-changed:showing"):
            self._listener.register(event)
        Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)

    def windows(self):
        """Copies of the windows that show."""
        desktop = Atspi.get_desktop(0)
        programs = [program for program in map(desktop.get_child_at_index, range(desktop.get_child_count()))
                    if program and program.get_name() == self._application]
        found = [node(child) for program in programs
                 for child in map(program.get_child_at_index, range(program.get_child_count())) if child]
        return [window for window in found if window]

    def window(self, name):
        return wait_for(f"the window {name!r}", lambda: next((window for window in self.windows() if window.name == name), None))

    def hear(self):
        """Takes what has come since."""
        while GLib.MainContext.default().iteration(False):
            pass
        while self._events:
            event = self._events.pop(0)
            if event.detail1:
                self._take(event)

    def _take(self, event):
        try:
            source, role = event.source, event.source.get_role_name()
            if event.type.startswith("object:state-changed:focused"):
                inside = self._row_around(source)
                corner = source.get_position(Atspi.CoordType.WINDOW)
                self._heard.append(("focus", (role, source.get_name(), "list item" if inside else (corner.x, corner.y))))
            elif role == "notification":
                self._heard.append(("said", source.get_name()))
        except (GLib.Error, AttributeError):
            pass  # it has gone

    @staticmethod
    def _row_around(thing):
        parent = thing.get_parent()
        while parent and parent.get_role_name() not in ("frame", "application"):
            if parent.get_role_name() == "list item":
                return parent
            parent = parent.get_parent()
        return None

    def focus(self):
        """All places to which the keyboard came since the last time that anybody asked."""
        return self._taken("focus")

    def said(self, words):
        """Waits until the words are said."""
        wait_for(f"{words!r} to be said", lambda: words in self._taken("said"))

    def _taken(self, kind):
        self.hear()
        found = [what for heard, what in self._heard if heard == kind]
        self._heard = [(heard, what) for heard, what in self._heard if heard != kind]
        return found
