"""What a disk may hold after a power cut, from the log of everything that was done to it (tests/torture/DiskLog.cpp)."""

import os

PAGE = 4096


def replay(root, records):
    """What the program sees in the end: {path: bytes, or None for a folder}."""
    disk = Disk(root)
    for record in records:
        disk.do(*record)
    return {path: None if thing is FOLDER else bytes(thing.data) for path, thing in disk.names.items()}


class File:
    def __init__(self):
        self.data = bytearray()
        self.safe = b""  # what was there when it was last synced


FOLDER = object()


def read_log(path):
    """Operation, seconds, path, other path, offset, length, bytes: in the order in which it was done."""
    with open(path, "rb") as file:
        while head := file.readline():
            operation, seconds, *numbers = head.split()
            offset, length, of_path, of_other = (int(number) for number in numbers)
            name, other = (os.path.normpath(file.read(size).decode()) for size in (of_path, of_other))
            data = file.read(length) if operation == b"write" else b""
            yield operation.decode(), float(seconds), name, other, offset, data


class Disk:
    """As the program sees it (`names`), and as far as it is certain (`safe_names`, and each file's `safe`)."""

    def __init__(self, root):
        self._root = root
        self.names = {root: FOLDER}
        self.safe_names = {root: FOLDER}

    def do(self, operation, _, name, other, offset, data):
        getattr(self, f"_{operation}")(name, other, offset, data)

    def variants(self, random):
        """Name of the variant and {path: bytes, or None for a folder}: what may be left."""
        yield "only what was synced", self._tree(self.safe_names, lambda file: file.safe)
        yield "all names, synced content", self._tree(self.names, lambda file: file.safe)
        yield "all names, some of the rest", self._tree(self.names, lambda file: _torn(file, random))
        yield "everything", self._tree(self.names, lambda file: bytes(file.data))

    def _tree(self, names, content):
        tree = {}
        for name in sorted(names):
            if name == self._root or os.path.dirname(name) in tree:
                tree[name] = None if names[name] is FOLDER else content(names[name])
        return tree

    def _create(self, name, *_):
        self.names[name] = File()

    def _mkdir(self, name, *_):
        self.names[name] = FOLDER

    def _write(self, name, _, offset, data):
        file = self.names.get(name)
        if file:  # else it has lost its name, and nobody will miss it
            file.data.extend(bytes(max(0, offset - len(file.data))))
            file.data[offset : offset + len(data)] = data

    def _truncate(self, name, _, size, __):
        if file := self.names.get(name):
            del file.data[size:]
            file.data.extend(bytes(size - len(file.data)))

    def _allocate(self, name, _, end, __):
        if file := self.names.get(name):
            file.data.extend(bytes(max(0, end - len(file.data))))

    def _rename(self, name, other, *_):
        moved = [path for path in self.names if path == name or path.startswith(name + "/")]
        for path in moved:
            self.names[other + path[len(name):]] = self.names.pop(path)

    def _swap(self, name, other, *_):
        self.names[name], self.names[other] = self.names[other], self.names[name]

    def _link(self, name, other, *_):
        self.names[other] = self.names[name]

    def _unlink(self, name, *_):
        self.names.pop(name, None)

    def _sync(self, name, *_):
        thing = self.names.get(name)
        if isinstance(thing, File):
            thing.safe = bytes(thing.data)
        elif thing is FOLDER:
            self._sync_folder(name)

    def _sync_folder(self, folder):
        """Its names are certain now. A file that came from elsewhere is not also there still: moving is one step."""
        inside = {path: thing for path, thing in self.names.items() if os.path.dirname(path) == folder}
        come = {id(thing) for thing in inside.values() if thing is not FOLDER}
        for path in list(self.safe_names):
            if path != self._root and path not in self.names and (
                    os.path.dirname(path) == folder or id(self.safe_names[path]) in come):
                del self.safe_names[path]
        self.safe_names.update(inside)


def _torn(file, random):
    """Of every page that was not synced, the old state or the new one."""
    content = bytearray(file.data)
    for start in range(0, len(content), PAGE):
        new, old = content[start : start + PAGE], file.safe[start : start + PAGE]
        if new != old and random.random() < 0.5:
            content[start : start + PAGE] = old + bytes(len(new) - len(old)) if len(old) < len(new) else old[: len(new)]
    return bytes(content)


def write(tree, root, folder):
    """Puts such a tree into a folder, which stands for the root."""
    for name, content in tree.items():
        path = folder + name[len(root):]
        if content is None:
            os.makedirs(path, exist_ok=True)
        else:
            with open(path, "wb") as file:
                file.write(content)
