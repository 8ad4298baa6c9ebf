"""What has to be true of a window for who cannot see it, or has no mouse. It looks at a copy of what the bus shows."""

import dataclasses
import re

WINDOWS = {"frame", "dialog", "alert", "window"}
CONTROLS = {"push button", "toggle button", "check box", "radio button", "slider", "spin button", "text", "entry", "combo box",
            "list", "list item", "table cell", "menu item", "check menu item", "radio menu item", "link", "progress bar"}
# Those that only show something.
NOT_FOR_THE_KEYBOARD = {"progress bar"}
# Roles of things of which nobody knows what they are.
PLACES = {"filler", "panel", "unknown", "invalid", "grouping", "separator", "frame"}
OBJECT_NAME = re.compile(r"^[a-z]+[A-Z0-9]\w*$|_")


@dataclasses.dataclass
class Node:
    """A thing that shows. `place` is its left upper corner in the window."""

    role: str
    name: str
    sensitive: bool = True
    focusable: bool = False
    focused: bool = False
    place: tuple = (0, 0)
    children: list = dataclasses.field(default_factory=list)

    def below(self):
        for child in self.children:
            yield child
            yield from child.below()

    def row(self, inside=None):
        """With the list item in which each thing stands."""
        for child in self.children:
            yield child, inside
            yield from child.row(child if child.role == "list item" else inside)


def faults(window):
    """Of one window: a sentence for everything that who listens would not understand."""
    found = []
    if window.role not in WINDOWS:
        found.append(f"the window {window.name!r} is a {window.role}")
    for thing in [window, *window.below()]:
        if thing.role in CONTROLS and not thing.name.strip():
            found.append(f"a {thing.role} at {thing.place} in {window.name!r} has no name")
        if thing.role in CONTROLS - {"text", "list item"} and OBJECT_NAME.search(thing.name):
            found.append(f"a {thing.role} in {window.name!r} has the name of an object: {thing.name!r}")
        if thing.focusable and thing is not window and thing.role in PLACES:
            found.append(f"the keyboard comes to a {thing.role} {thing.name!r} in {window.name!r}")
        found += _twins(thing, window)
    return found


def _twins(parent, window):
    seen = set()
    for child in parent.children:
        kind = (child.role, child.name)
        if child.role in CONTROLS - {"list item"} and kind in seen:
            yield f"two of {child.role} {child.name!r} stand side by side in {window.name!r}"
        seen.add(kind)


def identity(thing, inside=None):
    """What tells a control from others. Every row has the buttons of every other row."""
    if inside is not None:
        return thing.role, thing.name, inside.role
    return thing.role, thing.name, thing.place


def controls(window):
    """The identities of what the keyboard must come to."""
    return {identity(thing, inside) for thing, inside in window.row()
            if thing.role in CONTROLS - NOT_FOR_THE_KEYBOARD and thing.sensitive}


def unreached(window, visited):
    return sorted(f"the keyboard does not come to the {role} {name!r} of {window.name!r}"
                  for role, name, place in controls(window) - set(visited))


def focused(window):
    """The identity of the innermost thing that says it has the keyboard."""
    found = None
    for thing, inside in window.row():
        if thing.focused:
            found = identity(thing, inside)
    return found
