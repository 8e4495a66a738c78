# SPDX-License-Identifier: MIT
# Shared by scripts/trial-kill and scripts/trial-power; source it after common.bash.
# shellcheck shell=bash disable=SC2034

export ASAN_OPTIONS=detect_leaks=0 # the leak checker uses ptrace, like strace
export TMPDIR
TMPDIR=$(mktemp -d)
trial=$TMPDIR/trial
mkdir "$trial"

# The verbs that write, one per line: name | command to run in the parent folder of the projects.
cases='
rename-image | "$corvex" rename Station/Station.kdproj pump.png engine.png
replace-image | echo "replace-image pump.png other.png" | "$corvex" edit Station/Station.kdproj -
rename-replaced | printf "replace-image pump.png other.png\nrename logo.svg sign.svg\n" | "$corvex" edit Station/Station.kdproj -
add-images | echo "add-image other.png another.png" | "$corvex" edit Station/Station.kdproj -
delete-image | echo "delete trend.png" | "$corvex" edit Station/Station.kdproj -
all-images | printf "add-image other.png\ndelete trend.png\nrename pump.png engine.png\nundo 2\nredo\nreplace-image plus.png another.png\n" | "$corvex" edit Station/Station.kdproj -
taken-back | printf "add-image other.png\nrename pump.png engine.png\nexplode\n" | "$corvex" edit Station/Station.kdproj -
rename-project | "$corvex" rename Station/Station.kdproj Station Plant
rename-both | printf "rename Station Mill\nrename pump.png engine.png\nundo 2\nrename Station Plant\nadd-image other.png\n" | "$corvex" edit Station/Station.kdproj -
edit | echo "set Overview.title.text New" | "$corvex" edit Station/Station.kdproj -
import | "$corvex" import variables Station/Station.kdproj variables.csv
fmt | "$corvex" fmt Rough/Rough.kdproj
new | "$corvex" new Fresh --model "VTR 50-K"
export | "$corvex" export variables Station/Station.kdproj -o exported
build | "$corvex" build Station/Station.kdproj -o built
first-build | "$corvex" build Station/Station.kdproj -o firstly
'

# state FOLDER: prints names and digests of all files and folders in it.
state() {
  (
    cd "$1"
    find . -mindepth 1 -name lost+found -prune -o -printf '%P %y\n' | sort
    find . -name lost+found -prune -o -type f -exec sha1sum {} + | sort -k 2
  )
}

# open_again FOLDER CASE: does what a user does after a crash, with both the old and the new names. Builds are
# copied first, because the next build may replace them.
open_again() {
  (
    cd "$1"
    for name in Station Mill Plant Fresh Rough; do
      "$corvex" info "$name/$name.kdproj" || true
    done
    case $2 in
      *build)
        for folder in built firstly; do
          [[ ! -e $folder/project ]] || cp -a "$folder/project" "$trial/$folder.seen"
        done
        "$corvex" build Station/Station.kdproj -o "$([[ $2 == build ]] && echo built || echo firstly)" || true
        ;;
      export) "$corvex" export variables Station/Station.kdproj -o exported || true ;;
      new)
        "$corvex" new Later --model "VTR 50-K" || true
        rm -rf Later
        ;;
    esac
  ) >>"$trial/log" 2>&1
}

# check_state FOLDER WHAT: fails unless the folder is in the old or the new state.
check_state() {
  local folder
  state "$1" >"$trial/try.state"
  if ! cmp -s "$trial/try.state" "$trial/old.state" && ! cmp -s "$trial/try.state" "$trial/new.state"; then
    cat "$trial/log" >&2
    diff "$trial/old.state" "$trial/try.state" >&2 || true
    fail "$2: neither the old nor the new state"
  fi
  for folder in "$trial"/*.seen; do
    [[ -e $folder ]] || continue
    if ! diff -rq "$folder" "$trial/old/$(basename "$folder" .seen)/project" >/dev/null 2>&1 \
      && ! diff -rq "$folder" "$trial/new/$(basename "$folder" .seen)/project" >/dev/null 2>&1; then
      fail "$2: the build is neither old nor new"
    fi
    rm -rf "$folder"
  done
}

# make_case NAME COMMAND: creates the states before and after it in "old" and "new".
make_case() {
  rm -rf "$trial/old" "$trial/new"
  cp -a "$trial/prepared" "$trial/old"
  cp -a "$trial/prepared" "$trial/new"
  (cd "$trial/new" && eval "$2") >"$trial/log" 2>&1 || [[ $1 == taken-back ]] || fail "$1: $(<"$trial/log")"
  state "$trial/old" >"$trial/old.state"
  state "$trial/new" >"$trial/new.state"
}

# each_case FUNCTION [NAME...]: calls the function with the name and the command of all cases, or of the named ones.
each_case() {
  local function=$1 line name
  shift
  local wanted=" $* "
  while IFS= read -r line; do
    name=${line%% *}
    if [[ -n $name && ($# == 0 || $wanted == *" $name "*) ]]; then
      "$function" "$name" "${line#* | }" </dev/null
    fi
  done <<<"$cases"
}

# make_projects: creates a project with images, an older build of it, and other files for the cases, in "prepared".
make_projects() {
  local images=$root/examples/PumpStation/Images
  mkdir "$trial/prepared"
  (
    cd "$trial/prepared"
    "$corvex" new Station --model "VTR 50-K"
    for name in pump.png plus.png logo.svg; do cp "$images/$name" .; done
    cp "$images/minus.png" trend.png
    printf '%s\n' 'add Text Main title' 'add NumberVariable Station speed' 'rename Main Overview' \
      'add-image pump.png plus.png logo.svg trend.png' >script
    "$corvex" edit Station/Station.kdproj script
    "$corvex" build --force Station/Station.kdproj -o built
    echo 'set Overview.title.text Other' | "$corvex" edit Station/Station.kdproj -
    "$corvex" export variables Station/Station.kdproj | sed 's/^speed,/depth,/' >variables.csv
    cp "$images/trend.png" other.png
    cp "$images/gauge.png" another.png
    mkdir Rough
    sed 's/^ *//' Station/Station.kdproj >Rough/Rough.kdproj
    rm script
  ) >"$trial/log" 2>&1 || fail "cannot create the projects: $(<"$trial/log")"
}
