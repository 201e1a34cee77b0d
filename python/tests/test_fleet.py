"""A fleet run on a two-worker LocalCluster equals the program's own `-j 2` run."""
import json
import os
import re

import pytest

from conftest import ROOT

fleet = pytest.importorskip("vtyconf.fleet")
pytest.importorskip("dask.bag", reason="python3-dask is not installed")

NOTE = "examples/notes/interfaces_without_description.cmf"
REFUSED = re.compile(r"^vtyconf: (?P<name>[^:]+):(?P<line>\d+): (?P<text>.*)$")


def _by_heading(stdout):
    """The program's output over many files: {file: text under its "== FILE" heading}."""
    answers, current = {}, None
    for line in stdout.splitlines(keepends=True):
        if line.startswith("== "):
            current = line[3:].rstrip("\n")
            answers[current] = ""
        elif current is not None:
            answers[current] += line
    return answers


def test_parse_fleet_equals_the_program(corpus, client, program):
    table = fleet.parse(corpus, client=client)
    completed = program("parse", "-j", "2", "--quiet", "--stats", corpus)
    theirs = [REFUSED.match(line).groups() for line in completed.stderr.splitlines()]
    ours = [(os.path.basename(row.file), str(row.error_line if row.error else item.line),
             row.error if row.error else item.text)
            for row in table for item in (row.refused or [None])
            if row.error or item is not None]
    assert ours == theirs
    lines = {m.group(1): int(m.group(2)) for m in re.finditer(r"^(\S+): (\d+) lines read", completed.stdout, re.M)}
    assert {os.path.basename(row.file): row.findings for row in table if not row.error} == lines


def test_note_fleet_equals_the_program(corpus, client, program):
    table = fleet.note(ROOT / NOTE, corpus, client=client)
    completed = program("note", "run", "-j", "2", "--quiet", "--json", NOTE, corpus)
    theirs = {file: json.loads(text) for file, text in _by_heading(completed.stdout).items()}
    assert {row.file: row.findings.to_list() for row in table} == theirs
    assert not table.failed


def test_query_fleet_equals_the_program_and_keeps_the_order_of_the_inputs(client, program):
    configs = [str(ROOT / "examples/branch-router.cfg"), str(ROOT / "examples/notes")]
    for what in (["protocols"], ["interfaces", "Gi0/1", "Loopback0"]):
        table = fleet.query(configs, *what, client=client)
        theirs = json.loads(program("query", "-j", "2", *configs, *what, "--json").stdout)
        assert [(row.file, row.findings) for row in table] == [(item["file"], item["result"]) for item in theirs]
    checked = fleet.check([ROOT / "python/tests/data/unclosed.note"], client=client)
    assert [item.line for item in checked[0].refused] and checked.refused()
