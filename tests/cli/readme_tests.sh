#!/usr/bin/env bash
# readme_tests.sh README SAMPLES [RUNNER] PROGRAM: runs the examples of the README's section "In scripts" as they stand
# there, and checks what they made.
set -euo pipefail
readme=$1 samples=$2
shift 2
tool=("$@")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$samples/harbour.gpl" "$work"
cd "$work"

quillhue-cli() { "${tool[@]}" "$@"; }

# entry FILE N: its color, as info shows it.
entry() { quillhue-cli info "$1" | tr -d '\r' | awk -v n="$2" '$1 == n && NF == 5 { print $3, $4, $5 }'; }
expect() {
  [ "$2" = "$3" ] || { echo "$1: '$2' instead of '$3'" >&2; exit 1; }
}

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
