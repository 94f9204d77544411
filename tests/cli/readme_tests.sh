#!/usr/bin/env bash
# readme_tests.sh README SAMPLES [RUNNER] PROGRAM: runs the commands of README, and checks what they write.
set -euo pipefail
readme=$1 samples=$2
shift 2
tool=("$@")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
docs=$(realpath "$(dirname "$readme")/docs")
cp -r "$samples/." "$work"
cd "$work"

quillhue-cli() { "${tool[@]}" "$@"; }

# entry FILE N: prints the entry's color as info shows it.
entry() { quillhue-cli info "$1" | tr -d '\r' | awk -v n="$2" '$1 == n && NF == 5 { print $3, $4, $5 }'; }
expect() {
  [ "$2" = "$3" ] || { echo "$1: '$2' instead of '$3'" >&2; exit 1; }
}

# A command behind "$ " writes the lines below it, if there are any. The verb diff fails if palettes differ.
command='' lines='' commands=0 compared=0
# plain TEXT: with the same line ends, separators and sizes of compressed images on all systems.
plain() { tr -d '\r' <<<"$1" | tr '\\' / | sed 's/\(written as png.*, \)[0-9]* bytes/\1some bytes/'; }
finish() {
  [ -n "$command" ] || return 0
  local status=0 output
  output=$(eval "$command" 2>&1) || status=$?
  [ $status -eq 0 ] || [[ $status == 1 && $command == *' diff '* ]] || expect "$command" "ends with $status: $output" 0
  commands=$((commands + 1))
  [ -z "$lines" ] || expect "$command" "$(plain "$output")" "$(plain "${lines%$'\n'}")"
  [ -z "$lines" ] || compared=$((compared + 1))
  command='' lines=''
}
while IFS= read -r line; do
  case $line in
    '    $ '*) finish && command=${line#*\$ } ;;
    '    '*) [ -z "$command" ] || lines+=${line#    }$'\n' ;;
    *) finish ;;
  esac
done <"$readme"
finish
[ $commands -ge 20 ] && [ $compared -ge 6 ] || expect 'commands and outputs' "$commands $compared" 'at least 20 and 6'
for picture in $(grep -o 'docs/tasks/[a-z]*\.png' "$readme"); do
  quillhue-cli diff "$docs/tasks/${picture##*/}" "${picture##*/}" || expect "$picture" differs same
done

# The section "In scripts".
examples=$(awk '/^## / { on = $0 == "## In scripts" } on && /^    / { print substr($0, 5) }' "$readme")
expect 'examples' "$(grep -c '^quillhue-cli\|^for' <<<"$examples")" 10
eval "$examples"

expect 'red team' "$(entry harbour.gpl 18)" '134 50 44'
expect 'blue team' "$(entry blue-team.gpl 18)" '44 50 134'
expect 'not in the ramp' "$(entry blue-team.gpl 24)" '44 28 52'
expect 'blue soldier' "$(entry blue-soldier.png 18)" '44 50 134'
expect 'half faded' "$(entry fade-50.act 31)" '92 88 84'
expect 'all faded' "$(entry fade-0.act 15)" '0 0 0'
expect 'water, first frame' "$(entry water-1.gpl 0)" '196 232 228'
expect 'water, last frame' "$(entry water-7.gpl 0)" '28 34 52'
expect 'no water' "$(entry water-7.gpl 8)" '24 40 36'
expect 'middle of the ramp' "$(entry copper.gpl 4)" '194 161 128'
expect 'least colorful entries' "$(tr -d '\r' <greys.jsonl | sed 's/.*"index":\([0-9]*\),.*/\1/' | xargs)" \
  '0 1 2 8 9 10 11 12 16 24 25 26 27 30 31'
expect 'header lines' "$(entry named.act 0)" '16 18 28'
