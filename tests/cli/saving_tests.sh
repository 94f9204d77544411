#!/usr/bin/env bash
# saving_tests.sh PROGRAM: lets quillhue-cli save over files and in folders with different rights, through links and on
# a full disk. Root may do everything, so the tool runs as the user nobody.
set -euo pipefail
nobody=65534:65534
as_nobody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
[ "$(id -u)" -eq 0 ] || { nobody=$(id -u):$(id -g) as_nobody=(); }
work=$(mktemp -d)
trap 'chmod -R 777 "$work" && rm -r "$work"' EXIT
cp "$1" "$work/quillhue-cli"
cd "$work"
chmod 755 .
printf '1 2 3\r\n%.0s' {1..200} >in.map
fail() {
  echo "$1" >&2
  exit 1
}

# Maximum file size in KiB; mode of the folder; mode and owner of the file; the expected way of saving, and the mode
# afterwards.
while read -r limit folder_mode mode owner wanted; do
  [ "$(id -u)" -eq 0 ] || [ "$owner" = "$nobody" ] || continue
  mkdir folder
  echo old >folder/file.map
  before=$(stat -c %i folder/file.map)
  chown "$owner" folder folder/file.map
  chmod "$mode" folder/file.map
  chmod "$folder_mode" folder
  said=$("${as_nobody[@]}" ./quillhue-cli convert in.map folder/file.map 2>&1) && fail 'a file is replaced unasked'
  [[ $said == *'already exists'* ]] || fail "a file in a folder $folder_mode is new: $said"
  (ulimit -f "$limit" && trap '' XFSZ && "${as_nobody[@]}" ./quillhue-cli convert in.map folder/file.map --force 2>err) &&
    outcome=overwritten || outcome=refused
  chmod 777 folder
  [ "$(stat -c %i folder/file.map)" = "$before" ] || outcome=replaced
  [ $outcome = refused ] && content=old || content=$(<in.map)
  [ "$(<folder/file.map)" = "$content" ] || outcome=damaged
  found="$outcome $(stat -c %a folder/file.map) $(ls -A folder)"
  [ "$found" = "$wanted file.map" ] || fail "$folder_mode $mode of $owner, $limit KiB: $found"
  rm -r folder
done <<END
9 755 640 $nobody replaced 640
9 755 640 65534:0 replaced 600
9 555 644 $nobody overwritten 644
9 755 444 $nobody refused 444
9 333 644 $nobody replaced 644
9 000 644 $nobody refused 644
9 777 666 0:0 replaced 666
9 1777 666 0:0 overwritten 666
1 755 644 $nobody refused 644
1 555 644 $nobody refused 644
END

# Through links of each kind, and in the deepest folder that the system allows.
mkdir folder
echo old >file
[ "$(id -u)" -ne 0 ] || chown 1234:1235 file
chmod 4751 file
tag=
setfattr -n user.tag -v blue file && tag=blue  # not every disk keeps such attributes
ln -s ../file folder/link.map
ln -s "$work/folder/link.map" link.map
before=$(stat -c '%u %g %a' file)
./quillhue-cli convert in.map link.map --force
cmp -s in.map file && [ -L link.map ] && [ -L folder/link.map ] || fail 'a link is not followed'
[ "$(stat -c '%u %g %a' file)" = "$before" ] || fail "$before became $(stat -c '%u %g %a' file)"
[ "$(getfattr --only-values -n user.tag file 2>/dev/null || true)" = "$tag" ] || fail 'an attribute is lost'
deep=$work$(printf "/$(printf 'x%.0s' {1..254})%.0s" {1..15})
mkdir -p "$deep"
rm file
ln -s "$deep/$(printf 'y%.0s' $(seq $((4094 - ${#deep}))))" file
before=none
for _ in 1 2; do
  ./quillhue-cli convert in.map link.map --force
  [ "$(stat -L -c %i file)" != "$before" ] || fail 'a file with a long name is not replaced'
  before=$(stat -L -c %i file)
done
