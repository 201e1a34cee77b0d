#!/usr/bin/env bash
# Runs every benchmark program of a build folder (default build-bench) and
# keeps a JSON copy of each report in <build>/bench-results/.
# Extra arguments go to every program (e.g. --benchmark_filter=Merge).
set -euo pipefail
build="${1:-build-bench}"
shift || true
results="$build/bench-results"
mkdir -p "$results"
status=0
for program in "$build"/bench/*_bench; do
  [ -x "$program" ] || continue
  name="$(basename "$program")"
  echo "== $name"
  if ! "$program" --benchmark_out="$results/$name.json" --benchmark_out_format=json "$@"; then
    echo "$name failed" >&2
    status=1
  fi
done
# The Python module against the program (skips itself where the build has no module).
echo "== python_parse"
if ! /usr/bin/python3 "$(dirname "$0")/python_parse.py" "$build"; then
  echo "python_parse failed" >&2
  status=1
fi
# Whole-program jobs timed from outside (VTYCONF_BENCH_MILLION=1 adds 1M lines).
echo "== program_bench"
million=()
[ -n "${VTYCONF_BENCH_MILLION:-}" ] && million=(--million)
if ! /usr/bin/python3 "$(dirname "$0")/program_bench.py" "$build" "${million[@]}"; then
  echo "program_bench failed" >&2
  status=1
fi
exit $status
