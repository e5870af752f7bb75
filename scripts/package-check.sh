#!/usr/bin/env bash
# Builds the Debian package and proves it: the checkers of Debian and freedesktop find nothing, two
# builds are the same file, and in a new Debian 12 that holds nothing else it installs, works for an
# ordinary user with a read-only /usr, and goes without a trace. Needs root (chroot) and the network
# that apt uses. Takes about five minutes; leaves the package in build/package.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/setup.sh
. scripts/setup.sh
[ "$(id -u)" -eq 0 ] || { say 'scripts/package-check.sh makes a chroot: run it as root.'; exit 1; }
setup lintian desktop-file-utils appstream debootstrap dpkg-dev man-db xvfb openbox wmctrl xdotool x11-utils imagemagick

release=bookworm
# The mirror that this machine's apt has.
sources() { cat /etc/apt/sources.list.d/debian.sources /etc/apt/sources.list 2>/dev/null || true; }
mirror=$(sources | sed -nE 's/^(URIs: +|deb +(\[[^]]*\] +)?)(http[^ ]*debian)\/?( .*)?$/\3/p' | head -n 1)
work=$(mktemp -d)
system=$work/system
display=
manager=
board=
program=

headline() { printf '\n== %s\n' "$*"; }
fail() { say "FAILED: $*"; exit 1; }

stop() { [ -z "$1" ] || { kill "$1" 2>/dev/null || true; wait "$1" 2>/dev/null || true; }; }

clean_up() {
  stop "$board"
  stop "$program"
  stop "$manager"
  stop "$display"
  for place in usr dev/pts proc; do
    if mountpoint -q "$system/$place"; then
      umount "$system/$place" || umount --lazy "$system/$place"
    fi
  done
  rm -rf --one-file-system "$work"
}
trap clean_up EXIT

as_root() { chroot "$system" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"; }
user=(chroot --userspec=engineer:engineer "$system" /usr/bin/env -i PATH=/usr/bin:/bin
  HOME=/home/engineer LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=/home/engineer/run)
as_user() { "${user[@]}" "$@"; }

# Two builds of one state are one file: times come from the change log.
build_package() {
  headline 'package'
  SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/debian/changelog -S Timestamp)
  export SOURCE_DATE_EPOCH
  cmake --preset package >/dev/null
  cmake --build --preset package
  rm -f build/package/quentor_*.deb
  (cd build/package && cpack >/dev/null)
  package=$(ls build/package/quentor_*.deb)
  local first
  first=$(sha256sum <"$package")
  (cd build/package && cpack >/dev/null)
  [ "$first" = "$(sha256sum <"$package")" ] || fail 'two packages of one build differ'
  dpkg-deb --info "$package" | sed 's/^/  /'
}

check_files() {
  headline 'lintian'
  lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$package"
  local tree=$work/tree file
  dpkg-deb -x "$package" "$tree"
  headline 'desktop entry, metainfo, manual pages'
  desktop-file-validate "$tree"/usr/share/applications/*.desktop
  appstreamcli validate --no-net "$tree"/usr/share/metainfo/*.xml
  # With an address for its pictures too, as whoever publishes them builds it.
  cmake -S . -B "$work/published" -G Ninja -DBUILD_TESTING=OFF -DCMAKE_INSTALL_PREFIX=/usr \
    -DQUENTOR_PICTURES_URL=https://example.org/quentor >/dev/null
  grep -q '<screenshots>' "$work"/published/packaging/*.metainfo.xml || fail 'no screenshots'
  appstreamcli validate --no-net "$work"/published/packaging/*.metainfo.xml
  for file in "$tree"/usr/share/man/man1/*.gz; do
    [ -z "$(MANROFFSEQ='' man --warnings -l -Tutf8 -Z "$file" 2>&1 >/dev/null)" ] ||
      fail "man --warnings $file"
  done
}

# A system with nothing but what every Debian has.
make_system() {
  headline "a new Debian ($release from $mirror)"
  debootstrap --variant=minbase "$release" "$system" "$mirror" >"$work/debootstrap.log" 2>&1 ||
    { tail "$work/debootstrap.log" >&2; fail 'debootstrap'; }
  mount -t proc proc "$system/proc"
  mount -t devpts -o newinstance,ptmxmode=0666,mode=0620 devpts "$system/dev/pts"
  rm -f "$system/dev/ptmx" && ln -s pts/ptmx "$system/dev/ptmx"
  printf 'Acquire::Languages "none";\n' >"$system/etc/apt/apt.conf.d/99short"
  as_root useradd --create-home engineer
  as_user mkdir -m 700 /home/engineer/run
}

files_of_system() {
  find "$system" -xdev \( -path "$system/proc" -o -path "$system/home" -o -path "$system/var/lib/dpkg" \
    -o -path "$system/var/lib/apt" -o -path "$system/var/cache" -o -path "$system/var/log" \) -prune \
    -o -print | LC_ALL=C sort
}

install_package() {
  headline 'installation'
  # What the package needs comes first, so that its own files alone are seen to come and go.
  local depends
  depends=$(dpkg-deb -f "$package" Depends | sed -E 's/ *\([^)]*\)//g; s/,/ /g; s/ \| [^ ]+//g')
  # shellcheck disable=SC2086
  as_root DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    $depends desktop-file-utils hicolor-icon-theme shared-mime-info >"$work/apt.log" 2>&1 ||
    { tail "$work/apt.log" >&2; fail 'the dependencies'; }
  files_of_system >"$work/before"
  cp "$package" "$system/tmp/"
  as_root DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "/tmp/$(basename "$package")" >"$work/apt.log" 2>&1 || { tail "$work/apt.log" >&2; fail 'the package'; }
  grep -q 'application/x-halden-program-set:\*.hdn' "$system/usr/share/mime/globs2" ||
    fail 'the file type is not known'
  grep -q 'x-halden-program-set=halden.suite.quentor.desktop' \
    "$system/usr/share/applications/mimeinfo.cache" || fail 'no program for the file type'
  mount --bind "$system/usr" "$system/usr"
  mount -o remount,bind,ro "$system/usr"
  ! as_root touch /usr/share/quentor/mark 2>/dev/null || fail '/usr can be written'
}

start_display() {
  exec 8<>"$work/display"
  Xvfb -displayfd 8 -screen 0 1280x800x24 -nolisten tcp -ac >"$work/xvfb.log" 2>&1 &
  display=$!
  read -r -t 30 number <&8 || fail 'Xvfb'
  export DISPLAY=:$number
  openbox >"$work/openbox.log" 2>&1 &
  manager=$!
  wait_for 'the window manager' wmctrl -m
}

# wait_for WHAT COMMAND...: until the command succeeds, two minutes at most.
wait_for() {
  local what=$1 turn
  shift
  for ((turn = 0; turn < 1200; ++turn)); do
    ! "$@" >/dev/null 2>&1 || return 0
    sleep 0.1
  done
  [ -z "$display" ] || import -window root "$root/build/package/package-check.png" || true
  fail "$what: not within two minutes"
}

windows() { wmctrl -lx 2>/dev/null | grep -c 'quentor.Quentor' || true; }

windows_are() { [ "$(windows)" -eq "$1" ]; }

# Answers the splash view and closes the main window as a user does.
leave_program() {
  wait_for 'main window and splash view' windows_are 2
  xdotool key --clearmodifiers Return
  wait_for 'the end of the splash view' windows_are 1
  import -window root "$root/build/package/$1.png"
  xprop -name Quentor _NET_WM_ICON >"$work/icon"
  grep -q '16 x 16' "$work/icon" || fail 'the window has no icon: SVG is not drawn'
  wmctrl -xc quentor.Quentor
  wait_for 'the end of the program' windows_are 0
}

run_program() {
  headline 'the program: first start'
  mkfifo "$work/display"
  start_display
  "${user[@]}" DISPLAY="$DISPLAY" quentor 2>"$work/quentor.log" &
  program=$!
  leave_program first-start
  wait "$program" || fail "quentor ended with code $?: $(cat "$work/quentor.log")"
  local file
  for file in "$system"/usr/share/quentor/support/*; do
    cmp "$file" "$system/home/engineer/.local/share/quentor/support/$(basename "$file")" ||
      fail 'the first start did not fill the application folder'
  done

  headline 'the program: a double-click on a program set'
  as_user cp -r /usr/share/doc/quentor/examples /home/engineer/sets
  as_user DISPLAY="$DISPLAY" quentor-cli open /home/engineer/sets/LINE2.hdn
  leave_program double-click
  grep -q 'sets/LINE2.hdn' "$system/home/engineer/.local/share/quentor/support/HD2000.dat" ||
    fail 'the set is not the last one'
}

# The command line against the installed board, on a pseudo-terminal of the new system.
run_command_line() {
  headline 'quentor-cli and halden-board'
  as_user quentor-cli --help >"$work/help"
  grep -q '^Exit codes:' "$work/help" || fail 'quentor-cli --help'
  mkfifo "$work/orders"
  "${user[@]}" halden-board --link /home/engineer/board --model 54 --unpaced --exit-with-stdin \
    <"$work/orders" >"$work/board.log" &
  board=$!
  exec 7>"$work/orders"
  wait_for halden-board grep -q ready "$work/board.log"
  cli() { as_user quentor-cli --port /home/engineer/board "$@"; }
  cli dump --yes /home/engineer/sets/LINE2.hdn </dev/null
  cli verify /home/engineer/sets/LINE2.hdn </dev/null
  cli ident /home/engineer/sets/LINE2.hdn </dev/null | tee "$work/ident"
  grep -q LINE2 "$work/ident" || fail 'the ident is not that of the set'
  ! cli ident /home/engineer/sets/PUMP1.hdn </dev/null >/dev/null 2>&1 || fail 'another ident counts as the same'
  exec 7>&-
  wait "$board" || fail 'halden-board'
  board=
}

remove_package() {
  headline 'removal'
  umount "$system/usr"
  as_root DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq quentor >"$work/apt.log" 2>&1
  rm "$system/tmp/$(basename "$package")"
  files_of_system >"$work/after"
  diff "$work/before" "$work/after" || fail 'the package leaves files behind, or takes some with it'
}

build_package
check_files
make_system
install_package
run_program
run_command_line
remove_package
headline "$(basename "$package"): all checks passed"
