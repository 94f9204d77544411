#!/usr/bin/env bash
# package_tests.sh PROGRAMS VERSION: makes the packages from the programs in a folder. Unpacks the zip and runs the
# tool. Installs and removes the program silently in several ways, and compares the registry and the folders before and
# after.
set -euo pipefail
programs=$(cd "$1" && pwd) version=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$here/../..
wine=$root/scripts/wine.sh
work=$(mktemp -d)
cd "$work"

# A new user with the Windows folder of the existing prefix, because a whole prefix takes long to make and much room.
original=${QUILLHUE_WINEPREFIX:-$root/build/wine}
[ -f "$original/system.reg" ] || "$wine" wineboot --init
export QUILLHUE_WINEPREFIX=$work/prefix
mkdir -p "$QUILLHUE_WINEPREFIX/drive_c"
cp -a "$original"/{*.reg,.update-timestamp,dosdevices} "$QUILLHUE_WINEPREFIX"
# Other tests change the recent documents at the same time.
tar -C "$original/drive_c" --exclude=Recent -c users | tar -C "$QUILLHUE_WINEPREFIX/drive_c" -x
ln -s "$(cd "$original" && pwd)"/drive_c/{windows,Program*} "$QUILLHUE_WINEPREFIX/drive_c"
trap 'rm -rf "$work"' EXIT
# A program that waits for input until this script ends. Without it, Wine's server ends as soon as no program runs, and
# a program that starts at that moment fails.
coproc { exec "$wine" cmd /q 2>/dev/null; }
echo 'echo ready' >&"${COPROC[1]}"
until [[ ${line:-} == *ready* ]]; do
  read -r -t 60 line <&"${COPROC[0]}"
done

fail() {
  echo "$1" >&2
  exit 1
}
# expect WHAT FOUND WANTED
expect() {
  [ "$2" = "$3" ] || fail "$1: $(diff <(echo "$3") <(echo "$2"))"
}
# wait_until WHAT COMMAND...
wait_until() {
  local what=$1 deadline=$((SECONDS + 20))
  shift
  until "$@"; do
    [ $SECONDS -lt $deadline ] || fail "$what: not in time"
    read -r -t 0.1 <> <(:) || true
  done
}

# Prints a line for each key and value under HKCU\Software, except those of Wine.
snapshot() {
  "$wine" reg export 'HKCU\Software' exported.reg /y >/dev/null
  iconv -f UTF-16 -t UTF-8 exported.reg | tr -d '\r' |
    awk '/^\[/ { key = substr($0, 29, length($0) - 29); print key; next } NF && key { print key ": " $0 }' |
    grep -v '^Wine' | LC_ALL=C sort
}
# expect_registry NAME [FOLDER]: expects the changes that registry.txt lists under NAME, for an installation in FOLDER.
expect_registry() {
  local found folder=${2-none} size
  size=$(stat -c %s "$unpacked"/* | awk '{ kib += int(($1 + 1023) / 1024) } END { printf "%08x", kib }')
  found=$(diff before <(snapshot) | grep '^[<>]' || true)
  found=${found//"${folder//\\/\\\\}"/FOLDER}
  found=${found//\"$version\"/\"VERSION\"}
  expect "registry, $1" "${found//dword:$size/dword:SIZE}" "$(awk -v name="= $1" '/^=/ { on = $0 == name; next } on' "$here/registry.txt")"
}
# import LINE...: imports lines of a .reg file.
import() {
  { echo REGEDIT4 && printf '%s\n' "$@"; } >imported.reg
  "$wine" reg import imported.reg 2>/dev/null
}

# windows_folder VARIABLE prints a folder of the user, and system_folder PATH its name on this system.
windows_folder() { "$wine" cmd /c "echo %$1%" | tr -d '\r'; }
system_folder() { "$wine" winepath -u "$1"; }
windows_default=$(windows_folder LOCALAPPDATA)\\Programs\\Quillhue
default=$(system_folder "$windows_default")
shortcut="$(system_folder "$(windows_folder APPDATA)")/Microsoft/Windows/Start Menu/Programs/Quillhue.lnk"

# run STATUS COMMAND: uses a batch file, which passes the arguments unchanged, because /D and _? allow no quotes.
run() {
  local status=0
  printf '@%s\r\n' "$2" 'exit %ERRORLEVEL%' >run.bat
  "$wine" cmd /c run.bat || status=$?
  expect "status of $2" $status "$1"
}
# install STATUS ARGUMENTS: silently.
install() { run "$1" "quillhue-$version-setup.exe /S $2"; }
# uninstall FOLDER: uninstalls silently, like the system's list of programs, and waits for the end.
uninstall() {
  "$wine" "$1/uninstall.exe" /S
  wait_until 'the uninstaller is done' is_unregistered
}
uninstaller='Microsoft\Windows\CurrentVersion\Uninstall'
is_unregistered() { ! "$wine" reg query "HKCU\\Software\\$uninstaller\\Quillhue" >/dev/null 2>&1; }
# expect_files FOLDER FILES: expects these files and no others, equal to those of the package, and a tool that runs.
expect_files() {
  local each
  expect "files in $1" "$(cd "$1" && echo *)" "$2"
  for each in quillhue.exe quillhue-cli.exe readme.txt; do
    cmp "$1/$each" "$unpacked/$each"
  done
  expect "version of $1" "$("$wine" "$1/quillhue-cli.exe" --version | tr -d '\r')" "quillhue-cli $version"
}
expect_gone() {
  [ ! -e "$1" ] || fail "$1 is there"
}

# The packages are the same at any time, whoever builds them.
mkdir later again
cp "$programs"/{quillhue,quillhue-cli}.exe "$programs/readme.txt" later
(umask 077 && exec "$root/packaging/make.sh" later "$version" again) &
"$root/packaging/make.sh" "$programs" "$version" .
wait $! || fail 'the packages are not made again'
for package in win64.zip setup.exe; do
  cmp "quillhue-$version-$package" "again/quillhue-$version-$package"
done
unzip -q "quillhue-$version-win64.zip" -d 'a folder'
unpacked=$work/a\ folder/quillhue-$version
expect 'the zip' "$(ls 'a folder')" "quillhue-$version"
expect_files "$unpacked" 'quillhue-cli.exe quillhue.exe readme.txt'
installed='quillhue-cli.exe quillhue.exe readme.txt uninstall.exe'

# The package of the tests, which needs only its script.
"$root/packaging/make-tests.sh" "$programs/.." "$version" .
unzip -q "quillhue-$version-tests.zip" -d 'some tests'
(cd "some tests/quillhue-$version-tests" && "$wine" cmd /c run-tests.cmd core commands </dev/null >shown 2>&1)
expect 'the report of the tests' "$(tail -1 "some tests/quillhue-$version-tests/report.txt" | tr -d '\r')" \
  'All tests passed.'

# The manual.
expect 'lines that Notepad would run together' "$(grep -vc $'\r$' "$unpacked/readme.txt")" 0
expect 'lines that are too long or no ASCII' "$(LC_ALL=C grep -nvP '^[ -~]{0,78}\r$' "$unpacked/readme.txt")" ''
expect 'its title' "$(head -1 "$unpacked/readme.txt" | tr -d '\r')" "Quillhue $version"
expect 'what was not filled in' "$(grep -n '@' "$unpacked/readme.txt")" ''

# Before the installation, .gpl opens in another program, .clp is known, and .act and .cmp are not. The keys of the
# system exist anyway.
software='HKEY_CURRENT_USER\Software'
lines=("[-$software\\$uninstaller\\Quillhue]" "[-$software\\Quillhue]")
for each in act cmp gpl clp; do
  lines+=("[-$software\\Classes\\.$each]" "[-$software\\Classes\\Quillhue.$each]")
done
import "${lines[@]}"
import "[$software\\Classes]" "[$software\\$uninstaller]" \
  "[$software\\Classes\\.gpl]" '@="Other.palette"' "[$software\\Classes\\.gpl\\OpenWithProgids]" '"Other.palette"=""' \
  "[$software\\Classes\\.clp]" '"PerceivedType"="image"'
snapshot >before

# Installs in the default folder without associations. Removing it also removes its settings, but no file of the user
# and no settings of another version.
install 0 ''
expect_files "$default" "$installed"
tr -d '\0' <"$shortcut" | grep -aqF 'Programs\Quillhue\quillhue.exe' || fail 'the shortcut leads elsewhere'
expect_registry installed "$windows_default"
echo mine >"$default/mine.gpl"
import "[$software\\Quillhue\\4]" '"Effect"=hex:02' "[$software\\Quillhue\\5]" '"Effect"=hex:03'
uninstall "$default"
expect 'what is left' "$(ls "$default")" mine.gpl
expect_gone "$shortcut"
expect_registry removed
rm -r "$default"
import "[-$software\\Quillhue]"

# Installs in a folder that the user chose, with associations.
chosen=$work/another\ place
other=$work/moved
windows_chosen=$("$wine" winepath -w "$chosen" | tr -d '\r')
windows_other=$("$wine" winepath -w "$other" | tr -d '\r')
install 0 "/ASSOCIATE=act,gpl,CLP /D=$windows_chosen"
expect_files "$chosen" "$installed"
expect_gone "$default"
expect_registry 'three associations' "$windows_chosen"
install 2 '/ASSOCIATE=act,png'
install 2 '/D=Z:\proc\quillhue'  # where no folder can be made
expect_files "$chosen" "$installed"
install 0 ''
expect_registry 'three associations' "$windows_chosen"

# Nothing changes while a program runs. This one waits for its standard input.
"$wine" "$chosen/quillhue-cli.exe" new vga vga.act
mkfifo silence
"$wine" "$chosen/quillhue-cli.exe" info vga.act - <>silence >shown 2>/dev/null &
running=$!
wait_until 'the tool runs' test -s shown
echo old >"$chosen/quillhue.exe"
install 2 '/ASSOCIATE='
run 2 "\"$windows_chosen\\uninstall.exe\" /S _?=$windows_chosen"
expect 'a program that was replaced or removed' "$(cat "$chosen/quillhue.exe")" old
expect_registry 'three associations' "$windows_chosen"
kill $running
wait $running 2>/dev/null || true

# An installation with other associations gives the first ones back. One in another folder leaves nothing in the old
# one.
install 0 "/ASSOCIATE=cmp /D=$windows_other"
expect_gone "$chosen"
expect_registry 'one association' "$windows_other"
# Associations that another program has taken meanwhile stay with it.
import "[$software\\Classes\\.cmp]" '@="Other.cmp"' "[$software\\Quillhue\\4]" '"Effect"=hex:02'
uninstall "$other"
expect_gone "$other"
expect_registry 'removed at last'
