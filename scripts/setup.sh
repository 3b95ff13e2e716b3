# shellcheck shell=bash
# Sourced by run.sh and test.sh: what a machine needs before it can build, the build, and
# Wine. Each step says in one line what it does, and in one how long it took; ctest does that by
# itself.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit
unset WINEPREFIX # the user's own Wine programs are none of ours

say() { printf '== %s\n' "$*"; }
# took STEP: the time since the step before.
ended=$SECONDS
took() {
  say "$1 took $((SECONDS - ended)) s"
  ended=$SECONDS
}
die() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# The Debian packages, each with a file by which it is known to be there.
packages='
  cmake                         /usr/bin/cmake
  ninja-build                   /usr/bin/ninja
  g++-mingw-w64-x86-64-posix    /usr/bin/x86_64-w64-mingw32-g++-posix
  g++                           /usr/bin/g++
  googletest                    /usr/src/googletest/CMakeLists.txt
  clang-format-14               /usr/bin/clang-format-14
  python3                       /usr/bin/python3
  wine                          /usr/bin/wine
  wine64                        /usr/lib/wine/wine64
  fonts-wine                    /usr/share/wine/fonts/tahoma.ttf
'

install_packages() {
  local name file missing=()
  while read -r name file; do
    [ -z "$name" ] || [ -e "$file" ] || missing+=("$name")
  done <<<"$packages"
  [ ${#missing[@]} -gt 0 ] || return 0

  local install="apt-get install --no-install-recommends ${missing[*]}"
  command -v apt-get >/dev/null ||
    die "missing here, by the names of Debian's packages: ${missing[*]}"
  [ "$(id -u)" = 0 ] || die "missing Debian packages; install them with: sudo $install"
  say "Installing Debian packages: ${missing[*]}"
  if ! { apt-get update && DEBIAN_FRONTEND=noninteractive $install -y; } \
    </dev/null >build/packages.log 2>&1; then
    die "could not install ${missing[*]}: $(grep '^[EW]: ' build/packages.log | tail -n 1)" \
      "(all of it is in build/packages.log)"
  fi
  took "Installing"
}

# build PRESET: configures once, then builds what has changed.
build() {
  if [ ! -f "build/$1/build.ninja" ]; then
    say "Configuring build/$1"
    if command -v ccache >/dev/null; then
      # By itself it keeps nothing that was compiled over precompiled headers.
      local launcher='env;CCACHE_SLOPPINESS=pch_defines,time_macros;ccache'
      export CMAKE_C_COMPILER_LAUNCHER=$launcher CMAKE_CXX_COMPILER_LAUNCHER=$launcher
    fi
    cmake --preset "$1" >"build/configure.log" 2>&1 ||
      { cat build/configure.log >&2 && die "cmake could not configure build/$1"; }
    took "Configuring"
  fi
  say "Building build/$1"
  # A terminal shows ninja's progress; a log would get a line for each file.
  local quiet=(--quiet)
  [ ! -t 1 ] || quiet=()
  cmake --build --preset "$1" --parallel "$jobs" -- "${quiet[@]}" || die "the build failed"
  took "Building"
}

# Wine ready and its server warm until this script ends.
start() {
  say "Starting Wine"
  # shellcheck source=wine-env.sh
  . scripts/wine-env.sh
  trap stop_wine EXIT
  start_wine
  took "Starting Wine"
}

mkdir -p build
# One command at a time in a folder: the end of one stops the Wine that the other runs in.
if [ "${CUADROS_LOCKED:-}" != "$root" ]; then
  flock --nonblock build/.lock true || say "Waiting for another command in this folder"
  CUADROS_LOCKED=$root exec flock --close build/.lock "$root/scripts/${0##*/}" "$@"
fi
jobs=$(nproc)
install_packages
