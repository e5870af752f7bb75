#!/usr/bin/env bash
# Looks whether every test that docs/behaviour.md names as a proof exists in tests/. "Suite.Name" is a
# test, "Suite.*" a suite; parameters of a test are left out. Exit code 1 and a line for each name
# that is not there, or for a row without a test and without a reason.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
page=${1:-docs/behaviour.md}

# A macro may be parted between suite and name.
tests=$(find tests -name '*.cpp' -print0 | xargs -0 cat | tr '\n' ' ' |
  grep -oE '\b(TYPED_)?TEST(_F|_P)?\( *[A-Za-z0-9_]+, *[A-Za-z0-9_]+ *\)' |
  sed -E 's/^[A-Z_]+\( *//; s/, */./; s/ *\)$//' | sort -u)
suites=$(sed -E 's/\..*/.*/' <<< "$tests" | sort -u)
named=$(grep -E '^\|' "$page" | sed -E 's/.*\|([^|]*)\|$/\1/' |
  grep -oE '`[A-Za-z0-9_]+\.([A-Za-z0-9_]+|\*)`' | tr -d '`' | sort -u)

missing=$(comm -23 <(echo "$named") <(printf '%s\n%s\n' "$tests" "$suites" | sort -u))
# The last cell of a row: names of tests, or a dash and why there is none.
bare=$(grep -nE '^\|' "$page" | grep -vE '\| (Behaviour|---)|\|---' |
  grep -vE '\| (`[A-Za-z0-9_]+\.[A-Za-z0-9_*]+`(, )?)+ \|$|\| — .{10,} \|$' || true)
[ -z "$missing" ] || printf 'no such test: %s\n' $missing >&2
[ -z "$bare" ] || printf '%s: %s\n' "$page" "$bare" >&2
[ -z "$missing$bare" ] || exit 1
printf '%s: %s tests named, all there\n' "$page" "$(wc -l <<< "$named")"
