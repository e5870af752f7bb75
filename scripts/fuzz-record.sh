#!/usr/bin/env bash
# Runs the fuzz targets one after the other, each with the same number of inputs, and writes a table
# for docs/reliability.md. One process, at the lowest priority.
#
#   scripts/fuzz-record.sh [-n INPUTS] [-o FOLDER] [TARGET...]
#
# INPUTS is 5000000 unless given, FOLDER build/fuzz/record, the targets all of them. A target whose
# reader needs long inputs to come to its limit runs a tenth of them more, with such inputs, as
# "NAME-long". FOLDER keeps a log a row, the corpus, the table (table.md) and every input that
# failed. A row that stands in the table already is not run again, so that a run that was stopped
# goes on. Exit code 1 if a target failed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
inputs=5000000
out=$root/build/fuzz/record
while getopts n:o: option; do
  case $option in
    n) inputs=$OPTARG ;;
    o) out=$OPTARG ;;
    *) exit 2 ;;
  esac
done
shift $((OPTIND - 1))
targets=("$@")
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(ls fuzz/seeds)

# shellcheck source=scripts/setup.sh
. scripts/setup.sh
setup "${fuzz_packages[@]}"
build fuzz

# Stacks of allocations are not kept: that doubles the pace, and a failing input is run again with
# them to see more.
export ASAN_OPTIONS=malloc_context_size=0:quarantine_size_mb=4:detect_leaks=1
export UBSAN_OPTIONS=print_stacktrace=1
mkdir -p "$out"
table=$out/table.md
[ -f "$table" ] || cat > "$table" <<'EOF'
| Target | Inputs | Seconds | Inputs/s | Coverage, seeds | Coverage, end | Failures |
|---|---:|---:|---:|---:|---:|---:|
EOF

# The longest input of a target, in bytes: long enough for all that its reader tells apart.
longest() {
  case $1 in
    link | datafile) echo 192 ;; # each byte is an exchange with the board
    ldt-long) echo 20000 ;;      # beyond the last address
    *) echo 512 ;;
  esac
}

# The rows of a target.
rows() {
  echo "$1"
  [ "$1" != ldt ] || echo ldt-long
}

# Coverage at the first or last status line of libFuzzer that has one.
coverage() { grep -ao "$2.* cov: [0-9]*" "$1" | sed 's/.*cov: //' | tail -n 1; }

failed=0
run() {
  local row=$1 target=${1%-long} count=$inputs
  [ "$row" = "$target" ] || count=$((inputs / 10))
  folder=$out/$row
  log=$folder/log
  rm -rf "$folder"
  mkdir -p "$folder/corpus"
  start=$(date +%s)
  # The fuzzer ends at its first failure: its row then shows fewer inputs and that failure.
  nice -n 19 "build/fuzz/bin/fuzz_$target" -runs="$count" -max_len="$(longest "$row")" \
    -timeout=60 -rss_limit_mb=2048 -artifact_prefix="$folder/" -print_final_stats=1 \
    "$folder/corpus" "fuzz/seeds/$target" > "$log" 2>&1 || true
  seconds=$(($(date +%s) - start))
  done_inputs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  failures=$(find "$folder" -maxdepth 1 \( -name 'crash-*' -o -name 'leak-*' -o -name 'timeout-*' \
    -o -name 'oom-*' \) | wc -l)
  printf '| %s | %s | %s | %s | %s | %s | %s |\n' "$row" "${done_inputs:-?}" "$seconds" \
    "$((${done_inputs:-0} / (seconds > 0 ? seconds : 1)))" "$(coverage "$log" INITED)" \
    "$(coverage "$log" '')" "$failures" | tee -a "$table"
  [ "$failures" -eq 0 ] || failed=1
}

for target in "${targets[@]}"; do
  for row in $(rows "$target"); do
    grep -q "^| $row |" "$table" || run "$row"
  done
done
printf 'Table: %s\n' "$table"
exit $failed
