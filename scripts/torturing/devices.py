"""The microphone goes and comes back in every way that a desktop knows, while the program records."""

import signal
import subprocess
import time

from outside import names, sound
from outside.desktop import Desktop
from outside.program import Program
from outside.waiting import wait_for

from . import stored
from .played import SHAPE
from .result import Result
from .spoken import Spoken

EVENT = "microphone pulled out, sound server restarted, default device changed"
PROMISE = "the gap itself; the recording goes on with what is there, or waits and goes on"
SUBJECT = "Outages"
MOST_LATE = 0.5  # seconds that may be missing once the microphone is back, of a passage of three times that
LONG_HANG = 35  # seconds, after which the sound library gives up a question
LONG_ABSENCE = 10


class Microphone(sound.SoundServer):
    """A sound server that can be ill-treated. What goes away comes back by the same name."""

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.leave()

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

    def pull_out(self, name="microphone"):
        modules = subprocess.run(["pactl", "list", "short", "modules"], check=True, stdin=subprocess.DEVNULL, capture_output=True, text=True).stdout
        number = next(line.split()[0] for line in modules.splitlines() if line.endswith((f"source_name={name}", f"source_name={name}\t")))
        self._control("unload-module", number)

    def plug_in(self, name="microphone"):
        self.put_beside(name)
        self.choose(name)

    def put_beside(self, name):
        """Nobody listens to it as long as the one that is chosen is there."""
        self._control("load-module", "module-remap-source", "master=mic.monitor", f"source_name={name}")

    def choose(self, name):
        self._control("set-default-source", name)

    @staticmethod
    def _control(*command):
        subprocess.run(["pactl", *command], check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)


def run(tools, short):
    rounds = [["killed", "pulled out"], ["one of two", "hanging", "changed"]] if short else _whole(tools.random)
    with Desktop(tools.folder) as desktop, Microphone() as microphone:
        trial = _Trial(tools, desktop, microphone)
        late = [trial.take(number, outages, short) for number, outages in enumerate(rounds)]
    count = sum(map(len, rounds))
    return Result(max(late) <= MOST_LATE,
                  f"{count} outages in {len(rounds)} takes: all else is there, at most {max(late):.2f} s missing once the microphone was back")


def _whole(random):
    kinds = ["killed", "killed for long", "pulled out", "one of two", "hanging", "hanging for long", "changed", "paused", "resumed", "stopped"]
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
        self._spoken = Spoken(tools, microphone)

    def take(self, number, outages, short):
        """Records one lecture with these outages in it, and gives how long after one of them something was still missing."""
        self._spoken.begin()
        self._program.start(str(number))
        window = names.NEW_LECTURE_WINDOW
        try:
            self._hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
            self._hands.point_at(window, names.START_RECORDING)  # it may slide in late on a busy machine
            self._hands.click(window, names.START_RECORDING)
            self._hands.control(window, names.PAUSE)
            self._hands.write(window, names.SUBJECT, f"{SUBJECT} {number}")
            self._spoken.speak()
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
        return self._spoken.missing(path, ', '.join(outages))

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
            self._spoken.speak()
            microphone.choose("microphone")
            microphone.pull_out("other")
        elif outage == "one of two":
            microphone.put_beside("other")
            microphone.pull_out()
            self._spoken.speak()  # the other one alone hears it
            microphone.plug_in()
            microphone.pull_out("other")
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
            self._spoken.speak()
