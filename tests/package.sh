#!/usr/bin/env bash
# Builds the .deb, lets the tools that are installed judge it and its metadata, installs
# it into a scratch root, starts the program there from another folder, removes it, and
# looks that nothing is left behind.
#   package.sh BUILD_FOLDER SOURCE_FOLDER
set -u
build=$1
source=$2
. "$source/packaging/packages.sh"

fail() {
  printf 'package: %s\n' "$*" >&2
  exit 1
}
for tool in dpkg-deb dpkg-shlibdeps Xvfb xdotool; do
  command -v "$tool" >/dev/null || { echo "package: $tool is missing" >&2; exit 77; }
done
root=$(mktemp -d)
game=
display_server=
trap 'kill $game $display_server 2>/dev/null; rm -rf "$root"' EXIT
(cd "$build" && cpack -B "$root/deb" >"$root/log" 2>&1) || { cat "$root/log" >&2; fail "cpack failed"; }
deb=$(echo "$root"/deb/*.deb)

if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$source/packaging/kestrix-typing.desktop" || fail "bad desktop entry"
fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --no-net "$build/packaging/metainfo.xml" || fail "bad AppStream metadata"
fi
if command -v lintian >/dev/null; then
  lintian --fail-on error "$deb" 2>/dev/null || fail "lintian found errors"
fi
for package in fonts-crosextra-carlito fonts-liberation libqt5multimedia5-plugins libqt5widgets5; do
  dpkg-deb -f "$deb" Depends | grep -q "$package" || fail "does not depend on $package"
done

# A package manager of its own, which knows of no other package; only root may run it.
mkdir -p "$root/installed/var/lib/dpkg/updates" "$root/installed/var/lib/dpkg/info"
touch "$root/installed/var/lib/dpkg/status"
manager() {
  dpkg --root="$root/installed" --log=/dev/null --force-depends "$@" >>"$root/log" 2>&1 ||
    { cat "$root/log" >&2; fail "dpkg $* failed"; }
}
if [ "$(id -u)" = 0 ]; then manager --install "$deb"; else dpkg-deb -x "$deb" "$root/installed"; fi
for kind in Keyboard Paint; do
  [ -f "$root/installed/usr/share/kestrix-typing/looks/$kind Looks/Plain.txt" ] || fail "no $kind looks"
done
start_display "$root"
mkdir "$root/home"
cd "$root/home" || fail "no scratch folder"
# No bus, or the bus library starts one and writes its address into the home.
DBUS_SESSION_BUS_ADDRESS=disabled: HOME="$root/home" "$root/installed/usr/bin/kestrix-typing" 2>"$root/stderr" &
game=$!
shows() {
  [ -n "$(xdotool search --onlyvisible --name Kestrix 2>/dev/null)" ]
}
for _ in $(seq 50); do
  shows && break
  kill -0 "$game" 2>/dev/null || fail "the installed program ended: $(cat "$root/stderr")"
  sleep 0.1
done
shows || fail "the installed program shows no window"
[ -s "$root/stderr" ] && fail "it wrote to stderr: $(cat "$root/stderr")"
left=$(find "$root/home" -type f ! -path '*/mesa_shader_cache/*' ! -path '*/fontconfig/*')
[ -z "$left" ] || fail "it left files behind: $left"
kill "$game"
if [ "$(id -u)" = 0 ]; then
  manager --purge kestrix-typing
  left=$(find "$root/installed" -mindepth 1 ! -path "$root/installed/var*")
  [ -z "$left" ] || fail "removing it leaves: $left"
fi
echo "package: $(basename "$deb") installs, runs and goes again"
