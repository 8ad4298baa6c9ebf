"""A sound from which the time can be read, and what a microphone heard of it."""

import os
import subprocess
import threading

import numpy

from outside.sound import RATE
from outside.waiting import Children, Failed, wait_for

SECONDS = 60  # then it begins anew: a take is shorter
BLOCK = 4096  # samples that are looked for at a time, 93 ms
ALIKE = 0.8  # the least agreement of such a block with the place where it belongs


def murmur(random):
    """Noise with the spectrum of a murmur, which the encoder keeps; it nowhere repeats itself."""
    noise = numpy.random.default_rng(random.randrange(2**32)).standard_normal(SECONDS * RATE)
    spectrum = numpy.fft.rfft(noise)
    hertz = numpy.fft.rfftfreq(len(noise), 1 / RATE)
    spectrum *= 1 / (1 + (hertz / 600) ** 2) * (hertz > 80)
    sound = numpy.fft.irfft(spectrum, len(noise))
    return (sound / numpy.abs(sound).max() * 0.9).astype(numpy.float32)


class Played:
    """Plays a murmur into the microphone as long as it lives, and keeps listening to it: a witness."""

    def __init__(self, random, folder):
        self._sound = murmur(random)
        self._spectra = {}
        self._path = os.path.join(folder, "witness.raw")
        self._children = Children()

    def __enter__(self):
        raw = os.path.join(os.path.dirname(self._path), "murmur.raw")
        self._sound.tofile(raw)
        shape = ["--raw", f"--rate={RATE}", "--channels=1", "--format=float32le", "--latency-msec=20"]
        speaker = self._children.start("pacat", "--playback", "-d", "mic", *shape, stdin=subprocess.PIPE)
        threading.Thread(target=self._speak, args=(speaker.stdin,), daemon=True).start()
        with open(self._path, "wb") as heard:
            self._children.start("pacat", "--record", "-d", "microphone", *shape, stdout=heard)
        wait_for("the murmur in the microphone", lambda: os.path.getsize(self._path) > 4 * RATE)
        return self

    def __exit__(self, *_):
        self._children.stop()

    def now(self):
        """The end of what the witness has heard, for place() later: asked at the very moment."""
        return os.path.getsize(self._path) // 4

    def place(self, heard_until):
        """The second of the murmur that sounded then."""
        with open(self._path, "rb") as file:
            file.seek(4 * (heard_until - BLOCK))
            return self._find(numpy.frombuffer(file.read(4 * BLOCK), dtype=numpy.float32)) + BLOCK / RATE

    def span(self, take):
        """Where a take begins and ends in the murmur; fails when it holds anything else, or not all of it."""
        if len(take) < 3 * BLOCK:
            raise Failed(f"the take holds {len(take) / RATE:.2f} s")
        begin = self._find(take[BLOCK : 2 * BLOCK]) - BLOCK / RATE
        whole = numpy.roll(self._sound, -round(begin * RATE))[: len(take)]
        # The first and the last block are left out: the encoder fades them.
        for start in range(BLOCK, len(take) - 2 * BLOCK, BLOCK):
            one, other = whole[start : start + BLOCK], take[start : start + BLOCK]
            agreement = numpy.corrcoef(one, other)[0, 1]
            if not agreement >= ALIKE:
                raise Failed(f"at {start / RATE:.2f} s the take is not what was played: {agreement:.3f}")
        return begin, begin + len(take) / RATE

    def _find(self, part):
        if len(self._spectra) == 0:
            self._spectra = numpy.fft.rfft(self._sound)
        size = len(self._sound)
        product = numpy.fft.irfft(self._spectra * numpy.conj(numpy.fft.rfft(part, size)), size)
        best = int(numpy.argmax(product))
        alike = numpy.corrcoef(numpy.roll(self._sound, -best)[: len(part)], part)[0, 1]
        if not alike >= ALIKE:
            raise Failed(f"this is not in what was played: {alike:.3f}")
        return best / RATE

    def _speak(self, pipe):
        try:
            while True:
                pipe.write(self._sound.tobytes())
        except (OSError, ValueError):
            pass  # the player has ended


def seconds_between(begin, end):
    """From one second of the murmur to a later one; a little less than none is less than none."""
    return (end - begin + 5) % SECONDS - 5
