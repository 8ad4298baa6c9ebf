"""The microphone goes and comes back in every way that a desktop knows, while the program records."""

import os
import signal
import subprocess
import time
import wave

import numpy

from outside import names, sound
from outside.desktop import Desktop
from outside.program import Program
from outside.waiting import Failed, wait_for

from . import stored
from .played import BLOCK, SHAPE, murmur
from .result import Result

EVENT = "microphone pulled out, sound server restarted, default device changed"
PROMISE = "the gap itself; the recording goes on with what is there, or waits and goes on"
SUBJECT = "Outages"
ALIKE = 0.97  # the least agreement of what was spoken with its place in the take
MOST_LATE = 1.0  # seconds that may be missing once the microphone is back
PASSAGE = 1.5  # seconds that are spoken at a time
LONG_HANG = 35  # seconds, after which the sound library gives up a question
LONG_ABSENCE = 10


class Microphone(sound.SoundServer):
    """A sound server that can be ill-treated. What goes away comes back by the same name."""

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.__exit__()

    def restart(self):
        self.__enter__()

    def hang(self):
        self.process.send_signal(signal.SIGSTOP)

    def go_on(self):
        """This microphone, unlike one of metal, makes up for the time that it stood still, all at once: what is spoken
        into it meanwhile is a matter of the server's. Returns when a second at it lasts a second again."""
        self.process.send_signal(signal.SIGCONT)
        listening = ["pacat", "--record", "-d", "microphone", *SHAPE, "--latency-msec=20"]
        with subprocess.Popen(listening, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as listener:
            wait_for("the microphone to keep time again", lambda: _lasts(lambda: listener.stdout.read(4 * sound.RATE // 2)) > 0.4)
            listener.terminate()

    def pull_out(self):
        self._control("unload-module", "module-remap-source")

    def plug_in(self, name="microphone"):
        self._control("load-module", "module-remap-source", "master=mic.monitor", f"source_name={name}")
        self.choose(name)

    def choose(self, name):
        self._control("set-default-source", name)

    @staticmethod
    def _control(*command):
        subprocess.run(["pactl", *command], check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)


def run(tools, short):
    rounds = [["killed", "pulled out"], ["hanging", "changed"]] if short else _whole(tools.random)
    with Desktop(tools.folder) as desktop, Microphone() as microphone:
        trial = _Trial(tools, desktop, microphone)
        late = [trial.take(number, outages, short) for number, outages in enumerate(rounds)]
    count = sum(map(len, rounds))
    return Result(max(late) <= MOST_LATE,
                  f"{count} outages in {len(rounds)} takes: all else is there, at most {max(late):.2f} s missing once the microphone was back")


def _whole(random):
    kinds = ["killed", "killed for long", "pulled out", "hanging", "hanging for long", "changed", "paused", "resumed", "stopped"]
    return [random.sample(kinds[:-1], len(kinds) - 1) + ["stopped"] for _ in range(4)]


def _lasts(what):
    begin = time.monotonic()
    what()
    return time.monotonic() - begin


class _Trial:
    def __init__(self, tools, desktop, microphone):
        self._tools = tools
        self._desktop = desktop
        self._microphone = microphone
        self._program = Program(tools.program, desktop)
        self._hands = self._program.hands
        self._spoken = []
        murmured = murmur(tools.random)
        size = round(PASSAGE * sound.RATE)
        self._passages = [murmured[at : at + size] for at in range(0, len(murmured) - size, size)]

    def take(self, number, outages, short):
        """Records one lecture with these outages in it, and gives how long after one of them something was still missing."""
        self._spoken = []
        self._program.start(str(number))
        window = names.NEW_LECTURE_WINDOW
        try:
            self._hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
            self._hands.click(window, names.START_RECORDING)
            self._hands.control(window, names.PAUSE)
            self._hands.write(window, names.SUBJECT, f"{SUBJECT} {number}")
            self._speak()
            for outage in outages:
                self._suffer(outage, window)
            if not outages or outages[-1] != "stopped":
                self._hands.click(window, names.STOP)
            self._hands.control(window, names.PLAY)
            self._hands.click(window, names.DONE)
            self._hands.window_goes(window)
            path = wait_for("the lecture", lambda: stored.sound_of(self._desktop.data, f"{SUBJECT} {number}"))
            self._program.quit()
            self._program.expect_silence()
        finally:
            self._program.stop()
        return self._missing(number, path, outages)

    def _suffer(self, outage, window):
        microphone = self._microphone
        if outage.startswith("killed") or outage == "stopped":
            microphone.kill()
            if outage == "stopped":
                self._hands.click(window, names.STOP)
                self._hands.control(window, names.PLAY)
            time.sleep(LONG_ABSENCE if outage == "killed for long" else 0)  # as long as a user would be away
            microphone.restart()
        elif outage.startswith("hanging"):
            microphone.hang()
            time.sleep(LONG_HANG if outage == "hanging for long" else 2)
            microphone.go_on()
        elif outage == "pulled out":
            microphone.pull_out()
            microphone.plug_in()
        elif outage == "changed":
            microphone.plug_in("other")
            self._speak()
            microphone.choose("microphone")
        elif outage == "paused":  # in the outage, and it ends after it
            microphone.kill()
            self._hands.click(window, names.PAUSE)
            self._hands.control(window, names.RESUME)
            microphone.restart()
            self._hands.click(window, names.RESUME)
            self._hands.control(window, names.PAUSE)
        elif outage == "resumed":  # in the outage, from a pause before it
            self._hands.click(window, names.PAUSE)
            self._hands.control(window, names.RESUME)
            microphone.kill()
            self._hands.click(window, names.RESUME)
            self._hands.control(window, names.PAUSE)
            microphone.restart()
        if outage != "stopped":
            self._speak()

    def _speak(self):
        passage = self._passages[len(self._spoken)]
        path = os.path.join(self._tools.folder, "spoken.wav")
        with wave.open(path, "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(sound.RATE)
            file.writeframes((passage * 16000).astype("<i2").tobytes())
        self._microphone.speak(path)
        self._spoken.append(passage)

    def _missing(self, number, path, outages):
        take = sound.samples(path)
        late = []
        for place, passage in enumerate(self._spoken):
            missing = _missing_at_the_beginning(take, passage)
            if missing is None:
                kept = self._tools.keep(f"take{number}.m4a", path)
                raise Failed(f"passage {place} of the take with {outages} is not as it was spoken, see {kept}")
            late.append(missing)
        self._tools.tell(f"{', '.join(outages)}: {len(late)} passages are there, at most {max(late):.2f} s missing at their beginning")
        return max(late)


def _missing_at_the_beginning(take, passage):
    """In seconds; nothing when what is there of the passage is not as it was spoken."""
    end = passage[len(passage) // 2 : -BLOCK].astype(numpy.float64)
    agreement, place = sound.correlation(take, end)
    begin = round(place * sound.RATE) - len(passage) // 2
    if agreement < ALIKE:
        return None
    for start in range(0, len(passage) // 2, BLOCK // 4):
        here, there = take[max(0, begin + start) : begin + len(passage) - BLOCK], passage[start : len(passage) - BLOCK]
        if len(here) == len(there) and numpy.corrcoef(here, there)[0, 1] >= ALIKE:
            return start / sound.RATE
    return len(passage) / 2 / sound.RATE
