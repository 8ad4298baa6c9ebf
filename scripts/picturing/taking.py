"""Takes the pictures of a wing so that none depends on whose computer it is, on the time, or on what is installed there."""

import os
import pathlib
import re
import subprocess
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
FONTS = HERE / "fonts.conf"
# Large enough for every window with three pixels a point: menus and sheets are cut and wrapped by what the screen has room for.
SCREEN = HERE / "screen.json"
# All that the program is told, so that it finds no desktop whose style, font, icons or size of points it would take. The
# seed keeps the order of whatever lies in a hash.
FIXED = {"QT_QPA_PLATFORM": f"offscreen:configfile={SCREEN}", "QT_HASH_SEED": "0", "TZ": "UTC", "LC_ALL": "C.UTF-8",
         "FONTCONFIG_FILE": str(FONTS)}
# What may come from the caller: where commands are, and what the sanitizers are told.
PASSED_ON = ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS")


class NotTaken(Exception):
    """There are no pictures to look at."""


def missing_fonts(configuration=FONTS):
    files = re.findall(r"<acceptfont><glob>(.*?)</glob>", configuration.read_text(encoding="utf-8"))
    return [file for file in files if not os.path.exists(file)]


def environment(wing, home):
    passed = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
    # Without icons and settings of the system's either: the home stands for all folders.
    places = {name: home for name in ("HOME", "TMPDIR", "XDG_RUNTIME_DIR", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS")}
    return passed | FIXED | places | {"QT_SCALE_FACTOR": str(wing.scale)}


def take(program, folder, wings):
    """FOLDER/WING/SCENE.png for every scene of these wings."""
    if missing := missing_fonts():
        raise NotTaken(f"These fonts are missing, `scripts/packages test` installs them: {', '.join(missing)}")
    with tempfile.TemporaryDirectory() as home:
        for wing in wings:
            done = subprocess.run([program, pathlib.Path(folder) / wing.name, *wing.arguments], check=False,
                                  env=environment(wing, home), capture_output=True, text=True)
            if done.returncode != 0:
                raise NotTaken(f"The wing {wing.name} ended with status {done.returncode}: {done.stderr}")
