#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Tests the table of scripts/benchmark with results in the format of Google Benchmark: the median of several
# repetitions, a single run, a counter, a value without a reference, a skipped benchmark, and a missing one.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

# run NAME AGGREGATE TIME UNIT [MORE MEMBERS]
run() {
  local type=aggregate name=$1_$2
  [[ $2 != - ]] || { type=iteration name=$1; }
  printf '    {\n      "name": "%s",\n      "run_name": "%s",\n      "run_type": "%s",\n' "$name" "$1" "$type"
  [[ $2 == - ]] || printf '      "aggregate_name": "%s",\n' "$2"
  printf '%s' "${5:-}"
  printf '      "real_time": %s,\n      "cpu_time": 1.0e+00,\n      "time_unit": "%s"\n    },\n' "$3" "$4"
}

cat >"$place/rows" <<'ROWS'
# a comment
load/L | load it | load/read | read it | 1.5 | time
load/L | its memory | load/read | the other | 1 | peak_bytes
load/L | processor | load/read | the other | - | cpu
cost/L | one property | - | - | 120 | cost
a/1 | a | b/1 | b | 2 | time
none | c | d | d | 2 | time
ROWS
{
  printf '{\n  "context": {\n    "date": "today"\n  },\n  "benchmarks": [\n'
  run load/L/iterations:3/manual_time - 9.9e+09 ms
  run load/L/iterations:3/manual_time mean 9.9e+09 ms
  run load/L/iterations:3/manual_time median 3.0e+02 ms $'      "cpu": 1.25e-01,\n      "peak_bytes": 5.0e+07,\n'
  run load/L/iterations:3/manual_time stddev 1.0e+00 ms
  run load/read/manual_time median 1.5e+05 us $'      "peak_bytes": 1.0e+08,\n'
} >"$place/1.json"
{
  run cost/L - 1.0e+00 ns $'      "cost": 1.125e+02,\n'
  run a/1 - 2.5e+03 ns
  run b/1 - 0.0 ns $'      "error_occurred": true,\n      "error_message": "not installed: x",\n'
  run "unrelated/1" - 5.0 ns
} >"$place/2.json"

cat >"$place/expected" <<'TABLE'
| Work | measured | Reference | measured | Target | Ratio |
| --- | --: | --- | --: | --: | --: |
| load it | 300.0 ms | read it | 150.0 ms | ≤ 1.5 × | 2.00 ✗ |
| its memory | 50.0 MB | the other | 100.0 MB | ≤ 1 × | 0.50 ✓ |
| processor | 125.0 ms | the other | 1.0 µs | – | 125000.00 |
| one property | 112.5 | – | – | ≤ 120 | 112.5 ✓ |
| a | 2.5 µs | b | – | ≤ 2 × | not installed: x |
| c | – | d | – | ≤ 2 × | – |
TABLE
diff "$place/expected" <(awk -f "$root/scripts/support/ratios.awk" "$place/rows" "$place/1.json" "$place/2.json")
