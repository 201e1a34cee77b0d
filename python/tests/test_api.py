"""The module against the program: every operation gives what `vtyconf` prints."""
import json
import pathlib
import threading

import pytest

import vtyconf
from conftest import ROOT, load_table

EXAMPLE_CONFIGS = sorted(p.relative_to(ROOT).as_posix()
                         for p in [ROOT / "examples/branch-router.cfg", *ROOT.glob("examples/notes/*.sample1")])


def _paths(args):
    return [pathlib.Path(ROOT / arg) for arg in args]


def _hint_json(levels):
    return [{"prompt": level.prompt, "words": [{"word": w.word, "help": w.help} for w in level.words]}
            for level in levels]


def _note_messages(completed, script):
    prefix = f"vtyconf: {script}: "
    return [line[len(prefix):] for line in completed.stderr.splitlines() if line.startswith(prefix)]


def _ui_options(ui):
    return [f"--ui={kind}={value}" for kind, values in ui.items() for value in values]


# op: (what the module answers, what the program answers), both comparable.
OPERATIONS = {
    "sort": (lambda c: vtyconf.sort(*_paths(c["args"])), lambda run, c: run("sort", *c["args"]).stdout),
    "merge": (lambda c: vtyconf.merge(*_paths(c["args"])),
              lambda run, c: run("merge", *c["args"]).stdout.replace("\0", " ")),
    "rollback": (lambda c: vtyconf.rollback(*_paths(c["args"])),
                 lambda run, c: run("fallback", "--file", *c["args"]).stdout.replace("\0", " ")),
    "rollback-delta": (lambda c: vtyconf.rollback(*_paths(c["args"]), delta=True),
                       lambda run, c: run("fallback", "--delta", *c["args"]).stdout.replace("\0", " ")),
    "query": (lambda c: vtyconf.query(pathlib.Path(ROOT / c["args"][0]), *c["args"][1:]),
              lambda run, c: json.loads(run("query", *c["args"], "--json").stdout)),
    "hint": (lambda c: _hint_json(vtyconf.hint(pathlib.Path(ROOT / c["args"][0]), c["args"][1])),
             lambda run, c: json.loads(run("hint", *c["args"], "--json").stdout)),
    "check_note": (lambda c: vtyconf.check_note(ROOT / c["args"][0]),
                   lambda run, c: _note_messages(run("note", "check", c["args"][0]), c["args"][0])),
    "translate_note": (lambda c: vtyconf.translate_note(ROOT / c["args"][0]),
                       lambda run, c: run("note", "translate", c["args"][0]).stdout),
    "run_note": (lambda c: vtyconf.run_note(ROOT / c["args"][0], pathlib.Path(ROOT / c["args"][1]),
                                            ui=c.get("ui")).to_list(),
                 lambda run, c: json.loads(run("note", "run", *c["args"], "--json",
                                               *_ui_options(c.get("ui", {}))).stdout)),
}


@load_table("operations.json")
def test_operation_gives_what_the_program_prints(case, program):
    ours, theirs = OPERATIONS[case["op"]]
    assert ours(case) == theirs(program, case)


@pytest.mark.parametrize("config", EXAMPLE_CONFIGS)
def test_parse_gives_the_records_and_refusals_of_the_program(config, program):
    parsed = vtyconf.parse_file(ROOT / config)
    completed = program("parse", config, "--json")
    assert [record.to_dict() for record in parsed] == json.loads(completed.stdout)
    refused = [f"vtyconf: {r.file}:{r.line}: {r.text}" for r in parsed.refused]
    assert refused == [line for line in completed.stderr.splitlines() if "left out" not in line]
    assert len(parsed) == len(parsed.records) and all(r.level == 0 for r in parsed)


@load_table("refused.json")
def test_refused_lines_carry_the_line_of_the_text(case):
    parsed = vtyconf.parse(case["text"], keep_capture=case.get("keep_capture", False))
    assert [[r.line, r.text, r.message] for r in parsed.refused] == case["refused"]
    assert len(parsed.left_out) == case.get("left_out", 0)
    assert [[r.line, r.text, r.message] for r in vtyconf.check(case["text"])] == \
        ([] if case.get("keep_capture") else case["refused"])


def test_records_nest_by_level_and_keep_their_config_alive():
    record = vtyconf.parse("interface Gi0/1\n description x\n shutdown\n").records[0]
    assert [(child.level, child.text) for child in record.children] == [(1, "description x"), (1, "shutdown")]
    assert record.children[0].line == 2 and "mode" in record.flags and record.order > 0


def test_diff_compares_in_device_order():
    same = "interface Gi0/1\n shutdown\nhostname r1\n"
    assert vtyconf.diff(same, "hostname r1\ninterface Gi0/1\n shutdown\n") == ""
    assert "+hostname r2" in vtyconf.diff("hostname r1\n", "hostname r2\n").splitlines()


ERRORS = [
    ("unknown-query", lambda: vtyconf.query("hostname r1\n", "routes"), None),
    ("query-needs-a-key", lambda: vtyconf.query("hostname r1\n", "interface"), None),
    ("missing-config-file", lambda: vtyconf.parse_file("no/such.cfg"), "no/such.cfg"),
    ("missing-path-argument", lambda: vtyconf.merge(pathlib.Path("no/such.cfg"), ""), "no/such.cfg"),
    ("missing-script", lambda: vtyconf.run_note("no/such.cmf", "hostname r1\n"), "no/such.cmf"),
    ("unknown-ui-kind", lambda: vtyconf.run_note(ROOT / "examples/notes/shut_interfaces.cmf", "",
                                                 ui={"colour": "red"}), None),
]


@pytest.mark.parametrize("call,file", [(call, file) for _, call, file in ERRORS], ids=[e[0] for e in ERRORS])
def test_errors_are_one_type_with_their_file(call, file):
    with pytest.raises(vtyconf.Error) as raised:
        call()
    assert raised.value.file == file and str(raised.value)


def test_a_range_value_of_zeros_is_a_refused_line():
    # Read as the device reads pasted text, a value the toolkit cannot take
    # refuses its line; the reading goes on behind it.
    parsed = vtyconf.parse("hostname R1\n!\n\ncts server deadtime 0\nhostname R2\n", name="zeros.cfg")
    assert [(r.line, r.text) for r in parsed.refused] == [(4, "cts server deadtime 0")]
    assert any(r.text == "hostname R2" for r in parsed)


def test_threads_wait_for_each_other():
    text = (ROOT / "examples/branch-router.cfg").read_text()
    expected = [r.to_dict() for r in vtyconf.parse(text)]
    answers = []
    threads = [threading.Thread(target=lambda: answers.append([r.to_dict() for r in vtyconf.parse(text)]))
               for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert answers == [expected] * 4
