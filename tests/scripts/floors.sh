#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs scripts/floors on a small tree: without violations, and with each kind of violation.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

file() {
  mkdir -p "$tree/$(dirname "$1")"
  printf '%s\n' "${@:2}" >"$tree/$1"
}
expect() {
  local what=$1 expected=$2 status=0 printed
  printed=$("$root/scripts/floors" "$tree" 2>&1) || status=$?
  if [[ $status-$printed != "$expected" ]]; then
    printf '%s\nexpected: %s\nprinted:  %s-%s\n' "$what" "$expected" "$status" "$printed"
    exit 1
  fi
}

# shellcheck disable=SC2016 # back-quotes of Markdown
file docs/architecture.md '| Layer | Rooms |' '|---|---|' '| 0 | `low` | Qt |' '| 1 | `two/deep`, `mid` | |' '| 2 | `plugins` | |'
file libs/corvex/low/A.h '#pragma once' '#include <QString>'
file libs/corvex/mid/B.h '#include "corvex/low/A.h"' '// #include "corvex/top/Z.h"'
file libs/corvex/two/deep/C.cpp '  #  include "corvex/mid/B.h"'
file plugins/p/P.cpp '#include "P.h"' '#include <corvex/two/deep/C.h>'
file plugins/p/P.h '#pragma once'
expect "a good tree" "0-floors: 5 files, 4 includes between them: each layer uses only itself and lower layers"

file libs/corvex/low/Up.cpp '' '#include "corvex/two/deep/C.h"'
expect "an include of a higher layer" \
  "1-libs/corvex/low/Up.cpp:2: low (layer 0) includes corvex/two/deep/C.h of layer 1"
rm "$tree/libs/corvex/low/Up.cpp"

file libs/corvex/low/D.h 'class CORVEX_EXPORT D' '{' '    static bool isUp();' '    struct Inner' '    {' '    };' '};' 'class Later;'
file libs/corvex/mid/D.cpp 'Common::List<int> *D::isUp(' '    int a)' 'D::Inner::Inner()' 'void Later::f()' 'const int x = D::isUp();' '    D::isUp();'
expect "members that are defined in another module" \
  "1-libs/corvex/mid/D.cpp:1: mid defines D::isUp, which low declares
libs/corvex/mid/D.cpp:3: mid defines D::Inner, which low declares"
# shellcheck disable=SC2016
sed -i '$a | `D::*` | `mid` | a reason |' "$tree/docs/architecture.md"
expect "members that the page lists" "0-floors: 7 files, 4 includes between them: each layer uses only itself and lower layers"
rm "$tree"/libs/corvex/*/D.*
expect "an exception too many" "1-the page lists D::* as an exception, but its module declares it or nobody defines it"
# shellcheck disable=SC2016
sed -i '/D::/d' "$tree/docs/architecture.md"

file libs/corvex/low/R1.h '#pragma once' '#include "corvex/low/R2.h"'
file libs/corvex/low/R2.h '#include "R3.h"'
file libs/corvex/low/R3.h '#include "../low/R1.h"'
expect "a cycle of three files" \
  "1-libs/corvex/low/R1.h:2: a cycle of includes: libs/corvex/low/R1.h -> libs/corvex/low/R2.h -> libs/corvex/low/R3.h -> libs/corvex/low/R1.h"
rm "$tree"/libs/corvex/low/R?.h

file libs/corvex/lost/L.h ''
file plugins/p/Q.cpp '#include "corvex/lost/L.h"'
expect "a module that is not in the table" \
  "1-libs/corvex/lost/L.h: is not in a module of the table of layers
plugins/p/Q.cpp:1: includes corvex/lost/L.h, which is not in a module of the table of layers"

file docs/architecture.md 'nothing'
expect "a page without the table" "1-docs/architecture.md has no table of layers"
