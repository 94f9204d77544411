#!/usr/bin/env bash
# need.sh PACKAGE...: installs the Debian packages that are missing.
set -euo pipefail

missing=()
for package in "$@"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  as_root=(sudo)
fi
echo "Installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" apt-get update &&
       "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
         apt-get install -y --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing[@]}"; } >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
