#!/usr/bin/env bash
# program_tests.sh [RUNNER] PROGRAM: calls quillhue-cli as a script would, with the real standard streams, file names
# beyond ASCII and the exit statuses.
set -euo pipefail
tool=("$@")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() {
  echo "$1" >&2
  exit 1
}
expect_status() {
  local wanted=$1 status=0
  shift
  "${tool[@]}" "$@" >out 2>err || status=$?
  [ $status -eq "$wanted" ] || fail "'$*' ends with $status instead of $wanted: $(cat out err)"
}

printf '1 2 3\r\n10 26 13\r\n' >'häfen €.map'
expect_status 0 convert 'häfen €.map' 'ö.act'
[ "$(stat -c %s 'ö.act')" -eq 772 ] || fail 'ö.act is not 772 bytes long'
expect_status 0 info 'ö.act'
grep -q '^ö.act: Adobe Color Table, 2 entries$' out || fail "info shows: $(cat out)"
grep -q $'[\r\x1b]' out && fail 'the output has carriage returns or colors'

# Bytes pass the standard streams unchanged, line ends and a control-Z among them.
"${tool[@]}" convert - - --format clp --name x.act <'ö.act' >direct.clp
expect_status 0 convert 'ö.act' file.clp
cmp direct.clp file.clp || fail 'standard output differs from a file'
"${tool[@]}" convert - back.act --format act <file.clp
cmp 'ö.act' back.act || fail 'there and back is not the same'

echo old >linked.clp
ln -s linked.clp link.clp
expect_status 0 convert 'ö.act' link.clp --force
[ -L link.clp ] && cmp direct.clp linked.clp || fail 'a link is not followed'

expect_status 1 info 'ö.act' none.pal .
expect_status 1 convert 'ö.act' file.clp
expect_status 2 convert 'ö.act'
expect_status 2
expect_status 0 --help
: >empty
expect_status 1 info empty
[ "$(tr -d '\r' <err)" = 'empty: Quillhue could not recognise this file type.' ] || fail "an empty file: $(cat err)"
if [ -e /dev/full ] && [ $# -eq 1 ]; then
  "${tool[@]}" info <(cat file.clp) >out || fail 'a pipe is no file'
  ! "${tool[@]}" info 'ö.act' >/dev/full 2>err || fail 'a full device goes unnoticed'
  "${tool[@]}" convert 'ö.act' /dev/stdout --force --format clp >stdout.clp
  "${tool[@]}" convert 'ö.act' /dev/stdout --force --format clp | cmp stdout.clp - || fail 'a pipe is not written'
  cmp stdout.clp file.clp || fail 'standard output by its name is not written'

  # An interrupt while a file is read: the tool finishes this file and starts no other. The signal is SIGTERM, because
  # the shell makes background programs ignore SIGINT.
  mkfifo slow.map
  "${tool[@]}" convert slow.map file.clp --out-dir results --format act --jobs 1 2>err &
  reader=$!
  exec 3>slow.map
  kill -TERM $reader
  # The reader sleeps in a read. It has handled the signal when none is pending.
  until grep -q '^ShdPnd:\s*0*$' /proc/$reader/status; do
    read -r -t 0.01 <> <(:) || true
  done
  printf '1 2 3\r\n' >&3
  exec 3>&-
  status=0
  wait $reader || status=$?
  [ $status -eq 1 ] && grep -q '^Interrupted: 1 of 2 files are done.$' err || fail "interrupted: $status, $(cat err)"
  [ "$(ls results)" = slow.act ] && [ "$(stat -c %s results/slow.act)" -eq 772 ] || fail "results: $(ls -l results)"
  ! "${tool[@]}" convert 'ö.act' /dev/full --force --format map 2>err || fail 'a full device goes unnoticed'
  grep -q 'Could not create the file: the disk is full.$' err || fail "a full device: $(cat err)"
fi
