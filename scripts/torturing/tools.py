"""What every row works with: the built programs, a folder of its own, and chance that can be repeated."""

import os
import random
import resource
import shutil
import tempfile


class Tools:
    """Of one row, used within a `with`. `random` gives the same again for the same seed, whichever rows run beside it.
    `all_memory` is whether every single piece of memory is to be refused, which takes a day."""

    def __init__(self, build, reports, row, seed, all_memory=False):
        self._build = os.path.abspath(build)
        self._kept = os.path.join(os.path.abspath(reports), row)
        self._row = row
        self.random = random.Random(f"{seed} {row}")
        self.all_memory = all_memory
        self.folder = None

    def __enter__(self):
        # Names of sockets are limited to about 100 characters.
        self.folder = tempfile.mkdtemp(prefix=f"torture-{self._row}-")
        # Many programs are about to be ended by signals that would leave a file each.
        resource.setrlimit(resource.RLIMIT_CORE, (0, resource.getrlimit(resource.RLIMIT_CORE)[1]))
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder, ignore_errors=True)

    @property
    def program(self):
        """Tarvelo itself."""
        return self.built("src/app/Tarvelo")

    def built(self, path):
        """A program or a library of the build, by its path in there."""
        return os.path.join(self._build, path)

    def tell(self, line):
        print(f"   {line}", flush=True)

    def keep(self, name, what):
        """A text, or a file or a folder by its path, for who looks for the reason of a failure. Gives its new path."""
        os.makedirs(self._kept, exist_ok=True)
        target = os.path.join(self._kept, name)
        if os.path.isdir(what):
            shutil.copytree(what, target, symlinks=True, dirs_exist_ok=True)
        elif os.path.isfile(what):
            shutil.copy(what, target)
        else:
            with open(target, "w", encoding="utf-8") as file:
                file.write(what)
        return target

    @staticmethod
    def forget(kept):
        """What was kept and tells of no failure after all."""
        shutil.rmtree(kept)
