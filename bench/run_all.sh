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
exit $status
