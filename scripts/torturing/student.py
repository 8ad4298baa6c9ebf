"""The student without a screen (tests/torture/Student.cpp), and what stands in the folder afterwards."""

import collections
import os
import shutil
import sqlite3
import subprocess
import tempfile

import numpy

from outside import sound
from outside.waiting import Failed

ENVIRONMENT = {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_ENABLE_HIGHDPI_SCALING": "0"}


# A row of the table.
Lecture = collections.namedtuple("Lecture", "subject notes day path duration")
COLUMNS = "subject, notes, recordingDate, audioFileFullPath, recordDuration"


NOTHING = numpy.zeros(0)  # of sound


class Ended(Failed):
    """It was not meant to. `said` are the lines that it had said by then."""

    def __init__(self, message, said):
        super().__init__(message)
        self.said = said


class Student:
    """Works in one folder."""

    def __init__(self, tools, folder):
        self._command = [tools.built("tests/torture/Student"), folder]
        self._environment = {"PATH": os.environ["PATH"], "HOME": folder, "XDG_RUNTIME_DIR": tools.folder, **ENVIRONMENT}
        self.home = os.path.join(folder, "Tarvelo")

    def start(self, *tasks, **environment):
        return subprocess.Popen(self._command + list(tasks), env=self._environment | environment, text=True,
                                stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def do(self, *tasks, **environment):
        """Gives the seconds that the windows said were recorded, 0 without a recording."""
        return self.end(self.start(*tasks, **environment))

    def told(self, *tasks):
        """Gives all that was said meanwhile, in lines."""
        return self._said(self.start(*tasks))

    def end(self, process, words=""):
        return recorded_of(self._said(process, words))

    @staticmethod
    def _said(process, words=""):
        said, errors = process.communicate(words, timeout=600)
        if process.returncode != 0 or errors:
            raise Ended(f"it ended with {process.returncode} and said {errors.strip()[:300]!r}", said.splitlines())
        return said.splitlines()


def recorded_of(said):
    """The seconds that the windows showed last, 0 without a recording."""
    return next((float(line.split()[1]) for line in reversed(said) if line.startswith("recorded")), 0.0)


def rows_of(home):
    """{subject: path} of every row."""
    return {lecture.subject: lecture.path for lecture in lectures_of(home)}


def lectures_of(home):
    """Every row; fails when the database is damaged."""
    return _lectures_in(os.path.join(home, "TarveloInfo.db"))


def copied_lectures_of(home):
    """The same of all copies."""
    folder = os.path.join(home, "Backups")
    names = sorted(os.listdir(folder)) if os.path.isdir(folder) else []
    return [lecture for name in names if name.endswith(".db") for lecture in _lectures_in(os.path.join(folder, name))]


def _lectures_in(path):
    """Who looks takes half a change back. The program is to do that itself: only a copy is looked at."""
    if not os.path.exists(path) or os.path.getsize(path) == 0 and not os.path.exists(path + "-journal"):
        return []
    with tempfile.TemporaryDirectory() as folder:
        looked_at = os.path.join(folder, os.path.basename(path))
        for ending in ("", "-journal"):
            if os.path.exists(path + ending):
                shutil.copyfile(path + ending, looked_at + ending)
        return _lectures_of_file(looked_at)


def _lectures_of_file(path):
    database = sqlite3.connect(path)
    try:
        verdict = database.execute("PRAGMA integrity_check").fetchone()[0]
        if verdict != "ok":
            raise Failed(f"{os.path.basename(path)} is damaged: {verdict}")
        there = database.execute("SELECT count(*) FROM sqlite_master WHERE name = 'audioData'").fetchone()[0]
        return [Lecture(*row) for row in database.execute(f"SELECT {COLUMNS} FROM audioData")] if there else []
    except sqlite3.Error as error:
        raise Failed(f"{os.path.basename(path)}: {error}") from None
    finally:
        database.close()


def sounds_of(home):
    """The paths of all that was recorded, finished or not."""
    return [os.path.join(root, name) for root, _, found in os.walk(home) for name in found
            if name.endswith((".m4a", ".aac")) and not name.startswith(".")]


def decoded(path):
    """As far as it can be: behind a tear there may be anything."""
    done = subprocess.run(["ffmpeg", "-nostdin", "-v", "quiet", "-i", path, "-f", "f32le", "-ac", "1", "-ar", str(sound.RATE), "-"],
                          check=False, capture_output=True)
    return numpy.frombuffer(done.stdout, dtype=numpy.float32).astype(numpy.float64)


def content(path):
    with open(path, "rb") as file:
        return file.read()


def renew(folder, template):
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(template, folder)
