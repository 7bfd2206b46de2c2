# shellcheck shell=bash
# Configures and builds into a directory. Sourced by ./run and ./test.

# cutline_build DIR [-DOPTION=VALUE ...] [-- TARGET ...]
cutline_build() {
  local dir=$1 options=() targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do options+=("$1"); shift; done
  [ $# -eq 0 ] || { shift; targets=("$@"); }
  mkdir -p "$dir"
  if [ ! -f "$dir/build.ninja" ]; then
    # Sixteen sources at a time take the compiler a third of what they take one by one.
    cmake -S "$cutline_top" -B "$dir" -G Ninja -DCUTLINE_WERROR=ON -DCUTLINE_HARDENING=ON \
      -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=16 "${options[@]}" >"$dir/configure.log" 2>&1 ||
      { cat "$dir/configure.log" >&2; echo "cutline: configuring failed" >&2; return 1; }
  fi
  ninja -C "$dir" "${targets[@]}" >"$dir/build.log" 2>&1 ||
    { tail -n 60 "$dir/build.log" >&2; echo "cutline: the build failed; all of it is in $dir/build.log" >&2; return 1; }
}
