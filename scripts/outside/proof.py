"""The proof that a lecture was recorded: its row in the database, and the sound in its file."""

import os
import sqlite3
import stat

from . import sound
from .waiting import Failed

# What the coder and its bit rate cost is below this; a gap, a click or a wrong rate is far above.
HEARD = 0.98
# Two different sentences agree by less than half of this.
NOT_HEARD = 0.5
# The loudness of a slowed sentence; other sounds follow by far less.
FOLLOWS = 0.9
COLUMNS = "subject, notes, recordingDate, audioFileFullPath, recordDuration"


def _seconds(duration):
    hours, minutes, seconds = (int(part) for part in duration.split(":"))
    return hours * 3600 + minutes * 60 + seconds


def lecture(data, subject, notes, day, others=0):
    """The newest row of the database, as a dictionary, when it is the lecture that was recorded and there are so many others."""
    path = os.path.join(data, "Tarvelo", "TarveloInfo.db")
    if not os.path.exists(path):
        raise Failed(f"there is no database {path}")
    with sqlite3.connect(f"file:{path}?mode=ro", uri=True) as database:
        database.row_factory = sqlite3.Row
        rows = [dict(row) for row in database.execute(f"SELECT {COLUMNS} FROM audioData ORDER BY rowid")]
    if len(rows) != 1 + others:
        raise Failed(f"the database holds {len(rows)} lectures instead of {1 + others}")
    row = rows[-1]
    for column, wanted in (("subject", subject), ("notes", notes), ("recordingDate", day)):
        if row[column] != wanted:
            raise Failed(f"the row's {column} is {row[column]!r} instead of {wanted!r}")
    folder = os.path.join(data, "Tarvelo", "Audio")
    if os.path.normpath(os.path.dirname(row["audioFileFullPath"])) != folder:
        raise Failed(f"the sound lies at {row['audioFileFullPath']!r}, not in {folder!r}")
    return row


def private(*folders):
    """All that the program left is for its user alone. Gives how many files and folders there are."""
    found = []
    for top in folders:
        for root, _, names in os.walk(top):
            found += [(root, 0o700)] + [(os.path.join(root, name), 0o600) for name in names]
    for path, wanted in found:
        mode = stat.S_IMODE(os.lstat(path).st_mode)
        if mode != wanted:
            raise Failed(f"{path} has the mode {mode:o} instead of {wanted:o}")
    return len(found)


def deleted(data, row):
    """Neither the row nor its file is left."""
    with sqlite3.connect(f"file:{os.path.join(data, 'Tarvelo', 'TarveloInfo.db')}?mode=ro", uri=True) as database:
        count = database.execute("SELECT count(*) FROM audioData").fetchone()[0]
    if count:
        raise Failed(f"the database still holds {count} lectures")
    if os.path.exists(row["audioFileFullPath"]):
        raise Failed(f"the sound is still at {row['audioFileFullPath']!r}")


def played(row, heard):
    """Compares what came out of the speaker with the sound of a row, from its first to its last loud moment."""
    wanted = sound.without_silence(sound.samples(row["audioFileFullPath"]))
    agreement, _ = sound.correlation(heard, wanted)
    if agreement < HEARD:
        raise Failed(f"what was heard agrees with the recording by {agreement:.4f} only")
    return agreement


def played_slowly(row, heard, rate):
    """Gives the length of what was heard, in lengths of the recording, and how its loudness follows it. A machine
    with much to do may have paused now and then: each second is looked for near its place."""
    wanted, slow = (sound.without_silence(samples) for samples in (sound.samples(row["audioFileFullPath"]), heard))
    length = len(slow) / len(wanted) if len(wanted) else 0
    if abs(length * rate - 1) > 0.05:
        raise Failed(f"what was heard is {length:.3f} times as long as the recording, not {1 / rate:.3f} times")
    agreement = sound.following(wanted, slow, rate)
    if agreement < FOLLOWS:
        raise Failed(f"the loudness of what was heard follows the recording by {agreement:.4f} only")
    return length, agreement


def audio(row, spoken, unheard):
    """Compares the sound of a row with the files spoken while it was recorded, in their order, and with the
    ones spoken while it paused. Gives the agreements."""
    whole = sound.samples(row["audioFileFullPath"])
    length = len(whole) / sound.RATE
    if not -0.1 <= length - _seconds(row["recordDuration"]) <= 1.1:
        raise Failed(f"the sound lasts {length:.2f} s, the row says {row['recordDuration']}")

    agreements, end = [], 0.0
    for path in spoken:
        sentence = sound.samples(path)
        agreement, start = sound.correlation(whole, sentence)
        if agreement < HEARD:
            raise Failed(f"{os.path.basename(path)} agrees with the recording by {agreement:.4f} only")
        if start < end:
            raise Failed(f"{os.path.basename(path)} was spoken later than it is heard")
        end = start + len(sentence) / sound.RATE
        agreements.append(agreement)
    for path in unheard:
        agreement, _ = sound.correlation(whole, sound.samples(path))
        if agreement > NOT_HEARD:
            raise Failed(f"{os.path.basename(path)} was spoken during the pause and is in the recording")
    return agreements
