# shellcheck shell=bash
# shellcheck disable=SC2154,SC2034 # what it is given, and what it gives
# A print server and a display of one's own to measure on. Sourced; needs $cutline_top and $runs, gives
# $build, $cutline, $samples and $place, a folder that is gone at the end.
. "$cutline_top/scripts/packages.sh"
. "$cutline_top/scripts/build.sh"
cutline_install_packages "$cutline_top/packages.txt" || exit 1
build=$cutline_top/build
cutline_build "$build" -DCMAKE_BUILD_TYPE=Release -- all bench/all || exit 1
cutline=$build/bin/cutline
samples=$build/share/cutline/samples
export CUTLINE_PREFIX=$build

place=$(mktemp -d /tmp/cutline.XXXXXX) && chmod 755 "$place" || exit 1
server=$samples/server/private-server.sh
display_server=
leave_desk() {
  [ -z "$display_server" ] || kill "$display_server" 2>/dev/null
  "$server" stop "$place" >/dev/null 2>&1
  rm -rf "$place"
}
trap leave_desk EXIT
"$server" start "$place" >/dev/null || exit 1
eval "$("$server" env "$place")"
export XDG_RUNTIME_DIR=$place/runtime LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
mkfifo "$place/display"
Xvfb -displayfd 3 -screen 0 1400x1000x24 -nolisten tcp -noreset 3>"$place/display" >/dev/null 2>&1 &
display_server=$!
read -r display <"$place/display"
export DISPLAY=:$display

# measure -- WORDS COMMAND... [-- WORDS COMMAND...]: the figures of $runs runs of each, started in turn, after
# two that do not count.
measure() { "$build/bench/launch" "$runs" 2 "$@"; }
print_machine() { echo "# $runs runs after 2 warm-ups; $(nproc) cores, load $(cut -d' ' -f1 /proc/loadavg)"; }
