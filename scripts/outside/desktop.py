"""A desktop of its own: home folder, screen, window manager, session bus, accessibility bus."""

import os
import shutil
import subprocess
import tempfile
import time

from .waiting import Children, Entered, wait_for

SCREEN = "1440x900x24"
EVENING = 21  # o'clock: what begins later may end on another day
MORNING_ZONE = "Etc/GMT+12"  # where it is then the morning of the same day


def zone():
    """One in which no midnight comes before the end of what is done here: what was recorded today stays in today's list."""
    return MORNING_ZONE if time.gmtime().tm_hour >= EVENING else "UTC"


class Desktop(Entered):
    """Within it, os.environ is the environment of a fresh user who sits before a virtual screen."""

    def __init__(self, folder, *of_screen):
        """More options of the screen may follow."""
        self._of_screen = of_screen
        self.folder = os.path.abspath(folder)
        self.data = os.path.join(self.folder, "data")
        self._children = Children()
        # Names of sockets are limited to about 100 characters, and a build folder may lie deep.
        self._runtime = tempfile.mkdtemp(prefix="tarvelo-")
        self._before = dict(os.environ)

    def enter(self):
        self._set_environment()
        self._start_screen()
        self._start_bus()
        self._start_window_manager()

    def leave(self):
        self._children.stop()
        shutil.rmtree(self._runtime, ignore_errors=True)
        os.environ.clear()
        os.environ.update(self._before)
        time.tzset()

    def program_folders(self):
        """Those that the program made for itself, which are there after its first start."""
        own = (os.path.join(os.environ[place], "Tarvelo") for place in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"))
        return [folder for folder in own if os.path.exists(folder)]

    def screenshot(self, name):
        folder = os.path.join(self.folder, "screenshots")
        os.makedirs(folder, exist_ok=True)
        subprocess.run(["import", "-window", "root", os.path.join(folder, f"{name}.png")],
                       check=True, stdin=subprocess.DEVNULL)

    def end_screen(self):
        """As a user who logs out all at once: whatever shows on the screen loses it."""
        self._screen.terminate()

    def _set_environment(self):
        environment = {
            "PATH": os.environ["PATH"],
            "LC_ALL": "C.UTF-8",
            "TZ": zone(),
            "HOME": os.path.join(self.folder, "home"),
            "XDG_DATA_HOME": self.data,
            "XDG_CONFIG_HOME": os.path.join(self.folder, "config"),
            "XDG_CACHE_HOME": os.path.join(self.folder, "cache"),
            "XDG_RUNTIME_DIR": self._runtime,
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        # What a build with a sanitizer or a measuring run hands to the program.
        kept = {key: value for key, value in os.environ.items()
                if key.endswith("SAN_OPTIONS") or key in ("TZ", "QT_LOGGING_RULES")}
        os.environ.clear()
        os.environ.update(environment | kept)
        time.tzset()
        for key, value in environment.items():
            if key == "HOME" or key.startswith("XDG_"):
                os.makedirs(value, exist_ok=True)

    def _start_screen(self):
        reading, writing = os.pipe()
        self._screen = self._children.start("Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN,
                                            "-nolisten", "tcp", "-noreset", *self._of_screen, pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as pipe:
            os.environ["DISPLAY"] = ":" + pipe.readline().strip()

    def _start_bus(self):
        # The bus lives as long as the shell in it, and that waits for the end of its input.
        shell = self._children.start(
            "dbus-run-session", "--", "sh", "-c", 'echo "$DBUS_SESSION_BUS_ADDRESS"; cat',
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = shell.stdout.readline().strip()

    def _start_window_manager(self):
        self._children.start("openbox", "--sm-disable")
        wait_for("the window manager", self._manager_answers)

    @staticmethod
    def _manager_answers():
        asked = subprocess.run(["xdotool", "get_desktop"], capture_output=True, check=False)
        return asked.returncode == 0
