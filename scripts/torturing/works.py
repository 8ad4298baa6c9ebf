"""What a student does while a call fails, what was there before, and what has to be there in the end."""

import dataclasses

OPTICS, WAVES, ALGEBRA, LIGHT, KEPLER, NEWTON = "Optics", "Waves", "Algebra", "Light", "Kepler", "Newton"
RECORDED = (f"record:{OPTICS}:1", f"record:{WAVES}:1")
# Something that only the very next statement runs into, and that goes with the table.
FAILING_INSERT = "CREATE TRIGGER failure BEFORE INSERT ON audioData BEGIN SELECT RAISE(ABORT, 'no'); END"
FAILING_NO_MORE = "DROP TRIGGER IF EXISTS failure"
FAILING_UPDATE = "CREATE TRIGGER failure BEFORE UPDATE ON audioData BEGIN SELECT RAISE(ABORT, 'no'); END"
# Once more, without a fault: what waits is stored or offered then, and what is offered is kept.
COMING_BACK = ("later", "keep", "later", "back", "later", "offered")


@dataclasses.dataclass(frozen=True)
class Work:
    name: str
    # Sessions of the student, one process each.
    before: tuple = (RECORDED,)
    spoiled: str = ""  # a statement that makes the next write fail, run on the database that they leave, and lifted before they come back
    # Without "begin" calls are counted from the program's start. Of the whole program, which has no tasks: None.
    tasks: tuple | None = ()
    new: frozenset = frozenset()  # lectures that have to be stored in the end; some of them may be left from before
    gone: frozenset = frozenset()  # that are not wanted any more, and may be there all the same
    changed: tuple = ()  # (subject, new subject)


def _of(*subjects):
    return frozenset(subjects)


WORKS = (
    Work("recording and saving", tasks=("later", "begin", f"record:{KEPLER}:2"), new=_of(KEPLER)),
    Work("pausing and resuming", tasks=("later", "begin", f"interrupt:{KEPLER}:2"), new=_of(KEPLER)),
    Work("saving notes alone", tasks=("later", "begin", f"notes:{KEPLER}"), new=_of(KEPLER)),
    Work("cancelling", tasks=("later", "begin", f"cancel:{KEPLER}:1"), gone=_of(KEPLER)),
    Work("editing", tasks=("later", "begin", f"edit:{OPTICS}:{LIGHT}"), changed=(OPTICS, LIGHT)),
    Work("deleting", tasks=("later", "begin", f"delete:{WAVES}"), gone=_of(WAVES)),
    Work("deleting several at once", before=((*RECORDED, f"notes:{ALGEBRA}", f"notes:{NEWTON}"),),
         tasks=("later", "begin", f"delete:{NEWTON}"), gone=_of(NEWTON)),
    Work("saving what resets the table", spoiled=FAILING_INSERT, tasks=("later", "begin", f"record:{KEPLER}:2"), new=_of(KEPLER)),
    Work("editing what resets the table", spoiled=FAILING_UPDATE, tasks=("later", "begin", f"edit:{OPTICS}:{LIGHT}"), changed=(OPTICS, LIGHT)),
    Work("bringing lectures back", before=((*RECORDED, f"notes:{ALGEBRA}", f"notes:{NEWTON}", f"delete:{NEWTON}"),),
         tasks=("begin", "back"), gone=_of(NEWTON)),
    Work("keeping what was left", before=(RECORDED, (f"leave:{KEPLER}:1",)), tasks=("keep", "later"), new=_of(KEPLER)),
    Work("discarding what was left", before=(RECORDED, (f"leave:{NEWTON}:1",), ("later", f"leave:{KEPLER}:2")),
         tasks=(f"discard:{NEWTON}", "later"), gone=_of(NEWTON), new=_of(KEPLER)),
    Work("storing what was done and not stored", before=(RECORDED, (f"done:{KEPLER}:1",)), tasks=("later",), new=_of(KEPLER)),
    Work("saving what is refused", tasks=("later", "begin", f"refused:{KEPLER}:2"), new=_of(KEPLER)),
    Work("storing what was refused", before=(RECORDED, ("later", f"refused:{KEPLER}:1")), tasks=("later",), new=_of(KEPLER)),
    Work("starting"),
    Work("starting the whole program", tasks=None),
)
