#!/usr/bin/env python3
"""Whole-program jobs as users wait for them, timed from outside the program.

Generates configurations of 1k, 10k and 100k lines (and 1M with --million)
with ../shared/tools/gen_config.py --seed 1 --change-pct 1, a running file and
its changed copy, then runs the program of BUILD on them:
  parse --stats RUNNING
  merge INTENDED RUNNING             (the whole intended file as change set)
  fallback --file RUNNING INTENDED
  fallback --delta INTENDED RUNNING
  fallback --delta SMALL RUNNING     (a change set of seven lines: an access-list entry, a
                                      description and the hostname, as people send them)
  parse --stats EMPTY                (start-up and grammar load alone)
Each job takes the best of --repeat runs (one at 1M); wall time, CPU time
(user + system) and peak resident memory come from wait4's resource usage.
Prints a Markdown table, and the cost per line at the largest size against
that at 100k. Usage: program_bench.py BUILD [--million] [--repeat N]
"""
import argparse
import os
import pathlib
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
GENERATOR = ROOT.parent / "shared" / "tools" / "gen_config.py"


def measure(command):
    """Wall seconds, CPU seconds and peak MiB of one run of command."""
    start = time.perf_counter()
    with open(os.devnull, "wb") as sink:
        process = subprocess.Popen(command, stdout=sink, stderr=sink)
        _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - start
    if os.waitstatus_to_exitcode(status) < 0:
        raise RuntimeError(f"{' '.join(command)} died: status {status}")
    return wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024.0


def best_of(repeat, command):
    runs = [measure(command) for _ in range(repeat)]
    return min(runs, key=lambda run: run[0])


def generate(folder, lines):
    running = folder / f"running-{lines}.cfg"
    intended = folder / f"intended-{lines}.cfg"
    if not (running.exists() and intended.exists()):
        subprocess.run([sys.executable, str(GENERATOR), "--lines", str(lines), "--seed", "1",
                        "--change-pct", "1", "--running", str(running), "--intended", str(intended)],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return running, intended


def small_changes(running):
    """A change set of seven lines for the configuration RUNNING, written beside it: an entry
    added to its first extended access list, its first interface described anew, the hostname."""
    path = running.with_name(running.stem + ".small-changes.cfg")
    if not path.exists():
        acl, interface = None, None
        with open(running, encoding="utf-8", errors="replace") as text:
            for line in text:
                if acl is None and line.startswith("ip access-list extended "):
                    acl = line.rstrip()
                if interface is None and line.startswith("interface "):
                    interface = line.rstrip()
                if acl and interface:
                    break
        lines = []
        if acl:
            lines += [acl, " permit tcp any any eq 2222", "!"]
        if interface:
            lines += [interface, " description edited by change", "!"]
        lines.append("hostname edited-router")
        path.write_text("\n".join(lines) + "\n")
    return path


def jobs(program, running, intended):
    base = [str(program), "--quiet"]
    small = small_changes(pathlib.Path(running))
    return [
        ("parse --stats", base + ["parse", "-j", "1", "--stats", str(running)]),
        ("merge", base + ["merge", str(intended), str(running)]),
        ("fallback --file", base + ["fallback", "--file", str(running), str(intended)]),
        ("fallback --delta", base + ["fallback", "--delta", str(intended), str(running)]),
        ("fallback --delta, 7-line change set", base + ["fallback", "--delta", str(small), str(running)]),
    ]


def row(job, lines, figures):
    wall, cpu, peak = figures
    return f"| {job} | {lines:,} | {wall:.3f} | {cpu:.3f} | {peak:.1f} |"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", default="build-bench")
    parser.add_argument("--million", action="store_true", help="add the 1,000,000-line runs (about a minute)")
    parser.add_argument("--repeat", type=int, default=3)
    args = parser.parse_args()
    build = pathlib.Path(args.build).resolve()
    program = build / "tools" / "vtyconf" / "vtyconf"
    if not program.exists():
        print(f"program_bench: no program at {program}; skipped")
        return 0
    if not GENERATOR.exists():
        print(f"program_bench: no generator at {GENERATOR}; skipped")
        return 0
    folder = build / "program-inputs"
    folder.mkdir(parents=True, exist_ok=True)
    empty = folder / "empty.cfg"
    empty.write_text("")
    sizes = [1000, 10000, 100000] + ([1000000] if args.million else [])

    print("| job | lines | wall s | CPU s | peak MiB |")
    print("|-----|------:|-------:|------:|---------:|")
    figures = {}
    empty_run = best_of(args.repeat, [str(program), "--quiet", "parse", "-j", "1", "--stats", str(empty)])
    print(row("empty configuration", 0, empty_run), flush=True)
    for lines in sizes:
        running, intended = generate(folder, lines)
        repeat = 1 if lines >= 1000000 else args.repeat
        for job, command in jobs(program, running, intended):
            figures[(job, lines)] = best_of(repeat, command)
            print(row(job, lines, figures[(job, lines)]), flush=True)
    largest = sizes[-1]
    if largest > 100000:
        print()
        for job, _ in jobs(program, empty, empty):
            small = (figures[(job, 100000)][1] - empty_run[1]) / 100000
            large = (figures[(job, largest)][1] - empty_run[1]) / largest
            print(f"{job}: CPU per line at {largest:,} is {large / small:.2f} times that at 100,000")
    return 0


if __name__ == "__main__":
    sys.exit(main())
