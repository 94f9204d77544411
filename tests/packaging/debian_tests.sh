#!/usr/bin/env bash
# debian_tests.sh BUILD VERSION: makes the Debian package, installs it in a folder, runs the tool and removes the
# package.
set -euo pipefail
build=$1 version=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "$1" >&2
  exit 1
}

(cd "$build" && cpack -B "$work/packages" >"$work/log" 2>&1) || fail "$(<"$work/log")"
package=$(echo "$work"/packages/quillhue-cli_"$version"_*.deb)
[ -f "$package" ] || fail "there is no package: $(ls "$work/packages")"
[[ $(dpkg-deb --field "$package" Depends) == *libc6* ]] || fail 'the package depends on no library'

root=$work/root
mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
touch "$root/var/lib/dpkg/status"
# The folder has no libraries, so the tool uses those of the system.
in_root() { dpkg --root="$root" --force-depends --force-not-root --log=/dev/null "$@" >"$work/log" 2>&1 || fail "$(<"$work/log")"; }
in_root --install "$package"
installed=$(cd "$root" && find usr -type f | sort)
for file in usr/bin/quillhue-cli usr/share/man/man1/quillhue-cli-edit.1 usr/share/zsh/site-functions/_quillhue-cli \
  usr/share/bash-completion/completions/quillhue-cli usr/share/fish/vendor_completions.d/quillhue-cli.fish; do
  grep -qx "$file\(.gz\)\?" <<<"$installed" || fail "$file is missing: $installed"
done
[ "$("$root/usr/bin/quillhue-cli" new blank - --size 1 --blank '#102030' --format hex)" = 102030 ] ||
  fail 'the installed tool does not work'
in_root --remove quillhue-cli
[ ! -e "$root/usr/bin" ] && [ ! -e "$root/usr/share/man" ] || fail "something is left: $(find "$root/usr")"
