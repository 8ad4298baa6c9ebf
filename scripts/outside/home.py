"""The program's home as an earlier run of it left it."""

import contextlib
import os
import sqlite3

TABLE = """CREATE TABLE audioData (ID INTEGER PRIMARY KEY, subject TEXT, course TEXT, notes TEXT, recordingDate DATETIME,
           lectureStartTime TEXT, lectureEndTime TEXT, audioFileFullPath TEXT, recordDuration TEXT)"""


def recording(data, name):
    """The path of a recording as the program stores it: with two slashes before the name."""
    return os.path.join(data, "Tarvelo", "Audio") + "//" + name


@contextlib.contextmanager
def made(data):
    """Makes the home, with a place for recordings. Gives its database, in which the table has no lectures yet."""
    home = os.path.join(data, "Tarvelo")
    os.makedirs(os.path.join(home, "Audio"))
    with contextlib.closing(sqlite3.connect(os.path.join(home, "TarveloInfo.db"))) as database:
        database.execute(TABLE)
        yield database
        database.commit()
