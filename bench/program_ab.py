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
import time


def run(program, arguments, resources):
    """One run: wall seconds, CPU seconds and peak MiB, output thrown away."""
    command = [program, "--quiet"] + (["--resources", resources] if resources else []) + arguments
    started = time.perf_counter()
    pid = os.fork()
    if pid == 0:
        null = os.open(os.devnull, os.O_WRONLY)
        os.dup2(null, 1)
        os.dup2(null, 2)
        try:
            os.execv(program, command)
        finally:
            os._exit(127)
    _, status, usage = os.wait4(pid, 0)
    wall = time.perf_counter() - started
    if os.WIFEXITED(status) and os.WEXITSTATUS(status) > 1:
        sys.exit(f"{program} {' '.join(arguments)}: exit status {os.WEXITSTATUS(status)}")
    return wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


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
    jobs = [
        ("parse --stats", ["parse", "--stats", running]),
        ("merge", ["merge", intended, running]),
        ("fallback --file", ["fallback", "--file", running, intended]),
        ("fallback --delta", ["fallback", "--delta", intended, running]),
    ]
    print(f"| job, {options.lines:,} lines | before: wall / CPU / MiB | after: wall / CPU / MiB |")
    print("|---|---:|---:|")
    for name, arguments in jobs:
        runs = {"before": [], "after": []}
        for _ in range(options.pairs):
            runs["before"].append(run(options.before, arguments, options.resources))
            runs["after"].append(run(options.after, arguments, options.resources))
        cells = []
        for build in ("before", "after"):
            wall = min(r[0] for r in runs[build])
            cpu = min(r[1] for r in runs[build])
            peak = max(r[2] for r in runs[build])
            cells.append(f"{wall:.3f} / {cpu:.3f} / {peak:.1f}")
        print(f"| {name} | {cells[0]} | {cells[1]} |")


if __name__ == "__main__":
    main()
