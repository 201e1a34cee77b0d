#!/usr/bin/env python3
"""The cost of the Python module over the program: reading one generated file.

Generates a configuration with ../shared/tools/gen_config.py (--lines, default
100,000), then takes the best of --repeat wall-clock runs of
  the program:  vtyconf parse -j 1 --quiet --stats FILE
  the module:   python3 -c "vtyconf.parse_file(FILE)" (interpreter start and import included)
and of the in-process parse alone (grammar loaded before). Prints the figures
and the module's time against the program's. Usage: python_parse.py BUILD
"""
import argparse
import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
GENERATOR = ROOT.parent / "shared" / "tools" / "gen_config.py"
MODULE_RUN = "import sys, vtyconf; c = vtyconf.parse_file(sys.argv[1]); print(c.lines, len(c.refused))"


def best_of(repeat, command, env):
    best = float("inf")
    for _ in range(repeat):
        start = time.perf_counter()
        subprocess.run(command, env=env, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        best = min(best, time.perf_counter() - start)
    return best


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build")
    parser.add_argument("--lines", type=int, default=100_000)
    parser.add_argument("--repeat", type=int, default=5)
    args = parser.parse_args()
    build = pathlib.Path(args.build).resolve()
    cli = build / "tools" / "vtyconf" / "vtyconf"
    if not (build / "python" / "vtyconf").is_dir() or not cli.exists():
        print("python_parse: no Python module or program in this build; skipped")
        return 0
    if not GENERATOR.exists():
        print(f"python_parse: {GENERATOR} is absent; skipped")
        return 0
    env = dict(os.environ, PYTHONPATH=str(build / "python"), VTYCONF_RESOURCES=str(ROOT / "resources") + "/")
    with tempfile.TemporaryDirectory() as folder:
        config = pathlib.Path(folder) / "running.cfg"
        subprocess.run([sys.executable, str(GENERATOR), "--lines", str(args.lines), "--seed", "1",
                        "--running", str(config)], check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        program = best_of(args.repeat, [str(cli), "parse", "-j", "1", "--quiet", "--stats", str(config)], env)
        module = best_of(args.repeat, ["/usr/bin/python3", "-c", MODULE_RUN, str(config)], env)
        bare = best_of(args.repeat, ["/usr/bin/python3", "-c", "pass"], env)
        sys.path.insert(0, env["PYTHONPATH"])
        os.environ["VTYCONF_RESOURCES"] = env["VTYCONF_RESOURCES"]
        import vtyconf
        text = config.read_text()
        vtyconf.parse("hostname warm-up")
        inside = min(_timed(vtyconf.parse, text) for _ in range(args.repeat))
    print(f"python_parse: {args.lines} generated lines, best of {args.repeat}")
    print(f"  program  vtyconf parse --stats      {program:.3f} s")
    print(f"  module   python3 + vtyconf.parse    {module:.3f} s  ({100 * (module / program - 1):+.1f}%)")
    print(f"  module without the interpreter's own start ({bare:.3f} s)  "
          f"{module - bare:.3f} s  ({100 * ((module - bare) / program - 1):+.1f}%)")
    print(f"  vtyconf.parse alone, grammar loaded  {inside:.3f} s")
    return 0


def _timed(function, *args):
    start = time.perf_counter()
    function(*args)
    return time.perf_counter() - start


if __name__ == "__main__":
    sys.exit(main())
