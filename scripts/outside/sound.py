"""A sound server of its own, whose microphone hears what is spoken into it, and the comparison of sounds."""

import contextlib
import os
import subprocess

import numpy

from .waiting import Children, Entered, Failed, wait_for

RATE = 44100
CONFIGURATION = """\
load-module module-native-protocol-unix auth-anonymous=1 socket={socket}
load-module module-null-sink sink_name=mic rate={rate} channels=2
load-module module-null-sink sink_name=speaker rate={rate} channels=2
load-module module-remap-source master=mic.monitor source_name=microphone
set-default-sink speaker
set-default-source microphone
"""


class SoundServer(Entered):
    """Starts in the environment that stands then, and puts its own address into it."""

    def __init__(self):
        self.process = None
        self._children = Children()
        self._folder = os.environ["XDG_RUNTIME_DIR"]

    def enter(self):
        socket = os.path.join(self._folder, "sound")
        script = os.path.join(self._folder, "sound.pa")
        with open(script, "w", encoding="utf-8") as file:
            file.write(CONFIGURATION.format(socket=socket, rate=RATE))
        os.environ["PULSE_RUNTIME_PATH"] = os.path.join(self._folder, "pulse")
        os.environ["PULSE_STATE_PATH"] = os.path.join(self._folder, "pulse-state")
        os.environ["PULSE_SERVER"] = "unix:" + socket
        self.process = self._children.start(
            "pulseaudio", "-n", "-F", script, "--daemonize=no", "--system=no", "--use-pid-file=no",
            "--exit-idle-time=-1", "--disable-shm=yes", "--realtime=no", "--high-priority=no")
        wait_for("the sound server", self._is_ready)
        self._keep_awake()

    def leave(self):
        self._children.stop()

    @staticmethod
    def speak(path):
        """Returns when the microphone has heard all of it."""
        subprocess.run(["paplay", "-d", "mic", path], check=True, stdin=subprocess.DEVNULL)

    @contextlib.contextmanager
    def listen(self, path):
        """Writes what comes out of the speaker to the path, from before the block begins until it ends."""
        shape = ["--raw", f"--rate={RATE}", "--channels=1", "--format=float32le", "--latency-msec=20"]
        with open("/dev/zero", "rb") as silence, open(path, "wb") as heard:
            # The silence keeps the speaker's blocks short, as it does for the microphone.
            children = Children()
            try:
                children.start("pacat", "--playback", "-d", "speaker", *shape, stdin=silence)
                children.start("pacat", "--record", "-d", "speaker.monitor", *shape, stdout=heard)
                wait_for("the first sound of the speaker", lambda: os.path.getsize(path) > 0)
                yield
            finally:
                children.stop()

    @staticmethod
    def _is_ready():
        asked = subprocess.run(["pactl", "get-default-source"], capture_output=True, text=True, check=False)
        return asked.stdout.strip() == "microphone"

    def _keep_awake(self):
        # An idle microphone of this kind works in blocks of two seconds and would lose the first words:
        # silence that runs into it and somebody who listens keep the blocks short.
        shape = ["--raw", f"--rate={RATE}", "--channels=2", "--latency-msec=20"]
        with open("/dev/zero", "rb") as silence:
            self._children.start("pacat", "--playback", "-d", "mic", *shape, stdin=silence)
        listening = ["pacat", "--record", "-d", "microphone", *shape]
        self._children.start(*listening)
        wait_for("both ends of the microphone", lambda: self._count("sink-inputs") and self._count("source-outputs"))
        # The block that was under way when they came is still a long one; behind it the microphone is awake.
        with subprocess.Popen(listening, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE) as first:
            first.stdout.read(1)
            first.terminate()

    @staticmethod
    def _count(kind):
        listed = subprocess.run(["pactl", "list", "short", kind], capture_output=True, text=True, check=False)
        return len(listed.stdout.splitlines())


def write_speech(sentence, path):
    """The sentence as a sound file in the microphone's own shape, so that nothing on the way converts it."""
    raw = path + ".raw.wav"
    subprocess.run(["espeak-ng", "-v", "en", "-s", "150", "-w", raw, sentence], check=True, stdin=subprocess.DEVNULL)
    subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-y", "-i", raw, "-ar", str(RATE), "-ac", "2", path], check=True)
    os.remove(raw)


def samples(path):
    """What a sound file holds, decoded, as one channel."""
    decoded = subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-i", path, "-f", "f32le", "-ac", "1", "-ar", str(RATE), "-"],
                             check=False, capture_output=True)
    if decoded.returncode != 0 or decoded.stderr:
        raise Failed(f"{path} cannot be decoded: {decoded.stderr.decode(errors='replace').strip()}")
    return numpy.frombuffer(decoded.stdout, dtype=numpy.float32).astype(numpy.float64)


def heard(path):
    """What was listened to, as one channel."""
    with open(path, "rb") as file:
        data = file.read()
    return numpy.frombuffer(data[: len(data) // 4 * 4], dtype=numpy.float32).astype(numpy.float64)


def without_silence(samples, below=0.002):
    """From the first to the last sample that can be heard."""
    loud = numpy.flatnonzero(numpy.abs(samples) > below)
    return samples[loud[0] : loud[-1] + 1] if len(loud) else samples[:0]


def loudness(samples, block):
    """How loud each block of so many samples is."""
    count = len(samples) // block
    return numpy.sqrt(numpy.mean(samples[: count * block].reshape(count, block) ** 2, axis=1))


def following(sounds, slow, rate):
    """How well the loudness of every second of a sound, slowed by the rate, is found near its place: the mean, from 0 to 1."""
    fine, near = 100, 50  # steps a second, and so many of them to either side
    one, other = loudness(sounds, RATE // fine), loudness(slow, round(RATE / rate) // fine)
    agreements = []
    for start in range(0, len(one) - fine, fine):
        places = range(max(0, start - near), min(len(other) - fine, start + near) + 1)
        agreements.append(max((numpy.corrcoef(one[start : start + fine], other[at : at + fine])[0, 1] for at in places), default=0.0))
    return float(numpy.mean(agreements)) if agreements else 0.0


def correlation(whole, part):
    """Best agreement of the part with any stretch of the whole, from 0 to 1, and where it starts in seconds."""
    if len(part) == 0 or len(whole) < len(part):
        return 0.0, 0.0
    size = 1 << (len(whole) + len(part) - 1).bit_length()
    product = numpy.fft.irfft(numpy.fft.rfft(whole, size) * numpy.conj(numpy.fft.rfft(part, size)), size)
    products = product[: len(whole) - len(part) + 1]
    sums = numpy.concatenate(([0.0], numpy.cumsum(whole**2)))
    energies = sums[len(part):] - sums[: -len(part)]
    scale = numpy.sqrt(numpy.maximum(energies, 1e-9) * numpy.sum(part**2))
    agreement = products / numpy.maximum(scale, 1e-9)
    best = int(numpy.argmax(agreement))
    return float(agreement[best]), best / RATE
