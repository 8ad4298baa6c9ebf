"""The files of the source tree, as the rules over it read them."""

import os
import re

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"][^>"\n]+)[>"]', re.MULTILINE)
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)


class Tree:
    """Paths are relative to the root and written with "/"."""

    def __init__(self, root=ROOT):
        self._root = root

    def files(self, folder, *endings):
        found = []
        for path, folders, names in os.walk(os.path.join(self._root, folder)):
            folders[:] = [name for name in folders if name not in ("__pycache__", "build")]
            found += [os.path.relpath(os.path.join(path, name), self._root)
                      for name in names if name.endswith(endings)]
        return sorted(found)

    def has(self, path):
        return os.path.exists(os.path.join(self._root, path))

    def text(self, path):
        with open(os.path.join(self._root, path), encoding="utf-8") as file:
            return file.read()

    def code(self, path):
        """The text without comments and without what stands between quotation marks."""
        return COMMENT_OR_TEXT.sub(lambda found: '""' if found[0].startswith('"') else " ", self.text(path))

    def includes(self, path):
        """Names as written, the first character telling the form: "<pulse/pulseaudio.h" or '"store/Sqlite.h'."""
        return INCLUDE.findall(self.text(path))


def write(root, files):
    """A small tree for a rule to judge: {path: text}."""
    for path, text in files.items():
        whole = os.path.join(root, path)
        os.makedirs(os.path.dirname(whole), exist_ok=True)
        with open(whole, "w", encoding="utf-8") as file:
            file.write(text)
    return Tree(root)
