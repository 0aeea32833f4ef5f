# What the scripts at the root need from Debian, and how they get it. Sourced.

# To build and to run: compiler, Qt 5 with its tools, fonts that match those the
# style sheets name, and Qt's sound plugin.
build_packages="cmake ninja-build g++ ccache qtbase5-dev qtbase5-dev-tools qtmultimedia5-dev
  libqt5multimedia5-plugins fonts-crosextra-carlito fonts-liberation"
# To see the window where there is no display.
display_packages="xvfb"
# To play the smoke test with real keys, look at the screen, make the package, and ask Qt
# Designer's library whether it would change a form.
test_packages="$display_packages xdotool imagemagick x11-utils dpkg-dev desktop-file-utils
  qttools5-dev"
# The compiler that tests/fuzz/run fuzzes with, what it links, and what names the lines of a crash.
fuzz_packages="clang libclang-rt-dev llvm"

say() {
  printf '%s\n' "$*"
}

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# Installs those of the named packages that are missing, and says which.
ensure_packages() {
  local package missing=""
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  say "Missing Debian packages:$missing"
  command -v apt-get >/dev/null || fail "there is no apt-get here; please install the packages named above"
  local root=""
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
      fail "installing them needs root; please run: apt-get install$missing"
    root="sudo"
  fi
  # An old or missing list names packages that are gone.
  $root apt-get update -qq || fail "apt-get update failed"
  $root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing \
    >/dev/null || fail "could not install:$missing"
  say "Installed:$missing"
}

# build_preset PRESET [TARGET]: configures where that was not done yet; prints the
# compiler's words only when it fails.
build_preset() {
  local preset=$1 target=${2:-all} log
  log=$(mktemp)
  if [ ! -f "build/$preset/build.ninja" ]; then
    say "Configuring ($preset) ..."
    cmake --preset "$preset" ${KESTRIX_CMAKE_OPTIONS:-} >"$log" 2>&1 ||
      { cat "$log" >&2; rm -f "$log"; fail "configuring failed"; }
  fi
  if ! cmake --build "build/$preset" --target "$target" -- -n 2>/dev/null | grep -q 'no work to do'; then
    say "Building ($preset), the first time takes a minute or two ..."
    cmake --build "build/$preset" --target "$target" >"$log" 2>&1 ||
      { cat "$log" >&2; rm -f "$log"; fail "the build failed"; }
  fi
  rm -f "$log"
}

# start_display FOLDER: a private virtual display. Sets and exports DISPLAY, and an
# XDG_RUNTIME_DIR in the folder, which Qt wants for sockets and the like. The caller
# kills $display_server when it ends.
start_display() {
  rm -f "$1/display" # of an earlier run, whose display is gone
  Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>"$1/display" 2>/dev/null &
  display_server=$!
  for _ in $(seq 100); do
    [ -s "$1/display" ] && break
    kill -0 "$display_server" 2>/dev/null || fail "the virtual display did not start"
    sleep 0.05
  done
  [ -s "$1/display" ] || fail "the virtual display did not answer within 5 s"
  DISPLAY=:$(cat "$1/display")
  XDG_RUNTIME_DIR=$1/runtime
  export DISPLAY XDG_RUNTIME_DIR
  mkdir -p -m 700 "$XDG_RUNTIME_DIR"
}
