"""The main job, from outside: record a lecture, save it, and find it under its day, also after a restart."""

import datetime
import os

from . import names, proof, sound
from .program import Program
from .waiting import Failed

SUBJECT = "Geometric Optics"
NOTES = "Lenses bend light. Ask about Fermat."
BEFORE = "Good morning. Today we follow a ray of light through a lens, and we ask why it bends."
PAUSED = "Is there any chalk left in this room? No, then somebody has to fetch some."
AFTER = "Light takes the path that needs the least time. This is the principle of Fermat."


class Journey:
    """One program in a desktop with a sound server; steps are told one a line."""

    def __init__(self, program, desktop, server, tell=lambda line: print(line, flush=True)):
        self._program = Program(program, desktop)
        self._hands = self._program.hands
        self._desktop = desktop
        self._server = server
        self._tell = tell

    def run(self):
        try:
            before, paused, after = self._prepare_speech()
            day = datetime.date.today().isoformat()
            self._start("first")
            self._record(before, paused, after)
            row = self._find_row(day)
            agreements = proof.audio(row, [before, after], [paused])
            self._tell("Audio: what was spoken is in it, correlation "
                       + " and ".join(f"{agreement:.4f}" for agreement in agreements)
                       + "; what was spoken during the pause is not")
            self._quit()
            self._start("second")
            self._hands.row(names.MAIN_WINDOW, names.LECTURES, SUBJECT)
            self._shot("after-restart", "After a restart the lecture stands under its day")
            self._quit()
            self._program.expect_silence()
            self._tell("Tarvelo wrote nothing to its output")
        except Failed:
            self._desktop.screenshot("failed")
            with open(os.path.join(self._desktop.folder, "failed.txt"), "w", encoding="utf-8") as file:
                file.write(self._hands.describe() + "\n")
            raise
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

    def _find_row(self, day):
        row = proof.lecture(self._desktop.data, SUBJECT, NOTES, day)
        self._tell(f"Database: {row['subject']!r} on {row['recordingDate']}, {row['recordDuration']}, "
                   f"{os.path.basename(row['audioFileFullPath'])}")
        return row

    def _quit(self):
        self._program.quit()
        self._tell("Tarvelo has quit")

    def _shot(self, name, line):
        self._desktop.screenshot(name)
        self._tell(f"{line} (screenshots/{name}.png)")
