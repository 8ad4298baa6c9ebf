"""Tells two pictures of a window from each other, and shows where they differ."""

import collections
import functools
import struct
import zlib

from PIL import Image, ImageChops, ImageDraw

# How many of its 256 steps a channel may be off, in any number of pixels; not one pixel may be off by more. Letters and shapes
# are drawn in whole numbers, and come out alike everywhere. Rounded corners do not: with the same program and fonts one to four
# of their pixels were off by one step on x86-64 without AVX or without AVX-512, and by up to two on arm64.
TOLERANCE = 2
GAP = 16
BACKGROUND = "#c8c8d8"
CHANGED = (230, 0, 60)

Change = collections.namedtuple("Change", "share box size mask")


def load(path):
    with Image.open(path) as picture:
        return picture.convert("RGBA")


def _bands(picture):
    """The channels as far as they show: what is hardly there is hardly another colour."""
    *colours, alpha = picture.split()
    return [ImageChops.multiply(colour, alpha) for colour in colours] + [alpha]


def _spread(picture, size):
    spread = Image.new("RGBA", size)
    spread.paste(picture)
    return spread


def change(old, new):
    """The share of the pixels that changed and the rectangle around them, or None."""
    size = (max(old.width, new.width), max(old.height, new.height))
    bands = map(ImageChops.difference, _bands(_spread(old, size)), _bands(_spread(new, size)))
    furthest = functools.reduce(ImageChops.lighter, bands)
    mask = furthest.point(lambda step: 255 if step > TOLERANCE else 0)
    if old.size == new.size and not mask.getbbox():
        return None
    share = mask.histogram()[255] / (size[0] * size[1])
    return Change(share, mask.getbbox() or (0, 0, *size), (old.size, new.size), mask)


def told(seen):
    """The change in words."""
    left, top, right, bottom = seen.box
    words = f"{100 * seen.share:.2f} % of its pixels changed, within {right - left} x {bottom - top} at ({left}, {top})"
    old, new = seen.size
    return words if old == new else f"{words}; it was {old[0]} x {old[1]} and is {new[0]} x {new[1]}"


def side_by_side(old, new, seen):
    """The old picture, the new one, and the new one pale with what changed in red and a frame around it."""
    width, height = seen.mask.size
    pale = Image.blend(_spread(new, seen.mask.size).convert("L").convert("RGB"), Image.new("RGB", seen.mask.size, "white"), 0.7)
    pale.paste(CHANGED, mask=seen.mask)
    left, top, right, bottom = seen.box
    ImageDraw.Draw(pale).rectangle((left - 3, top - 3, right + 2, bottom + 2), outline=CHANGED)
    sheet = Image.new("RGB", (3 * width + 4 * GAP, height + 2 * GAP), BACKGROUND)
    sheet.paste(old, (GAP, GAP), old)
    sheet.paste(new, (width + 2 * GAP, GAP), new)
    sheet.paste(pale, (2 * width + 3 * GAP, GAP))
    return sheet


def _chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))


def encoded(picture):
    """The picture as a small PNG: windows have flat areas, which are smaller without the filters that encoders put before
    the compression."""
    if picture.getextrema()[3][0] == 255:
        picture = picture.convert("RGB")
    content, row = picture.tobytes(), len(picture.getbands()) * picture.width
    rows = b"".join(b"\0" + content[start:start + row] for start in range(0, len(content), row))
    compressor = zlib.compressobj(9, zlib.DEFLATED, zlib.MAX_WBITS, 9)
    kind = {"RGB": 2, "RGBA": 6}[picture.mode]
    return (b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", struct.pack(">2I5B", *picture.size, 8, kind, 0, 0, 0)) +
            _chunk(b"IDAT", compressor.compress(rows) + compressor.flush()) + _chunk(b"IEND", b""))
