#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# scripts/floors on a small house built for it: silent about a good one, exact about each kind of fault.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT

file() {
  mkdir -p "$house/$(dirname "$1")"
  printf '%s\n' "${@:2}" >"$house/$1"
}
expect() {
  local what=$1 expected=$2 status=0 printed
  printed=$("$root/scripts/floors" "$house" 2>&1) || status=$?
  if [[ $status-$printed != "$expected" ]]; then
    printf '%s\nexpected: %s\nprinted:  %s-%s\n' "$what" "$expected" "$status" "$printed"
    exit 1
  fi
}

# shellcheck disable=SC2016 # back-quotes of Markdown
file docs/architecture.md '| Floor | Rooms |' '|---|---|' '| 0 | `low` | Qt |' '| 1 | `two/deep`, `mid` | |' '| 2 | `plugins` | |'
file libs/corvex/low/A.h '#pragma once' '#include <QString>'
file libs/corvex/mid/B.h '#include "corvex/low/A.h"' '// #include "corvex/top/Z.h"'
file libs/corvex/two/deep/C.cpp '  #  include "corvex/mid/B.h"'
file plugins/p/P.cpp '#include "P.h"' '#include <corvex/two/deep/C.h>'
file plugins/p/P.h '#pragma once'
expect "a good house" "0-floors: 5 files, 4 includes between them: each floor knows only itself and those below"

file libs/corvex/low/Up.cpp '' '#include "corvex/two/deep/C.h"'
expect "an include of a floor above" \
  "1-libs/corvex/low/Up.cpp:2: low (floor 0) includes corvex/two/deep/C.h of floor 1"
rm "$house/libs/corvex/low/Up.cpp"

file libs/corvex/low/R1.h '#pragma once' '#include "corvex/low/R2.h"'
file libs/corvex/low/R2.h '#include "R3.h"'
file libs/corvex/low/R3.h '#include "../low/R1.h"'
expect "a ring of three files" \
  "1-libs/corvex/low/R1.h:2: a ring of includes: libs/corvex/low/R1.h -> libs/corvex/low/R2.h -> libs/corvex/low/R3.h -> libs/corvex/low/R1.h"
rm "$house"/libs/corvex/low/R?.h

file libs/corvex/lost/L.h ''
file plugins/p/Q.cpp '#include "corvex/lost/L.h"'
expect "a room that the table does not know" \
  "1-libs/corvex/lost/L.h: stands in no room of the table of floors
plugins/p/Q.cpp:1: includes corvex/lost/L.h, which stands in no room of the table of floors"

file docs/architecture.md 'nothing'
expect "a page without the table" "1-no row of a table of floors in the page of the architecture"
