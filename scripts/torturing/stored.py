"""What stands in the program's database."""

import os
import sqlite3


def path(data):
    return os.path.join(data, "Tarvelo", "TarveloInfo.db")


def lectures(data):
    """All rows, oldest first, as dictionaries."""
    with sqlite3.connect(f"file:{path(data)}?mode=ro", uri=True) as database:
        database.row_factory = sqlite3.Row
        try:
            return [dict(row) for row in database.execute("SELECT * FROM audioData ORDER BY ID")]
        except sqlite3.OperationalError:  # the table comes with the first lecture
            return []


def count(data):
    """In an instant: who reads for long keeps the program from writing."""
    with sqlite3.connect(f"file:{path(data)}?mode=ro", uri=True) as database:
        try:
            return database.execute("SELECT count(*) FROM audioData").fetchone()[0]
        except sqlite3.OperationalError:
            return 0


def sound_of(data, subject):
    """The path of the lecture's sound; nothing when there is no such lecture yet."""
    return next((row["audioFileFullPath"] for row in lectures(data) if row["subject"] == subject), None)
