"""What was typed into lectures, and whether it is on a disk."""

import collections
import json
import os

from outside.waiting import Failed

NOTES_SAFE = 5.0  # seconds after which what was typed is safe

Entry = collections.namedtuple("Entry", "seen safe subject notes")
Text = collections.namedtuple("Text", "subject notes")


class Typed:
    """Of one lecture: what was seen to stand in it, and from when on that has to be on the disk, whatever becomes of the program."""

    def __init__(self):
        self._entries = []

    def saw(self, moment, subject, notes, safe_after=NOTES_SAFE):
        self._entries.append(Entry(moment, moment + safe_after, subject, notes))

    def is_killed(self, moment):
        """What was not safe by then may never be."""
        self._entries = [entry for entry in self._entries if entry.safe <= moment]

    def lost(self, moment, texts):
        """The age of the oldest that is in none of the texts; fails when it had to be in one. What comes later has all notes from before in it."""
        safe = [entry for entry in self._entries if entry.safe <= moment]
        known = [entry for entry in self._entries if entry.seen <= moment]
        subjects = {entry.subject for entry in self._entries[max(0, len(safe) - 1):]}
        if safe and not any(text.subject in subjects and text.notes.startswith(safe[-1].notes) for text in texts):
            found = [text for text in texts if text.subject in {entry.subject for entry in known}]
            raise Failed(f"{safe[-1].subject!r} has lost its notes {safe[-1].notes!r}, {moment - safe[-1].seen:.2f} s after they were seen: {found}")
        return max((moment - entry.seen for entry in known if not _is_in(entry, texts, {one.subject for one in self._entries})), default=0.0)


def _is_in(entry, texts, subjects):
    return any(text.subject in subjects and text.notes.startswith(entry.notes) for text in texts)


def texts_of_journals(home):
    """What is hidden the program does not read."""
    paths = [os.path.join(root, name) for root, _, found in os.walk(home) for name in found if "journal" in name and name[0] != "."]
    return [text for text in map(_text_of, paths) if text]


def _text_of(path):
    with open(path, "rb") as file:
        content = file.read().rstrip()
    try:
        journal = json.loads(content)
        return Text(journal["subject"], journal["notes"])
    except (ValueError, KeyError, TypeError):  # another kind of journal, or what a cut has left of one
        return None
