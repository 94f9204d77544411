#!/usr/bin/env bash
# Makes a tree of files to be accepted and one of files to be rejected, each with one line. Expects the check to name
# all files of the second tree and none of the first.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
check=$here/../../scripts/check-layers.sh
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

# add VERDICT FILE LINE: adds a file. Files named a get a number.
count=0
add() {
  local file=$tree/$1/${2/\/a./\/a$((count += 1)).}
  mkdir -p "$(dirname "$file")"
  echo "$3" >"$file"
}
while read -r verdict file includes; do
  for include in $includes; do
    add "$verdict" "$file" "#include $include"
  done
done < <(grep -v "^#" "$here/layers.txt")
add rejected src/core/a.cpp '  #  include <nlohmann/json.hpp>'
add rejected src/formats/a.cpp 'std::memcpy(&value, bytes, 4);'

"$check" "$tree/accepted"
! "$check" "$tree/rejected" >"$tree/named"
diff <(cd "$tree/rejected" && find src -type f | sort) <(cut -d: -f1 "$tree/named" | sort -u)
