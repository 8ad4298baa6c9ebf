"""The pictures that the windows are compared with: tests/gallery/pictures/WING/SCENE.png."""

import collections
import pathlib
import shutil

from picturing import comparing
from picturing.wings import KEPT

PICTURES = pathlib.Path(__file__).resolve().parent.parent.parent / "tests" / "gallery" / "pictures"

# Where the two pictures of a scene are, None for one that there is none of, and what changed if there are both.
Pair = collections.namedtuple("Pair", "name old new change")


def _scenes(folder):
    return {path.stem for path in folder.glob("*.png")}


def _pairs(wing, taken, references, scenes):
    old, new = _scenes(references / wing), _scenes(taken / wing)
    wanted = new if scenes is None else set(scenes)
    for scene in sorted(wanted | old):
        was = references / wing / f"{scene}.png" if scene in old else None
        now = taken / wing / f"{scene}.png" if scene in wanted & new else None
        change = comparing.change(comparing.load(was), comparing.load(now)) if was and now else None
        if change or not was or not now:
            yield Pair(f"{wing}/{scene}", was, now, change)


def differences(taken, references=PICTURES, kept=None):
    """What is not the same in the folder of pictures taken and in that of the references."""
    kept = KEPT if kept is None else kept
    unknown = {path.name: () for path in references.glob("*") if path.name not in kept}
    return [pair for wing, scenes in sorted((kept | unknown).items())
            for pair in _pairs(wing, taken, references, scenes)]


def told(pair):
    if pair.change:
        return f"{pair.name}: {comparing.told(pair.change)}"
    if pair.new:
        return f"{pair.name}: this scene has no picture to be compared with"
    if pair.old:
        return f"{pair.name}: there is a picture, but no scene that is compared with it"
    return f"{pair.name}: no such scene, though its picture is to be kept"


def show(pairs, folder):
    """FOLDER/WING/SCENE.png for every picture that changed, and nothing of an earlier time."""
    shutil.rmtree(folder, ignore_errors=True)
    for pair in pairs:
        if pair.change:
            path = folder / f"{pair.name}.png"
            path.parent.mkdir(parents=True, exist_ok=True)
            sheet = comparing.side_by_side(comparing.load(pair.old), comparing.load(pair.new), pair.change)
            sheet.save(path)


def accept(pairs, references=PICTURES):
    """What was taken is the reference from now on. A picture that did not change keeps its bytes."""
    for pair in pairs:
        path = references / f"{pair.name}.png"
        if pair.new:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(comparing.encoded(comparing.load(pair.new)))
        elif pair.old:
            path.unlink()
            if not any(path.parent.iterdir()):
                path.parent.rmdir()
