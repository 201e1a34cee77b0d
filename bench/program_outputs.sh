#!/usr/bin/env bash
# Writes what the program prints for every whole-program job (parse, parse
# --json, merge, fallback --file/--delta, sort, three queries) over the corpus
# folders and a generated pair, the delta rollback of a change set of a few
# lines over each of those files, and the library's own merge and fallback
# forms (--merge-form, --cut-at-deep-levels) over the generated pair, one file
# per run, into OUT. Two such folders compared with `diff -r` show whether a
# change to the program changed any output byte.
# Usage: bench/program_outputs.sh PROGRAM OUT [LINES]
set -uo pipefail
program="$1"
out="$2"
lines="${3:-10000}"
root="$(cd "$(dirname "$0")/.." && pwd)"
# The folder by its own path, so that outputs made from two checkouts compare.
shared="$(cd "$root/../shared" 2>/dev/null && pwd -P || echo "$root/../shared")"
mkdir -p "$out"

# One run: its standard output, standard error and exit status in one file.
run() {
  local name="$1"
  shift
  {
    "$program" --quiet "$@" 2>&1
    echo "exit $?"
  } > "$out/$name.txt"
}

files=()
for folder in "$shared/corpus/public" "$shared/corpus-wide"; do
  if [ -d "$folder" ]; then
    while IFS= read -r f; do files+=("$f"); done < <(find "$folder" -name '*.cfg' | sort)
  else
    echo "skipping $folder: not present" >&2
  fi
done
generated="$out/.generated"
mkdir -p "$generated"
python3 "$shared/tools/gen_config.py" --lines "$lines" --seed 1 --change-pct 1 \
  --running "$generated/running.cfg" --intended "$generated/intended.cfg" >/dev/null
files+=("$generated/running.cfg" "$generated/intended.cfg")

# A change set of a few lines for the configuration FILE, as people send one:
# an entry for its first named access list (or a numbered one), its first
# interface described anew, the hostname. Its access-list line has it undone
# through the configuration it gives. Written to OUT.
small_changes() {
  local acl interface
  acl="$(grep -m 1 -E '^ip access-list (standard|extended) ' "$1")"
  interface="$(grep -m 1 '^interface ' "$1")"
  {
    if [ -n "$acl" ]; then printf '%s\n remark vtyconf check\n!\n' "$acl"; else echo "access-list 99 remark vtyconf check"; fi
    if [ -n "$interface" ]; then printf '%s\n description vtyconf check\n no shutdown\n!\n' "$interface"; fi
    echo "hostname vtyconf-check"
  } > "$2"
}
mkdir -p "$generated/small"

previous="${files[${#files[@]}-1]}"
for f in "${files[@]}"; do
  name="$(basename "$(dirname "$f")")__$(basename "$f")"
  run "$name.parse" parse -j 1 "$f"
  run "$name.parse-json" parse -j 1 --json "$f"
  run "$name.parse-stats" parse -j 1 --stats "$f"
  run "$name.sort" sort "$f"
  mapfile -t names < <(grep -m 3 '^interface ' "$f" | awk '{print $2}')
  [ ${#names[@]} -gt 0 ] || names=(Loopback0)
  run "$name.query-interfaces" query -j 1 "$f" interfaces "${names[@]}"
  run "$name.query-acls" query -j 1 "$f" acls
  run "$name.query-protocols" query -j 1 "$f" protocols
  run "$name.merge" merge "$previous" "$f"
  run "$name.fallback-file" fallback --file "$previous" "$f"
  run "$name.fallback-delta" fallback --delta "$previous" "$f"
  small_changes "$f" "$generated/small/$name"
  run "$name.fallback-delta-small" fallback --delta "$generated/small/$name" "$f"
  previous="$f"
done
run generated.merge merge "$generated/intended.cfg" "$generated/running.cfg"
run generated.fallback-file fallback --file "$generated/running.cfg" "$generated/intended.cfg"
run generated.fallback-delta fallback --delta "$generated/intended.cfg" "$generated/running.cfg"
run generated.merge-form merge --merge-form "$generated/intended.cfg" "$generated/running.cfg"
for mode in file delta; do
  first="$generated/running.cfg"
  second="$generated/intended.cfg"
  [ "$mode" = delta ] && { first="$generated/intended.cfg"; second="$generated/running.cfg"; }
  run "generated.fallback-$mode-merge-form" fallback "--$mode" --merge-form "$first" "$second"
  run "generated.fallback-$mode-cut" fallback "--$mode" --cut-at-deep-levels --merge-form "$first" "$second"
done
run empty.parse-stats parse -j 1 --stats /dev/null
echo "$(find "$out" -maxdepth 1 -name '*.txt' | wc -l) outputs in $out"
