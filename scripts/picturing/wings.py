"""The wings of the gallery, and which of their pictures are kept as references."""

import collections

LANGUAGES = ("en", "de", "ar", "ja")
THEMES = ("light", "dark", "contrast")
SCALES = (1.25, 1.5, 2, 3)

Wing = collections.namedtuple("Wing", "name arguments scale")

# Every kind of control, of window and of state that a colour tells, and the windows with the longest texts.
CHOICE = ("alert", "bring-back", "delete", "lecture-beside-list", "left-lecture", "menu",
          "new-lecture-hardly-any-room-nothing-heard", "new-lecture-listening", "no-audio", "play", "preferences",
          "row-under-the-mouse")
# By wing the scenes that are kept, or None for every scene that there is. The others show what a wing does to all windows
# alike: colours, direction, other letters, larger ones in the language with the longest words, points of no whole pixels.
KEPT = {"en-light": None, "de-dark": CHOICE, "ar-light": CHOICE, "ja-contrast": CHOICE, "de-light-large-text": CHOICE,
        "en-light-125": CHOICE}


def wings():
    for theme in THEMES:
        for language in LANGUAGES:
            yield Wing(f"{language}-{theme}", (language, theme), 1)
    for scale in SCALES:
        yield Wing(f"en-light-{round(scale * 100)}", ("en", "light"), scale)
    for language in LANGUAGES:
        yield Wing(f"{language}-light-large-text", (language, "light", "large"), 1)


def kept_wings():
    return [wing for wing in wings() if wing.name in KEPT]
