"""What the static checks share: which files are the project's own, and what includes what."""

import os
import re
import subprocess

# The folders in which an include is looked up after the including file's own, as for the compiler.
INCLUDE_FOLDERS = ("", "src", "host")
# Made by the build, so not to be found in the tree.
GENERATED = re.compile(r"(^|/)(moc_|ui_|qrc_)[^/]*$|\.moc$|Export\.h$")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def default_root():
    return os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def project_files(root, endings=()):
    """The files of the tree, relative to its root: those that git does not ignore or, outside git,
    all but the build folder's."""
    listed = subprocess.run(
        ["git", "-C", root, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        capture_output=True, check=False) if os.path.exists(os.path.join(root, ".git")) else None
    if listed and listed.returncode == 0:
        names = set(os.fsdecode(listed.stdout).split("\0")) - {""}
    else:
        names = set(_walk(root))
    return sorted(name for name in names
                  if name.endswith(tuple(endings) or "") and os.path.isfile(os.path.join(root, name)))


def _walk(root):
    for folder, folders, files in os.walk(root):
        if folder == root:
            folders[:] = [name for name in folders if name not in ("build", ".git")]
        for name in files:
            yield os.path.relpath(os.path.join(folder, name), root)


class IncludeGraph:
    """Who includes whom among the project's files; reads each file once."""

    def __init__(self, root):
        self.root = root
        self._lines = {}

    def includes(self, name):
        """(line number, included text, is it quoted) for each include of a file."""
        if name not in self._lines:
            with open(os.path.join(self.root, name), encoding="utf-8") as source:
                matches = ((number, INCLUDE.match(line)) for number, line in enumerate(source, 1))
                self._lines[name] = [(number, match.group(2), match.group(1) == '"')
                                     for number, match in matches if match]
        return self._lines[name]

    def resolve(self, name, included):
        """The project's file that an include of another one means; None if it is no such file."""
        for folder in (os.path.dirname(name),) + INCLUDE_FOLDERS:
            candidate = os.path.normpath(os.path.join(folder, included))
            if os.path.isfile(os.path.join(self.root, candidate)):
                return candidate
        return None

    def own_includes(self, name):
        """The project's files that a file includes itself."""
        resolved = (self.resolve(name, included) for _, included, _ in self.includes(name))
        return [target for target in resolved if target]

    def closure(self, name):
        """A file with all project files that it includes, however indirectly."""
        seen, waiting = set(), [name]
        while waiting:
            current = waiting.pop()
            if current not in seen:
                seen.add(current)
                waiting += self.own_includes(current)
        return seen
