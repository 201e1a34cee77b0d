#!/bin/sh
# Runs every example note over every configuration of a corpus folder and
# counts the runs, the runs that found something, and the runs that wrote
# anything on standard error (a Perl warning or error) or failed.
# Usage: scripts/check-notes-corpus.sh VTYCONF NOTES_DIR CORPUS_DIR
set -u
cli=$1 notes=$2 corpus=$3
runs=0 found=0 bad=0
err=$(mktemp) out=$(mktemp)
trap 'rm -f "$err" "$out"' EXIT
for note in "$notes"/*.cmf; do
  n=0 f=0
  for cfg in "$corpus"/*.cfg; do
    runs=$((runs + 1)) n=$((n + 1))
    if ! "$cli" --quiet note run "$note" "$cfg" >"$out" 2>"$err"; then
      bad=$((bad + 1)); echo "FAILED: $note $cfg"; sed 's/^/  /' "$err" | head -5
    elif grep -v '(left out of the capture)' "$err" | grep -q .; then
      bad=$((bad + 1)); echo "STDERR: $note $cfg"; sed 's/^/  /' "$err" | head -5
    fi
    if [ -s "$out" ]; then f=$((f + 1)) found=$((found + 1)); fi
  done
  echo "$(basename "$note"): $f of $n configurations with a finding"
done
echo "runs: $runs, with a finding: $found, with a warning or error: $bad"
[ "$bad" -eq 0 ]
