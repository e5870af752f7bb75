#!/usr/bin/env bash
# install-test.sh CMAKE BUILD: what `cmake --install` puts into a prefix that nobody knew of at
# build time is complete, valid and works there, on a system whose application folder is still empty.
set -euo pipefail
cmake=$1 build=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
failed=0

fail() { printf 'FAILED: %s\n' "$*"; failed=1; }
own() { env -u XDG_DATA_HOME -u DISPLAY HOME="$work/home" "$@"; }

"$cmake" --install "$build" --prefix "$prefix" >/dev/null

diff -u "$here/installed-files.txt" <(cd "$prefix" && find . -type f | LC_ALL=C sort) ||
  fail 'the installed files are not those of packaging/installed-files.txt'

version=$(own "$prefix/bin/quentor-cli" --version)
[[ $version =~ ^Quentor\ [0-9]+\.[0-9]+\.[0-9]+$ ]] || fail "quentor-cli --version says \"$version\""
own "$prefix/bin/quentor-cli" ports >/dev/null || fail 'quentor-cli ports'
diff -r "$prefix/share/quentor/support" "$work/home/.local/share/quentor/support" ||
  fail 'the first start did not fill the application folder'

# help_words PROGRAM: the options and commands that its help names at the start of a line.
help_words() {
  own "$prefix/bin/$1" --help | sed -E '/See below/d' | sed -nE 's/^  ?(-h, |-v, )?((--)?[a-z][a-z-]*[a-z]).*/\2/p'
}
for program in quentor-cli halden-board; do
  page=$(gzip -dc "$prefix/share/man/man1/$program.1.gz" | sed -E 's/\bFl -/--/g')
  words=$(help_words "$program")
  [ "$(wc -l <<<"$words")" -ge 7 ] || fail "$program --help names too little: $words"
  for word in $words; do
    grep -qE "(^|[^a-z-])$word([^a-z-]|$)" <<<"$page" || fail "the page of $program lacks $word"
  done
done

if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$prefix"/share/applications/*.desktop || fail 'desktop entry'
fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --no-net "$prefix"/share/metainfo/*.xml || fail 'metainfo'
fi
exit $failed
