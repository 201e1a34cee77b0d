"""Many configurations at once, on a Dask cluster.

    >>> from vtyconf import fleet
    >>> table = fleet.parse("configs/")                       # a LocalCluster
    >>> table = fleet.note("audit.cmf", "configs/", client="tcp://scheduler:8786")

A folder stands for the regular files in it (sorted by name, hidden files left
out), as for ``vtyconf parse -j N``. The files are read here and their texts
shipped to the workers in a Dask bag, so the workers need no shared folder;
each worker process loads the grammar once, on its first file. The answer is a
``Table``: one ``FileResult`` per file, in the order of the inputs, with the
refused lines, the findings of the job and the error that stopped it (a file
that fails does not stop the others).

``client`` is a ``distributed.Client``, a scheduler address, or ``None`` for a
``LocalCluster`` of ``workers`` single-threaded processes that lives for the
one call (the module allows one operation at a time per process, so a process
per worker is what gives parallel work).
"""
from __future__ import annotations

import os
import tempfile
from typing import Any, Callable, Iterable, List, NamedTuple, Optional, Sequence, Tuple, Union

import vtyconf

__all__ = ["FileResult", "Refused", "Table", "expand", "run", "parse", "query", "check", "note"]

Paths = Union[str, "os.PathLike[str]", Iterable[Union[str, "os.PathLike[str]"]]]


class Refused(NamedTuple):
    line: int
    text: str
    message: str


class FileResult(NamedTuple):
    file: str
    refused: List[Refused]
    findings: Any
    error: Optional[str]
    error_line: Optional[int] = None


class Table(list):
    """The results of a fleet run: a list of ``FileResult``, one per file."""

    @property
    def failed(self) -> List[FileResult]:
        return [row for row in self if row.error is not None]

    def refused(self) -> List[Tuple[str, Refused]]:
        """Every refused line of every file, as (file, Refused)."""
        return [(row.file, item) for row in self for item in row.refused]

    def __str__(self) -> str:
        lines = []
        for row in self:
            state = f"error: {row.error}" if row.error else f"{len(row.refused)} refused"
            lines.append(f"{row.file}\t{state}")
        return "\n".join(lines) + ("\n" if lines else "")


def expand(configs: Paths) -> List[str]:
    """The files named by ``configs``; a folder stands for the files in it."""
    if isinstance(configs, (str, os.PathLike)):
        configs = [configs]
    files = []
    for item in configs:
        path = os.fspath(item)
        if os.path.isdir(path):
            names = sorted(name for name in os.listdir(path)
                           if not name.startswith(".") and os.path.isfile(os.path.join(path, name)))
            files.extend(os.path.join(path, name) for name in names)
        elif os.path.exists(path):
            files.append(path)
        else:
            error = vtyconf.Error(f"{path}: no such file or folder")
            error.file, error.line = path, None
            raise error
    return files


def _refused(items) -> List[Refused]:
    return [Refused(item.line, item.text, item.message) for item in items]


# The jobs run in the workers on (file, text); each returns (refused, findings).
def _parse_job(file: str, text: str) -> Tuple[List[Refused], Any]:
    config = vtyconf.parse(text, os.path.basename(file))
    return _refused(config.refused), config.lines


def _query_job(what: str, keys: Sequence[str]) -> Callable:
    def job(file: str, text: str):
        return [], vtyconf.query(text, what, *keys)
    return job


def _check_job(config: str) -> Callable:
    def job(file: str, text: str):
        return _refused(vtyconf.check(text, config)), None
    return job


def _note_job(script_name: str, script: bytes, ui: Optional[dict]) -> Callable:
    def job(file: str, text: str):
        with tempfile.TemporaryDirectory(prefix="vtyconf-fleet-") as folder:
            path = os.path.join(folder, os.path.basename(script_name))
            with open(path, "wb") as handle:
                handle.write(script)
            return [], vtyconf.run_note(path, vtyconf.parse(text, os.path.basename(file)), ui)
    return job


def _one(job: Callable, item: Tuple[str, str]) -> FileResult:
    file, text = item
    try:
        refused, findings = job(file, text)
        return FileResult(file, refused, findings, None)
    except vtyconf.Error as error:
        return FileResult(file, [], None, str(error), getattr(error, "line", None))


def _read(file: str) -> str:
    with open(file, "rb") as handle:
        return handle.read().decode("utf-8", "surrogateescape")


def run(configs: Paths, job: Callable, client=None, workers: Optional[int] = None,
        partitions: Optional[int] = None) -> Table:
    """Maps ``job(file, text) -> (refused, findings)`` over the files as a Dask bag."""
    import dask.bag
    from distributed import Client, LocalCluster

    files = expand(configs)
    items = [(file, _read(file)) for file in files]
    if not items:
        return Table()
    owned = []
    if client is None:
        cluster = LocalCluster(n_workers=workers or os.cpu_count() or 1, threads_per_worker=1,
                               processes=True, dashboard_address=None)
        client = Client(cluster)
        owned = [client, cluster]
    elif isinstance(client, str):
        client = Client(client)
        owned = [client]
    try:
        count = partitions or min(len(items), 4 * max(1, len(client.scheduler_info()["workers"])))
        bag = dask.bag.from_sequence(items, npartitions=count).map(lambda item: _one(job, item))
        return Table(client.gather(client.compute(bag)))
    finally:
        for thing in owned:
            thing.close()


def parse(configs: Paths, **options) -> Table:
    """Reads every file; findings: the number of lines read. As ``vtyconf parse -j N``."""
    return run(configs, _parse_job, **options)


def query(configs: Paths, what: str, *keys: str, **options) -> Table:
    """A fixed search over every file; findings: its answer. As ``vtyconf query -j N``."""
    return run(configs, _query_job(what, keys), **options)


def check(configs: Paths, config: vtyconf.Text = "", **options) -> Table:
    """The refused lines of every change set."""
    return run(configs, _check_job(vtyconf._text(config)), **options)


def note(script: "str | os.PathLike[str]", configs: Paths, ui: Optional[dict] = None, **options) -> Table:
    """Runs a design note over every file; findings: its result tree. As ``vtyconf note run -j N``."""
    with open(script, "rb") as handle:
        text = handle.read()
    return run(configs, _note_job(os.fspath(script), text, ui), **options)
