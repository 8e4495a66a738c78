# SPDX-License-Identifier: MIT
# Shared by the scripts of this folder; sourced, not run.
# shellcheck shell=bash disable=SC2034 # variables are for the scripts

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
script=$(basename "$0")
jobs=${CORVEX_JOBS:-$(nproc)}

say() { printf '%s: %s\n' "$script" "$*"; }

fail() {
  printf '%s: %s\n' "$script" "$*" >&2
  exit 1
}

# usage FILE: prints the comment at the start of a script, which is its help text.
usage() { sed -n '3,/^$/{/^$/d;s/^# \{0,1\}//;p}' "$1"; }

# show_failure LOG: prints the part of a log that shows why a command failed.
show_failure() {
  local first
  first=$(grep -n -m 1 -E '^FAILED:|error:|Error' "$1" | cut -d : -f 1 || true)
  sed -n "${first:-1},$((${first:-1} + 149))p" "$1" >&2
}

# quietly WHAT LOG COMMAND...: runs a command with its output in the file LOG, and shows the output only if the
# command fails. Prints WHAT and the duration, and the progress of a ninja build in steps of a tenth.
quietly() {
  local what=$1 log=$2 start=$SECONDS status=0 tenth shown=0 line
  shift 2
  mkdir -p "$(dirname "$log")"
  say "$what"
  NINJA_STATUS='[%f/%t] ' "$@" 2>&1 </dev/null | while IFS= read -r line; do
    printf '%s\n' "$line"
    if [[ $line =~ ^\[([0-9]+)/([0-9]+)\]\  ]] && ((BASH_REMATCH[2] >= 40)); then
      tenth=$((BASH_REMATCH[1] * 10 / BASH_REMATCH[2]))
      if ((tenth > shown && tenth < 10)); then
        shown=$tenth
        say "  ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]} steps" >&2
      fi
    fi
  done >"$log" || status=$?
  if ((status != 0)); then
    show_failure "$log"
    fail "failed: $what (see ${log#"$root"/} for the full output)"
  fi
  say "  done in $((SECONDS - start)) s"
}
