# Sourced by ./run and ./check: finds or installs what the build needs.
# On Debian the packages come through apt (with sudo when not root); elsewhere what is missing is
# printed and the script stops.

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-serialport-dev qt6-svg-dev
  libgl-dev libgtest-dev libgmock-dev fonts-dejavu-core poppler-utils)

# What the fuzz programs need besides (scripts/fuzz-record.sh).
# shellcheck disable=SC2034
fuzz_packages=(clang libclang-rt-14-dev)

say() { printf '%s\n' "$*" >&2; }

is_installed() { dpkg-query -W -f '${Status}' "$1" 2>/dev/null | grep -q 'ok installed'; }

missing_packages() {
  local package
  for package in "$@"; do is_installed "$package" || printf '%s ' "$package"; done
}

install_packages() {
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { say "These packages are missing and there is no sudo: $*"; exit 1; }
    as_root=(sudo)
  fi
  say "Installing: $*"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@" >&2
}

# Without apt there is nothing to install with: name the tools and libraries that are not there.
require_by_hand() {
  local lacking=() tool
  for tool in c++ cmake ninja pdftotext pdftoppm "$@"; do command -v "$tool" >/dev/null || lacking+=("$tool"); done
  command -v qmake6 >/dev/null || command -v qtpaths6 >/dev/null ||
    lacking+=("Qt 6.4 or later (Core, Widgets, PrintSupport, SerialPort, Svg, Test)")
  [ ${#lacking[@]} -eq 0 ] && return
  say "This system has no apt. Please install first: ${lacking[*]}; and GoogleTest."
  exit 1
}

# setup TOOL_PACKAGE...: the build packages and those named.
setup() {
  if ! command -v apt-get >/dev/null; then
    require_by_hand
    return
  fi
  local missing
  missing=$(missing_packages "${build_packages[@]}" "$@")
  # shellcheck disable=SC2086
  [ -z "$missing" ] || install_packages $missing
}

# build PRESET: configures once, then builds what has changed.
build() {
  local preset=$1
  [ -f "$root/build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
}
