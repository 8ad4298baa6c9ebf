"""The main job, from outside: record a lecture, save it, find it under its day, play, change and delete it."""

import datetime
import os

from . import names, proof, sound
from .program import Program
from .waiting import Failed, wait_for

SUBJECT = "Geometric Optics"
NEW_SUBJECT = "Wave Optics"
NOTES = "Lenses bend light. Ask about Fermat."
NEW_NOTES = "Light is a wave."
SLOW = 0.5
# In seconds: longer than the lecture plays.
LONG = 120
BEFORE = "Good morning. Today we follow a ray of light through a lens, and we ask why it bends."
PAUSED = "Is there any chalk left in this room? No, then somebody has to fetch some."
AFTER = "Light takes the path that needs the least time. This is the principle of Fermat."


class Journey:
    """One program in a desktop with a sound server; steps are told one a line."""

    def __init__(self, program, desktop, server, tell=lambda line: print(line, flush=True), keeps=False):
        self._program = Program(program, desktop)
        self._hands = self._program.hands
        self._desktop = desktop
        self._server = server
        self._tell = tell
        self._keeps = keeps

    def run(self):
        try:
            before, paused, after = self._prepare_speech()
            day = datetime.date.today().isoformat()
            self._start("first")
            self._record(before, paused, after)
            row = self._find_row(day)
            self._expect_privacy()
            agreements = proof.audio(row, [before, after], [paused])
            self._tell("Audio: what was spoken is in it, correlation "
                       + " and ".join(f"{agreement:.4f}" for agreement in agreements)
                       + "; what was spoken during the pause is not")
            self._quit()
            self._start("second")
            self._hands.row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)
            self._shot("after-restart", "After a restart the lecture stands under its day")
            self._play(row)
            self._edit(day)
            self._quit()
            self._start("third")
            self._look(NEW_SUBJECT)
            row = proof.lecture(self._desktop.data, NEW_SUBJECT, NEW_NOTES, day)
            if not self._keeps:
                self._delete(row)
            self._quit()
            self._expect_privacy()
            self._program.expect_silence()
            self._tell("Tarvelo wrote nothing to its output")
        except Failed:
            self._desktop.screenshot("failed")
            with open(os.path.join(self._desktop.folder, "failed.txt"), "w", encoding="utf-8") as file:
                file.write(self._hands.describe() + "\n")
            raise
        finally:
            self._program.stop()

    def record_one(self, filming):
        """Only that, between start and quit; `filming` is entered for it."""
        before, paused, after = self._prepare_speech()
        try:
            self._start("first")
            with filming:
                self._record(before, paused, after)
                self._hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)
                self._shot("recorded", "The row says what can be done with it")
            self._quit()
        finally:
            self._program.stop()

    def _prepare_speech(self):
        paths = []
        for name, sentence in (("before", BEFORE), ("paused", PAUSED), ("after", AFTER)):
            path = os.path.join(self._desktop.folder, f"spoken-{name}.wav")
            sound.write_speech(sentence, path)
            paths.append(path)
        self._tell("Three sentences are ready to be spoken into the microphone")
        return paths

    def _start(self, which):
        self._program.start(which)
        self._shot(f"{which}-start", f"Tarvelo has started ({which} time) and shows today")

    def _record(self, before, paused, after):
        window = names.NEW_LECTURE_WINDOW
        self._hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        self._hands.window(window)
        self._hands.control(window, names.START_RECORDING)
        self._shot("new-lecture", "The window for a new lecture is open")

        self._hands.click(window, names.START_RECORDING)
        self._hands.control(window, names.PAUSE)
        self._tell("Recording has started")
        self._hands.write(window, names.SUBJECT, SUBJECT)
        self._hands.write(window, names.NOTES, NOTES)
        self._tell("Subject and notes are typed")
        self._server.speak(before)
        self._shot("recording", "The first sentence has been spoken")

        self._hands.click(window, names.PAUSE)
        self._hands.control(window, names.RESUME)
        self._server.speak(paused)
        self._shot("paused", "Recording pauses; the second sentence was spoken meanwhile")

        self._hands.click(window, names.RESUME)
        self._hands.control(window, names.PAUSE)
        self._server.speak(after)
        self._tell("Recording goes on; the third sentence has been spoken")

        self._hands.click(window, names.STOP)
        self._hands.control(window, names.PLAY)
        self._shot("finished", "Recording has stopped")
        self._hands.click(window, names.DONE)
        self._hands.window_goes(window)
        self._hands.row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)
        self._shot("saved", "The lecture is saved and stands in today's list")

    def _expect_privacy(self):
        count = proof.private(*self._desktop.program_folders())
        self._tell(f"Whatever the user's umask: {count} files and folders of Tarvelo are for their user alone")

    def _find_row(self, day):
        row = proof.lecture(self._desktop.data, SUBJECT, NOTES, day)
        self._tell(f"Database: {row['subject']!r} on {row['recordingDate']}, {row['recordDuration']}, "
                   f"{os.path.basename(row['audioFileFullPath'])}")
        return row

    def _play(self, row):
        heard = os.path.join(self._desktop.folder, "heard.raw")
        with self._server.listen(heard):
            self._hands.click(names.MAIN_WINDOW, names.PLAY)
            self._hands.window(SUBJECT)
            self._hands.control(SUBJECT, names.PAUSE)
            self._shot("playing", "The lecture plays in a window of its own")
            self._hands.control(SUBJECT, names.PLAY, seconds=LONG)
        agreement = proof.played(row, sound.heard(heard))
        self._shot("played", f"What came out of the speaker is the recording, correlation {agreement:.4f}")

        with self._server.listen(heard):
            # The choice of a speed plays, but leaves the buttons as they are.
            self._hands.click(SUBJECT, names.HALF_SPEED)
            self._hands.click(SUBJECT, names.PLAY)
            self._hands.control(SUBJECT, names.PAUSE)
            self._shot("playing-slowly", "It plays again at half the speed")
            self._hands.control(SUBJECT, names.PLAY, seconds=LONG)
        length, agreement = proof.played_slowly(row, sound.heard(heard), SLOW)
        self._tell(f"What was heard is {length:.3f} times as long as the recording and follows it, correlation {agreement:.4f}")
        self._hands.press(SUBJECT, "Escape")
        self._hands.window_goes(SUBJECT)

    def _edit(self, day):
        self._hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)
        self._hands.click(names.MAIN_WINDOW, names.EDIT)
        self._hands.write(names.EDIT_WINDOW, names.SUBJECT, NEW_SUBJECT)
        self._hands.write(names.EDIT_WINDOW, names.NOTES, NEW_NOTES)
        self._shot("editing", "Subject and notes are changed")
        self._hands.click(names.EDIT_WINDOW, names.DONE)
        self._hands.window_goes(names.EDIT_WINDOW)
        self._hands.row(names.MAIN_WINDOW, names.LECTURES, NEW_SUBJECT)
        proof.lecture(self._desktop.data, NEW_SUBJECT, NEW_NOTES, day)
        self._tell("The change is saved and stands in today's list")

    def _look(self, subject):
        self._hands.row(names.MAIN_WINDOW, names.LECTURES, subject)
        self._tell("After a restart the change is there")
        self._hands.open_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self._hands.point_at(names.MAIN_WINDOW, names.DONE)
        self._shot("lecture-view", "A double click shows the lecture beside the list")

    def _delete(self, row):
        self._expect_badge(names.HAS_LECTURES)
        self._hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, NEW_SUBJECT)
        self._hands.click(names.MAIN_WINDOW, names.DELETE)
        self._hands.control(names.CONFIRM_DELETE, names.YES)
        self._shot("delete", "Deleting is asked about first")
        self._hands.click(names.CONFIRM_DELETE, names.YES)
        self._hands.row_goes(names.MAIN_WINDOW, names.LECTURES, NEW_SUBJECT)
        self._hands.control(names.MAIN_WINDOW, names.NO_LECTURES)
        self._expect_badge("")
        proof.deleted(self._desktop.data, row)
        self._shot("deleted", "The lecture, its sound and the badge of its day are gone")

    def _expect_badge(self, described):
        today = f"{datetime.date.today():%A, %B} {datetime.date.today().day}, {datetime.date.today().year}"
        wait_for(f"the badge of {today!r} to be {described!r}",
                 lambda: self._hands.description(names.MAIN_WINDOW, today) == described)

    def _quit(self):
        self._program.quit()
        self._tell("Tarvelo has quit")

    def _shot(self, name, line):
        self._desktop.screenshot(name)
        self._tell(f"{line} (screenshots/{name}.png)")
