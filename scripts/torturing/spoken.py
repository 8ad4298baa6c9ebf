"""What is spoken into the microphone while a lecture is recorded, passage by passage, and whether the lecture has it."""

import os
import wave

import numpy

from outside import sound
from outside.waiting import Failed

from .played import BLOCK, murmur

ALIKE = 0.97  # the least agreement of what was spoken with its place in the take
PASSAGE = 1.5  # seconds that are spoken at a time


class Spoken:
    def __init__(self, tools, microphone):
        self._tools = tools
        self._microphone = microphone
        self._spoken = []
        murmured = murmur(tools.random)
        size = round(PASSAGE * sound.RATE)
        self._passages = [murmured[at : at + size] for at in range(0, len(murmured) - size, size)]

    def begin(self):
        """Another lecture."""
        self._spoken = []

    def speak(self):
        """Returns when the microphone has heard all of it."""
        passage = self._passages[len(self._spoken)]
        path = os.path.join(self._tools.folder, "spoken.wav")
        with wave.open(path, "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(sound.RATE)
            file.writeframes((passage * 16000).astype("<i2").tobytes())
        self._microphone.speak(path)
        self._spoken.append(passage)

    def missing(self, path, what):
        """At the beginning of a passage, in seconds, of the worst one; fails when one is not as it was spoken."""
        take = sound.samples(path)
        late = []
        for place, passage in enumerate(self._spoken):
            missing = _missing(take, passage)
            if missing is None:
                kept = self._tools.keep(os.path.basename(path), path)
                raise Failed(f"passage {place} of the take with {what} is not as it was spoken, see {kept}")
            late.append(missing)
        self._tools.tell(f"{what}: {len(late)} passages are there, at most {max(late):.2f} s missing at their beginning")
        return max(late)


def _missing(take, passage):
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
