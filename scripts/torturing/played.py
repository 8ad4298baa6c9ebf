"""A sound of which every moment is known again, and a witness who hears it beside the program."""

import os
import subprocess
import threading

import numpy

from outside.sound import RATE
from outside.waiting import Children, Entered, Failed, wait_for

SECONDS = 60  # then it begins anew
BLOCK = 4096  # samples that are compared at a time, 93 ms
ALIKE = 0.9  # the least agreement of such a block with what the witness heard; the encoder keeps 0.99
SILENT = 0.002
SHAPE = ["--raw", f"--rate={RATE}", "--channels=1", "--format=float32le"]


def murmur(random):
    """Noise with the spectrum of a murmur, which the encoder keeps; it nowhere repeats itself."""
    noise = numpy.random.default_rng(random.randrange(2**32)).standard_normal(SECONDS * RATE)
    spectrum = numpy.fft.rfft(noise)
    hertz = numpy.fft.rfftfreq(len(noise), 1 / RATE)
    spectrum *= 1 / (1 + (hertz / 600) ** 2) * (hertz > 80)
    sound = numpy.fft.irfft(spectrum, len(noise))
    return (sound / numpy.abs(sound).max() * 0.9).astype(numpy.float32)


class Played(Entered):
    """Plays a murmur into the microphone as long as it lives, and has a witness listen at the microphone too.

    Takes are compared with what the witness heard, so that a player which stumbles on a busy machine is no matter."""

    def __init__(self, random, folder):
        self._sound = murmur(random)
        self._path = os.path.join(folder, "witness.raw")
        self._children = Children()

    def enter(self):
        speaker = self._children.start("pacat", "--playback", "-d", "mic", "--latency-msec=500", *SHAPE, stdin=subprocess.PIPE)
        threading.Thread(target=self._speak, args=(speaker.stdin,), daemon=True).start()
        with open(self._path, "wb") as heard:
            self._children.start("pacat", "--record", "-d", "microphone", "--latency-msec=20", *SHAPE, stdout=heard)
        wait_for("the murmur in the microphone", lambda: os.path.getsize(self._path) > 4 * RATE)

    def leave(self):
        self._children.stop()

    def now(self):
        """In seconds of what the witness has heard."""
        return os.path.getsize(self._path) / 4 / RATE

    def heard(self, begin, end):
        with open(self._path, "rb") as file:
            file.seek(4 * max(0, round(begin * RATE)))
            return numpy.frombuffer(file.read(4 * round((end - max(0, begin)) * RATE)), dtype=numpy.float32).astype(numpy.float64)

    def span(self, take, until):
        """From when to when the take was heard, before a moment of now(); fails when it holds anything else than that."""
        parts, _ = self.parts(take, max(0, until - len(take) / RATE - 3), until)
        return parts[0]

    def parts(self, take, since, until, pauses=0):
        """The same of a take with so many pauses in it at most: a list of such spans, and how many seconds at its end, behind
        the last pause, are too few to be known again."""
        if len(take) < 4 * BLOCK:
            raise Failed(f"the take holds {len(take) / RATE:.2f} s")
        since = max(0, since)
        heard = self.heard(since, until + 1)
        spans, first, start = [], 0, BLOCK
        # The first block is left out, and the last: the encoder fades them.
        begin = _find(heard, take[BLOCK : 3 * BLOCK]) - BLOCK
        while start < len(take) - 2 * BLOCK:
            agreement = _agreement(heard[begin + start : begin + start + BLOCK], take[start : start + BLOCK])
            if agreement >= ALIKE:
                start += BLOCK
            elif len(spans) == pauses:
                raise Failed(f"at {start / RATE:.2f} s the take is not what was heard: {agreement:.3f}")
            else:  # the pause is somewhere in this block, and faded
                spans.append((since + (begin + first) / RATE, since + (begin + start) / RATE))
                first = start = start + 2 * BLOCK
                if len(take) - start < 4 * BLOCK:
                    return spans, (len(take) - start) / RATE
                later = begin + start - 2 * BLOCK
                begin = later + _find(heard[later:], take[start : start + 2 * BLOCK]) - start
        return [*spans, (since + (begin + first) / RATE, since + (begin + len(take)) / RATE)], 0.0

    def _speak(self, pipe):
        data = memoryview(self._sound.tobytes())
        try:
            # In small pieces, since nobody can close the pipe during one.
            while True:
                for start in range(0, len(data), RATE):
                    pipe.write(data[start : start + RATE])
        except (OSError, ValueError):
            pass  # the player has ended


def _find(whole, part):
    size = 1 << (len(whole) + len(part) - 1).bit_length()
    product = numpy.fft.irfft(numpy.fft.rfft(whole, size) * numpy.conj(numpy.fft.rfft(part, size)), size)
    return int(numpy.argmax(product[: len(whole) - len(part) + 1]))


def _agreement(one, other):
    if len(one) != len(other):
        return 0.0
    # Where the player stumbled there is silence, of which the encoder makes almost silence.
    if numpy.abs(one).max() < SILENT:
        return 1.0 if numpy.abs(other[BLOCK // 4 :]).max() < 10 * SILENT else 0.0
    return float(numpy.sum(one * other) / max(1e-9, numpy.sqrt(numpy.sum(one**2) * numpy.sum(other**2))))
