#!/usr/bin/env bash
# documents_tests.sh SHARE PROGRAM SAMPLES: checks that the help of each verb fits a terminal of 80 by 24 characters, and
# that manual pages and completions in the folder SHARE have the same options. Runs the examples of the manual pages.
set -euo pipefail
share=$1 tool=$2 samples=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bash=$share/bash-completion/completions/quillhue-cli
zsh=$share/zsh/site-functions/_quillhue-cli
fish=$share/fish/vendor_completions.d/quillhue-cli.fish

fail() {
  echo "$1" >&2
  exit 1
}

# options <TEXT: the long options in it, each once.
options() { grep -o -- '--[a-z][a-z-]*' | sort -u; }

# The files that the examples use.
mkdir "$work/files" "$work/bin"
cp -r "$samples/art" "$work/files"
cp "$samples/art/sea.jpg" "$work/files/photo.jpg"
cp "$samples/art/sprites/boat.png" "$work/files/sprite.png"
cp "$samples/harbour.gpl" "$work/files/sea.gpl"
cp "$samples/harbour.gpl" "$work/files/old.gpl"
"$tool" edit "$work/files/old.gpl" "$work/files/new.gpl" --reverse
ln -s "$(realpath "$tool")" "$work/bin/quillhue-cli"

# run_examples PAGE: runs the lines of a manual page that are examples. The verb diff fails if palettes differ.
run_examples() {
  local examples example status folder
  folder=$(mktemp -d -p "$work")
  cp -r "$work/files/." "$folder"
  examples=$(sed -n '/^\.RS/,/^\.RE/{/^\./d;s/\\-/-/g;s/\\e/\\/g;p}' "$1")
  [ -n "$examples" ] || fail "$1 has no examples"
  while IFS= read -r example; do
    status=0
    (cd "$folder" && PATH=$work/bin:$PATH bash -o pipefail -c "$example") >"$work/log" 2>&1 </dev/null || status=$?
    [ $status -eq 0 ] || [[ $status == 1 && $example == *' diff '* ]] || fail "$example: $status, $(<"$work/log")"
  done <<<"$examples"
}

verbs=$("$tool" help | sed -n '/^Verbs:/,/^Options:/s/^  \([a-z]*\) .*/\1/p')
[ "$(wc -w <<<"$verbs")" -ge 12 ] || fail "the verbs are: $verbs"
for verb in $verbs; do
  help=$("$tool" "$verb" --help)
  [ "$(wc -l <<<"$help")" -le 24 ] && [ "$(wc -L <<<"$help")" -le 80 ] || fail "the help of $verb is too large: $help"
  page=$share/man/man1/quillhue-cli-$verb.1
  warnings=$(groff -man -Tutf8 -ww -z "$page" 2>&1)
  [ -z "$warnings" ] || fail "$page: $warnings"
  run_examples "$page"
  listed=$(sed '1,2d' <<<"$help" | options)
  in_page=$(sed -n '/^\.SH OPTIONS/,/^\.SH SEE/p' "$page" | sed 's/\\-/-/g' | grep '^\.B' | options)
  [ "$listed" = "$in_page" ] || fail "help and manual of $verb differ: $(diff <(echo "$listed") <(echo "$in_page"))"
  of_bash=$(grep "^ *$verb:\*)" "$bash") of_zsh=$(grep "^ *$verb:\*)" "$zsh")
  of_fish=$(grep "seen_subcommand_from $verb'" "$fish")
  for option in $listed; do
    grep -q -- "$option\b" <<<"$of_bash" || fail "$bash lacks $verb $option"
    grep -q -- "$option\b" <<<"$of_zsh" || fail "$zsh lacks $verb $option"
    grep -q -- "-l ${option#--}\b" <<<"$of_fish" || fail "$fish lacks $verb $option"
  done
done
[ -z "$(groff -man -Tutf8 -ww -z "$share/man/man1/quillhue-cli.1" 2>&1)" ] || fail 'the manual page has faults'

# shellcheck disable=SC1090
source "$bash"
# completes WANTED WORD...: expects bash to offer WANTED for the last word.
completes() {
  local wanted=$1
  shift
  COMP_WORDS=(quillhue-cli "$@") COMP_CWORD=$#
  _quillhue_cli
  [ "${COMPREPLY[*]}" = "$wanted" ] || fail "'$*' becomes '${COMPREPLY[*]}' instead of '$wanted'"
}
completes 'convert compact' co
completes '--shift' edit a b --sh
completes 'nearest' remap --mode n
completes 'ega' new eg
completes 'usage' help us
for shell in zsh fish; do
  ! command -v $shell >/dev/null || $shell -n "${!shell}" || fail "$shell does not understand its script"
done
