"""Reads Cisco IOS configurations the way the device does.

    >>> import vtyconf
    >>> config = vtyconf.parse("hostname r1\\ninterface Gi0/1\\n shutdown\\n")
    >>> [r.text for r in config]
    ['hostname r1', 'interface gigabitethernet 0/1']

Every function takes configuration text as a ``str``, a ``Config`` from
``parse``, or a path (``pathlib.Path`` or any ``os.PathLike``) to read.
The grammar is loaded once per process, on first use. The library allows
one operation at a time in a process: the module holds a lock for the whole
of every call and never lets another thread run beside it, so threads wait
for each other. For many files use ``vtyconf.fleet``, which spreads them over
worker processes.

Errors of every kind raise ``vtyconf.Error`` with ``file`` and ``line``
attributes (``None`` where unknown).
"""
from __future__ import annotations

import difflib
import os
import tempfile
from typing import List, NamedTuple, Optional, Union

from . import _core
from ._core import Config, Error, Record, Refusal

__all__ = [
    "Config", "Error", "Record", "Refusal", "HintLevel", "HintWord", "NoteLine", "NoteTree",
    "parse", "parse_file", "merge", "sort", "rollback", "diff", "check", "query", "hint",
    "check_note", "translate_note", "run_note", "QUERIES",
]

Text = Union[str, Config, "os.PathLike[str]"]

#: The names ``query`` takes, as ``vtyconf query`` does.
QUERIES = ("vrfs", "vrf", "protocols", "protocol", "interface", "interfaces", "acls", "acl",
           "nat", "route-map", "section", "lines")


def _read(path: "os.PathLike[str] | str") -> str:
    try:
        with open(path, "rb") as handle:
            return handle.read().decode("utf-8", "surrogateescape")
    except OSError as error:
        raised = Error(f"cannot read {os.fspath(path)}: {error.strerror}")
        raised.file, raised.line = os.fspath(path), None
        raise raised from None


def _text(value: Text) -> str:
    if isinstance(value, Config):
        return value.text
    if isinstance(value, str):
        return value
    if isinstance(value, os.PathLike):
        return _read(value)
    raise TypeError(f"expected configuration text, a Config or a path, not {type(value).__name__}")


def _name(value: Text, default: str) -> str:
    if isinstance(value, Config):
        return value.name
    if isinstance(value, os.PathLike):
        return os.path.basename(os.fspath(value))
    return default


def parse(text: Text, name: Optional[str] = None, keep_capture: bool = False) -> Config:
    """Reads a configuration; returns a ``Config``.

    ``Config.records`` holds the top-level commands (``.text``, ``.level``,
    ``.line``, ``.order``, ``.flag``, ``.flags``, ``.children``);
    ``Config.refused`` the lines the device refused, each with its ``line``
    number in the text and the device's ``message``. A terminal capture is
    cleaned first (prompt, "Building configuration...") unless
    ``keep_capture``; the line numbers stay those of the text. ``name`` is
    the file name that refusals and errors carry.
    """
    return _core.parse(_text(text), name or _name(text, "<text>"), not keep_capture)


def parse_file(path: "os.PathLike[str] | str", keep_capture: bool = False) -> Config:
    """Reads the configuration file at ``path`` (named by its file name)."""
    return _core.parse(_read(path), os.path.basename(os.fspath(path)), not keep_capture)


def merge(changes: Text, config: Text) -> str:
    """The configuration after the change set, in device order."""
    return _core.merge(_text(changes), _text(config))


def rollback(first: Text, second: Text, delta: bool = False) -> str:
    """The commands that lead back, compared over every level.

    ``delta=False``: the commands that turn configuration ``first`` into
    ``second``. ``delta=True``: ``first`` is a change set applied to
    ``second``, and the result undoes it (``vtyconf fallback --delta``).
    """
    return _core.rollback(_text(first), _text(second), delta)


def sort(config: Text) -> str:
    """The commands of the configuration in device order (``vtyconf sort``)."""
    return _core.sort(_text(config))


def diff(first: Text, second: Text, context: int = 3) -> str:
    """A unified line diff of both configurations, each put in device order."""
    before = [line.rstrip() + "\n" for line in _core.sort(_text(first)).splitlines()]
    after = [line.rstrip() + "\n" for line in _core.sort(_text(second)).splitlines()]
    return "".join(difflib.unified_diff(before, after, _name(first, "first"), _name(second, "second"),
                                        n=context))


def check(changes: Text, config: Text = "") -> List[Refusal]:
    """The lines of a change set that the device would refuse (empty: none)."""
    return _core.check(_text(changes), _text(config), _name(changes, "<changes>"))


def query(config: Text, what: str, *keys: str) -> Union[str, List[str]]:
    """A fixed search, as ``vtyconf query``: ``query(config, "interface", "Gi0/1")``.

    ``interfaces`` and ``acls`` give a list, the other queries text.
    """
    if isinstance(config, os.PathLike):
        return _core.query(os.fspath(config), what, list(keys))
    with tempfile.TemporaryDirectory(prefix="vtyconf-") as folder:
        path = os.path.join(folder, "config.txt")
        with open(path, "w", encoding="utf-8", errors="surrogateescape") as handle:
            handle.write(_text(config))
        return _core.query(path, what, list(keys))


class HintWord(NamedTuple):
    word: str
    help: str


class HintLevel(NamedTuple):
    prompt: str
    words: List[HintWord]


def hint(config: Text, line: str) -> List[HintLevel]:
    """The words that may follow ``line`` at the end of ``config``, innermost level first."""
    return [HintLevel(prompt, [HintWord(*word) for word in words])
            for prompt, words in _core.hint(_text(config), line)]


class NoteLine(NamedTuple):
    """One line of a note's result: ``line`` is the configuration line (-1: none)."""
    line: int
    text: str
    tag: str
    count: int
    children: "NoteTree"

    def to_dict(self) -> dict:
        """The line as ``vtyconf note run --json`` writes it."""
        return {"line": self.line, "text": self.text, "tag": self.tag, "count": self.count,
                "children": self.children.to_list()}


class NoteTree(list):
    """The result tree of a note run: a list of ``NoteLine``."""

    def to_list(self) -> list:
        return [line.to_dict() for line in self]

    def lines(self, depth: int = 0):
        """The tree as text lines, two blanks per level, "N: text" where a line has a number."""
        for line in self:
            number = f"{line.line}: " if line.line > 0 else ""
            yield "  " * depth + number + line.text
            yield from line.children.lines(depth + 1)

    def __str__(self) -> str:
        return "".join(text + "\n" for text in self.lines())


def _tree(lines) -> NoteTree:
    return NoteTree(NoteLine(number, text, tag, count, _tree(children))
                    for number, text, tag, count, children in lines)


def check_note(script: "os.PathLike[str] | str") -> List[str]:
    """The messages of the delimiter check and trial translation of a design script file."""
    return _core.check_note(os.fspath(script))


def translate_note(script: "os.PathLike[str] | str") -> str:
    """The Perl program of a design script file; ``Error`` when the translator refuses it."""
    return _core.translate_note(os.fspath(script))


def run_note(script: "os.PathLike[str] | str", config: Text,
             ui: Optional[dict] = None) -> NoteTree:
    """Runs a design note over a configuration with ``perl``; returns its result tree.

    ``ui`` gives the user's values by kind (``interface``, ``protocol``,
    ``address``, ``interface-name``, ``vrf``, ``route-map``, ``nat``); a value
    may be a string or a list of strings.
    """
    values = []
    for kind, value in (ui or {}).items():
        for item in ([value] if isinstance(value, str) else value):
            values.append((kind, item))
    return _tree(_core.run_note(os.fspath(script), _text(config), _name(config, "<text>"), values))


def _use_packaged_resources() -> None:
    """A wheel carries the resources inside the package; use them unless told otherwise."""
    packaged = os.path.join(os.path.dirname(__file__), "resources")
    if "VTYCONF_RESOURCES" not in os.environ and os.path.isdir(packaged):
        _core.set_resources(packaged + os.sep)


_use_packaged_resources()
