#!/usr/bin/env python3
"""Two builds of the program side by side: each job run by one build and then by the other, PAIRS
times, on the generated pairs of program_bench.py, and the fastest wall time, fastest CPU time (user
+ system) and largest peak memory of each build printed. Taking the runs in turns keeps a drift of the
machine's speed out of the comparison, which timing one build after the other would not.

Usage: bench/program_ab.py BEFORE AFTER INPUTS [--lines N] [--pairs K] [--resources DIR]
  BEFORE, AFTER  the two vtyconf programs
  INPUTS         a folder with running-N.cfg and intended-N.cfg (program_bench.py makes them)
"""
import argparse
import os
import sys

from program_bench import jobs, measure


def with_resources(command, resources):
    """command (program, --quiet, job...) with --resources DIR behind the program where given."""
    return command[:1] + (["--resources", resources] if resources else []) + command[1:]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("before")
    parser.add_argument("after")
    parser.add_argument("inputs")
    parser.add_argument("--lines", type=int, default=100000)
    parser.add_argument("--pairs", type=int, default=7)
    parser.add_argument("--resources", default="")
    options = parser.parse_args()
    running = os.path.join(options.inputs, f"running-{options.lines}.cfg")
    intended = os.path.join(options.inputs, f"intended-{options.lines}.cfg")
    for path in (running, intended):
        if not os.path.isfile(path):
            sys.exit(f"{path}: no such file (bench/program_bench.py makes the generated pairs)")
    print(f"| job, {options.lines:,} lines | before: wall / CPU / MiB | after: wall / CPU / MiB |")
    print("|---|---:|---:|")
    before = jobs(options.before, running, intended)
    after = jobs(options.after, running, intended)
    for (name, first), (_, second) in zip(before, after):
        runs = {"before": [], "after": []}
        for _ in range(options.pairs):
            runs["before"].append(measure(with_resources(first, options.resources)))
            runs["after"].append(measure(with_resources(second, options.resources)))
        cells = []
        for build in ("before", "after"):
            wall = min(r[0] for r in runs[build])
            cpu = min(r[1] for r in runs[build])
            peak = max(r[2] for r in runs[build])
            cells.append(f"{wall:.3f} / {cpu:.3f} / {peak:.1f}")
        print(f"| {name} | {cells[0]} | {cells[1]} |")


if __name__ == "__main__":
    main()
