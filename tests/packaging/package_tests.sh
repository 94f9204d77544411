#!/usr/bin/env bash
# package_tests.sh PROGRAMS VERSION: makes the packages of the programs in a folder, unpacks the zip and runs the tool
# there; installs silently in several ways and removes it, and compares registry and folders before and after.
set -euo pipefail
programs=$(cd "$1" && pwd) version=$2
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
wine=$root/scripts/wine.sh
work=$(mktemp -d)
cd "$work"

# A user of its own, with the Windows of the prefix that there is: a prefix takes long to make and much room.
original=${QUILLHUE_WINEPREFIX:-$root/build/wine}
[ -f "$original/system.reg" ] || "$wine" wineboot --init
export QUILLHUE_WINEPREFIX=$work/prefix
mkdir -p "$QUILLHUE_WINEPREFIX/drive_c"
cp -a "$original"/{*.reg,.update-timestamp,dosdevices} "$QUILLHUE_WINEPREFIX"
cp -a "$original/drive_c/users" "$QUILLHUE_WINEPREFIX/drive_c"
ln -s "$original"/drive_c/{windows,Program*} "$QUILLHUE_WINEPREFIX/drive_c"
trap 'rm -rf "$work"' EXIT
# A program that waits for input until this script ends. Without it Wine's server ends whenever no program is left, and
# fails what starts at that moment.
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

# What the user has under HKCU\Software: a line for each key and value, without what belongs to Wine.
snapshot() {
  "$wine" reg export 'HKCU\Software' exported.reg /y >/dev/null
  iconv -f UTF-16 -t UTF-8 exported.reg | tr -d '\r' |
    awk '/^\[/ { key = substr($0, 29, length($0) - 29); print key; next } NF && key { print key ": " $0 }' |
    grep -v '^Wine' | sort
}
# import LINE...: puts them into the registry.
import() {
  { echo REGEDIT4 && printf '%s\n' "$@"; } >imported.reg
  "$wine" reg import imported.reg 2>/dev/null
}

software='HKEY_CURRENT_USER\Software'
entry='Microsoft\Windows\CurrentVersion\Uninstall\Quillhue'
forget() {
  local each lines=("[-$software\\$entry]" "[-$software\\Quillhue]")
  for each in act cmp gpl clp; do
    lines+=("[-$software\\Classes\\.$each]" "[-$software\\Classes\\Quillhue.$each]")
  done
  import "${lines[@]}"
}
# windows_folder VARIABLE and system_folder PATH: a folder of the user's, and how this system names it.
windows_folder() { "$wine" cmd /c "echo %$1%" | tr -d '\r'; }
system_folder() { "$wine" winepath -u "$1"; }
windows_default=$(windows_folder LOCALAPPDATA)\\Programs\\Quillhue
default=$(system_folder "$windows_default")
shortcut="$(system_folder "$(windows_folder APPDATA)")/Microsoft/Windows/Start Menu/Programs/Quillhue.lnk"

# run STATUS COMMAND: by a batch file, which passes the arguments as they are: /D and _? take no quotes.
run() {
  local status=0
  printf '@%s\r\n' "$2" 'exit %ERRORLEVEL%' >run.bat
  "$wine" cmd /c run.bat || status=$?
  expect "status of $2" $status "$1"
}
# install STATUS ARGUMENTS: silently.
install() { run "$1" "quillhue-$version-setup.exe /S $2"; }
# uninstall FOLDER: silently, as the system's list of programs does it, and waits for its last deed.
uninstall() {
  "$wine" "$1/uninstall.exe" /S
  wait_until 'the uninstaller is done' is_unregistered
}
is_unregistered() { ! "$wine" reg query "HKCU\\Software\\$entry" >/dev/null 2>&1; }
expect_runs() { expect "version of $1" "$("$wine" "$1" --version | tr -d '\r')" "quillhue-cli $version"; }
expect_files() {
  local each
  expect "files in $1" "$(ls "$1")" "$2"
  for each in quillhue.exe quillhue-cli.exe readme.txt; do
    cmp "$1/$each" "$unpacked/$each"
  done
}

# The packages: the same at any time, whoever builds them.
mkdir later again
cp "$programs"/{quillhue,quillhue-cli}.exe "$programs/readme.txt" later
(umask 077 && exec "$root/packaging/make.sh" later "$version" again) &
"$root/packaging/make.sh" "$programs" "$version" .
wait $! || fail 'the packages are not made again'
cmp "quillhue-$version-win64.zip" "again/quillhue-$version-win64.zip"
cmp "quillhue-$version-setup.exe" "again/quillhue-$version-setup.exe"

# The zip.
mkdir 'a folder'
unzip -q "quillhue-$version-win64.zip" -d 'a folder'
expect 'the zip' "$(ls 'a folder')" "quillhue-$version"
unpacked=$work/a\ folder/quillhue-$version
expect 'files of the zip' "$(ls "$unpacked")" $'quillhue-cli.exe\nquillhue.exe\nreadme.txt'
expect_runs "$unpacked/quillhue-cli.exe"

# The manual.
expect 'lines that Notepad would run together' "$(grep -vc $'\r$' "$unpacked/readme.txt")" 0
expect 'lines that are too long or no ASCII' "$(LC_ALL=C grep -nvP '^[ -~]{0,78}\r$' "$unpacked/readme.txt")" ''
expect 'its title' "$(head -1 "$unpacked/readme.txt" | tr -d '\r')" "Quillhue $version"
expect 'what was not filled in' "$(grep -n '@' "$unpacked/readme.txt")" ''

installed=$'quillhue-cli.exe\nquillhue.exe\nreadme.txt\nuninstall.exe'

# What the user has had: .gpl opens in another program, .clp is known, .act and .cmp are not. The keys of the system
# are there anyway.
forget
import "[$software\\Classes]" "[$software\\Microsoft\\Windows\\CurrentVersion\\Uninstall]" \
  "[$software\\Classes\\.gpl]" '@="Other.palette"' "[$software\\Classes\\.gpl\\OpenWithProgids]" '"Other.palette"=""' \
  "[$software\\Classes\\.clp]" '"PerceivedType"="image"'
snapshot >before
# expect_registry WHAT REMOVED: it is as before but for lines that are gone, and those of the standard input more. Of
# these, the ones that were there before count for nothing.
expect_registry() {
  snapshot >now
  expect "registry lost, $1" "$(comm -23 before now)" "$2"
  expect "registry gained, $1" "$(comm -13 before now)" "$(sort | comm -13 before -)"
}
# key KEY: the lines of a key with the values of the standard input.
key() {
  echo "$1"
  while IFS= read -r line; do
    printf '%s: %s\n' "$1" "$line"
  done
}
# The path of a folder as the registry's export shows it.
exported() { echo "${1//\\/\\\\}"; }
# registered FOLDER: the lines of the entry in the system's list of programs.
registered() {
  local folder size
  folder=$(exported "$1")
  size=$(stat -c %s "$unpacked"/* | awk '{ kib += int(($1 + 1023) / 1024) } END { printf "%08x", kib }')
  key "$entry" <<END
"DisplayIcon"="$folder\\\\quillhue.exe,0"
"DisplayName"="Quillhue"
"DisplayVersion"="$version"
"EstimatedSize"=dword:$size
"InstallLocation"="$folder"
"NoModify"=dword:00000001
"NoRepair"=dword:00000001
"QuietUninstallString"="\"$folder\\\\uninstall.exe\" /S"
"UninstallString"="\"$folder\\\\uninstall.exe\""
END
}
# associated FOLDER EXTENSION TYPE REPLACED: the lines of an association.
associated() {
  local folder class=Classes\\Quillhue.$2
  folder=$(exported "$1")
  key "Classes\\.$2" <<<"@=\"Quillhue.$2\""
  key "Classes\\.$2\\OpenWithProgids" <<<"\"Quillhue.$2\"=\"\""
  key "$class" <<<"@=\"$3\""$'\n'"\"Replaced\"=\"$4\""
  key "$class\\DefaultIcon" <<<"@=\"$folder\\\\quillhue.exe,0\""
  printf '%s\n' "$class\\shell" "$class\\shell\\open"
  key "$class\\shell\\open\\command" <<<"@=\"\\\"$folder\\\\quillhue.exe\\\" \\\"%1\\\"\""
}

# In the default place, with nothing but itself. It takes its settings along, but no file of the user and no settings of
# another version.
install 0 ''
expect_files "$default" "$installed"
expect_runs "$default/quillhue-cli.exe"
tr -d '\0' <"$shortcut" | grep -aqF 'Programs\Quillhue\quillhue.exe' || fail 'the shortcut leads elsewhere'
expect_registry 'installed' '' < <(registered "$windows_default")
echo mine >"$default/mine.gpl"
import "[$software\\Quillhue\\4]" '"Effect"=hex:02' "[$software\\Quillhue\\5]" '"Effect"=hex:03'
uninstall "$default"
expect 'what is left' "$(ls "$default")" mine.gpl
[ ! -e "$shortcut" ] || fail 'the shortcut is left'
expect_registry 'removed' '' < <(echo Quillhue; key 'Quillhue\5' <<<'"Effect"=hex:03')
rm -r "$default"
import "[-$software\\Quillhue]"

# In a place of the user's choice, with associations.
chosen=$work/another\ place
other=$work/moved
windows_chosen=$("$wine" winepath -w "$chosen" | tr -d '\r')
windows_other=$("$wine" winepath -w "$other" | tr -d '\r')
with_three() {
  registered "$windows_chosen"
  associated "$windows_chosen" act 'Adobe Color Table' ''
  associated "$windows_chosen" gpl 'Gimp Palette' Other.palette
  associated "$windows_chosen" clp 'Windows Clipboard File' ''
}
replaced='Classes\.gpl: @="Other.palette"'
install 0 "/ASSOCIATE=act,gpl,CLP /D=$windows_chosen"
expect_files "$chosen" "$installed"
[ ! -e "$default" ] || fail 'the default place was used as well'
expect_registry 'three associations' "$replaced" < <(with_three)
install 2 '/ASSOCIATE=act,png'
install 2 '/D=Z:\proc\quillhue'  # where no folder can be made
expect_files "$chosen" "$installed"
install 0 ''
expect_registry 'installed again' "$replaced" < <(with_three)

# Nothing changes while a program runs: one that has shown much already, and waits for its standard input.
"$wine" "$chosen/quillhue-cli.exe" new vga vga.act
mkfifo silence
"$wine" "$chosen/quillhue-cli.exe" info vga.act - <>silence >shown 2>/dev/null &
running=$!
wait_until 'the tool runs' test -s shown
echo old >"$chosen/quillhue.exe"
install 2 '/ASSOCIATE='
run 2 "\"$windows_chosen\\uninstall.exe\" /S _?=$windows_chosen"
expect 'a program that was replaced or removed' "$(cat "$chosen/quillhue.exe")" old
expect_registry 'while a program runs' "$replaced" < <(with_three)
kill $running
wait $running 2>/dev/null || true

# Other associations give the first ones back; another place leaves none behind.
install 0 "/ASSOCIATE=cmp /D=$windows_other"
[ ! -e "$chosen" ] || fail 'the first place is left'
expect_registry 'one association' '' < <(registered "$windows_other"; associated "$windows_other" cmp 'CMP Palette' '')
# What another program has taken since stays with it.
import "[$software\\Classes\\.cmp]" '@="Other.cmp"' "[$software\\Quillhue\\4]" '"Effect"=hex:02'
uninstall "$other"
[ ! -e "$other" ] || fail 'the folder is left'
expect_registry 'removed at last' '' < <(key 'Classes\.cmp' <<<'@="Other.cmp"')
