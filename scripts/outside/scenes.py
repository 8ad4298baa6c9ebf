"""The scenes of the guide: a student's month, and the program's windows as they stand before it."""

import datetime
import os
import subprocess
import tempfile

from . import home, names, sound
from .hands import Atspi, Hands
from .program import Program
from .waiting import wait_for

# Points of the program are two pixels on the screen of the pictures.
SCALE = 2
CALENDAR = 452  # the width of the calendar, in points
# What is not drawn outside of round corners is black in a picture.
WHITE_CORNERS = ("-bordercolor", "black", "-border", "1", "-fuzz", "25%", "-fill", "white", "-draw", "color 0,0 floodfill",
                 "-fuzz", "0", "-shave", "1x1")
# Where nothing is that the mouse could be on.
OUTSIDE = ("2900", "1450")
OPTICS = ("Geometric optics", "Lenses bend light. Ask about Fermat.\n\n00:12:40\nSnell: n1 sin a = n2 sin b\n\n"
          "00:31:05\nTotal reflection, fibres\n\n01:02:18\nWorksheet 5, due Monday", 5232)
TODAY = [("History of science", "Kepler and the ellipse", 2691),
         ("Analysis I", "Uniform convergence, exercise 7 until Monday", 5465),
         OPTICS]
EARLIER = {0: [("Linear algebra", "Eigenvalues, the theorem of Cayley and Hamilton", 5340),
               ("Analysis I", "Series of functions", 5410)],
           1: [("Geometric optics", "Mirrors", 5188), ("Programming", "Recursion, and when not to", 4920)],
           3: [("Linear algebra", "Dual spaces. Exercise class on Friday", 5365),
               ("History of science", "From Copernicus to Brahe", 2744)]}
SPOKEN = "Good morning. Today we look at series of functions, and at what it means that they converge uniformly."


class ScaledHands(Hands):
    """The accessibility bus tells points, the mouse goes by pixels."""

    def _resting_place(self, thing, name):
        x, y = super()._resting_place(thing, name)
        return x * SCALE, y * SCALE

    def expect_length(self, window, ask=Atspi.Value.get_maximum_value):
        """The recording has been read, or by another question, it has begun to play: the times are there."""
        slider = self.control(window, names.PLACE)
        wait_for("the length of the recording", lambda: ask(slider) > 0)

    def expect_text(self, window, name, part):
        field = self.control(window, name, Atspi.StateType.EDITABLE)
        wait_for(f"{part!r} in {name!r}", lambda: part in self._text(field))


class Scenes:
    """Takes all pictures, in one run of the program."""

    def __init__(self, program, desktop, server, pictures):
        self._desktop = desktop
        self._server = server
        self._pictures = pictures
        self._program = Program(program, desktop)
        self._program.hands = self._hands = ScaledHands(names.APPLICATION)

    def run(self, today):
        self._fill(today)
        try:
            self._program.start("guide")
            self._main()
            self._lecture()
            self._menus()
            self._new_lecture()
        finally:
            self._program.stop()

    # -- The month

    def _fill(self, today):
        self._long = home.recording(self._desktop.data, "Audio - optics.m4a")
        days = [(today.replace(day=day), EARLIER.get(today.replace(day=day).weekday(), [])) for day in range(1, today.day)]
        with home.made(self._desktop.data) as database:
            subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-f", "lavfi", "-i",
                            f"sine=frequency=220:sample_rate=16000:duration={OPTICS[2]}", "-c:a", "aac", "-b:a", "16k",
                            self._long], check=True)
            for day, lectures in [*days, (today, TODAY)]:
                for subject, notes, seconds in lectures:
                    self._add(database, day, subject, notes, seconds)

    def _add(self, database, day, subject, notes, seconds):
        length = str(datetime.timedelta(seconds=seconds)).zfill(8)
        database.execute("INSERT INTO audioData (subject, course, notes, recordingDate, lectureStartTime, lectureEndTime,"
                         " audioFileFullPath, recordDuration) VALUES (?, '', ?, ?, '', '', ?, ?)",
                         (subject, notes, day.isoformat(), self._long, length))

    # -- The windows

    def _main(self):
        self._hands.row(names.MAIN_WINDOW, names.LECTURES, self._shown(OPTICS))
        self._rest()
        self._window("main", names.MAIN_WINDOW)
        self._hands.click(names.MAIN_WINDOW, "All List")
        self._hands.row(names.MAIN_WINDOW, names.LECTURES, self._shown(EARLIER[0][0]))
        self._rest()
        self._window("all-list", names.MAIN_WINDOW)
        self._hands.press(names.MAIN_WINDOW, "ctrl+l")
        self._hands.click(names.MAIN_WINDOW, f"{datetime.date.today():%A, %B} {datetime.date.today().day}, {datetime.date.today().year}")
        self._hands.row(names.MAIN_WINDOW, names.LECTURES, self._shown(OPTICS))

    def _lecture(self):
        subject = self._shown(OPTICS)
        self._hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self._hands.control(names.MAIN_WINDOW, names.PLAY)
        self._around("row", self._hands.row(names.MAIN_WINDOW, names.LECTURES, subject), 0, 0, 0, 0)
        self._hands.open_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self._hands.point_at(names.MAIN_WINDOW, names.DONE)
        self._hands.expect_length(names.MAIN_WINDOW)
        self._rest()
        self._window("beside", names.MAIN_WINDOW, "-gravity", "west", "-chop", f"{CALENDAR * SCALE}x0", "+repage")

        self._hands.click(names.MAIN_WINDOW, "Show Lecture")
        self._hands.control(names.MAIN_WINDOW, "Back to List")
        self._rest()
        self._window("alone", names.MAIN_WINDOW)
        self._hands.click(names.MAIN_WINDOW, "Back to List")
        self._hands.click(names.MAIN_WINDOW, names.CLOSE)
        self._hands.press(names.MAIN_WINDOW, "F6")
        self._play(subject)
        self._edit(subject)
        self._hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self._hands.click(names.MAIN_WINDOW, names.DELETE)
        self._hands.control(names.CONFIRM_DELETE, names.YES)
        self._around("delete", self._hands.row(names.MAIN_WINDOW, names.LECTURES, subject), 0, 0, 115, 140)
        self._xdotool("key", "Escape")
        self._hands.window_goes(names.CONFIRM_DELETE)

    def _play(self, subject):
        self._hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self._hands.click(names.MAIN_WINDOW, names.PLAY)
        self._hands.control(subject, names.PAUSE)
        self._hands.click(subject, names.HALF_SPEED)
        self._hands.expect_length(subject, Atspi.Value.get_current_value)
        self._hands.press(subject, "F8")
        self._rest()
        self._window("playing", subject, *WHITE_CORNERS)
        self._hands.press(subject, "Escape")
        self._hands.window_goes(subject)

    def _edit(self, subject):
        self._hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self._hands.click(names.MAIN_WINDOW, names.EDIT)
        self._hands.window(names.EDIT_WINDOW)
        self._rest()
        self._window("edit", names.EDIT_WINDOW)
        self._hands.press(names.EDIT_WINDOW, "Escape")
        self._hands.window_goes(names.EDIT_WINDOW)

    def _menus(self):
        subject = self._shown(OPTICS)
        box = self._hands.row(names.MAIN_WINDOW, names.LECTURES, subject).get_extents(0)
        x, y = (box.x + box.width // 2) * SCALE, (box.y + box.height // 2) * SCALE
        self._xdotool("mousemove", str(x), str(y), "click", "3", "mousemove", *OUTSIDE)
        self._around("row-menu", self._hands.row(names.MAIN_WINDOW, names.LECTURES, subject), 0, 0, 0, 140)
        self._xdotool("key", "Escape")
        self._hands.press(names.MAIN_WINDOW, "F10")
        self._xdotool("key", *["Up"] * 3, "Right")
        self._around("menu", self._hands.control(names.MAIN_WINDOW, "Main Menu"), 10, 8, 480, 300)
        self._xdotool("key", "Escape", "Escape")
        self._hands.press(names.MAIN_WINDOW, "ctrl+comma")
        self._hands.window("Preferences")
        self._rest()
        self._window("preferences", "Preferences")
        self._hands.press("Preferences", "Escape")
        self._hands.window_goes("Preferences")

    def _new_lecture(self):
        window = names.NEW_LECTURE_WINDOW
        self._hands.press(names.MAIN_WINDOW, "ctrl+n")
        self._hands.window(window)
        self._hands.click(window, names.START_RECORDING)
        self._hands.control(window, names.PAUSE)
        self._hands.write(window, names.SUBJECT, "Analysis I")
        self._hands.write(window, names.NOTES, "Uniform convergence: one N for all x")
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "spoken.wav")
            sound.write_speech(SPOKEN, path)
            self._server.speak(path)
        self._xdotool("key", "ctrl+t")
        self._hands.expect_text(window, names.NOTES, "00:00:")
        self._xdotool("type", "--delay", "20", "Example with x to the n, see worksheet 6")
        self._window("recording", window)

    # -- Pictures

    @staticmethod
    def _shown(lecture):
        """Subjects are shown with capital letters."""
        return lecture[0].title() if not lecture[0].endswith(" I") else lecture[0]

    def _rest(self):
        """The mouse leaves, and so does what shows only under it."""
        self._xdotool("mousemove", *OUTSIDE)
        self._settle()

    @staticmethod
    def _settle():
        """Two pictures of the screen, one after the other, that are the same."""
        seen = []

        def look():
            seen.append(subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], check=True,
                                       capture_output=True, stdin=subprocess.DEVNULL).stdout)
            return len(seen) > 1 and seen.pop(0) == seen[0]

        wait_for("the screen to stand still", look)

    def _window(self, name, title, *how):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], capture_output=True,
                               text=True, check=True).stdout.split()
        self._take(name, found[-1], *how)

    def _around(self, name, thing, left, above, right, below):
        """A control, and so many points more on each side."""
        self._settle()
        box = thing.get_extents(0)
        area = (box.width + left + right, box.height + above + below, box.x - left, box.y - above)
        self._take(name, "root", "-crop", "{}x{}+{}+{}".format(*(SCALE * part for part in area)), "+repage")

    @staticmethod
    def _xdotool(*command):
        subprocess.run(["xdotool", *command], check=True, stdin=subprocess.DEVNULL)

    def _take(self, name, window, *how):
        """With a thin frame, since windows are white as paper is. Few colours keep the files small."""
        taken = subprocess.run(["import", "-window", window, "miff:-"], check=True, stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE).stdout
        path = os.path.join(self._pictures, f"{name}.png")
        subprocess.run(["convert", "miff:-", *how, "-bordercolor", "#c4c4cc", "-border", "2", "+dither", "-colors", "128",
                        "-strip", "-define", "png:exclude-chunks=date,time", f"PNG8:{path}"], check=True, input=taken)
