# shellcheck shell=bash
# Installs the Debian packages of packages.txt that are missing. Sourced by ./run and ./test.

# A freshly installed print server must not run on the user's machine, now or after a reboot: the
# packages are there for their programs only. A server that was there before is left alone.
cutline_print_units=(cups.service cups.socket cups.path cups-browsed.service)

cutline_missing_packages() {
  local wanted installed
  wanted=$(grep -vE '^\s*(#|$)' "$1" | sort -u)
  installed=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' 2>/dev/null |
    awk '$1 ~ /^.i/ { print $2 }' | sort -u)
  comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$installed")
}

# cutline_disable_print_server [sudo]: takes the units out of what the next start of the system brings
# up. The packages' own helper disables nothing before they are removed, and systemctl need not be there.
cutline_disable_print_server() {
  local unit
  for unit in "${cutline_print_units[@]}"; do
    "$@" find /etc/systemd/system -type l -path '*.wants/*' -name "$unit" -delete
  done
}

cutline_install_packages() {
  local list=$1 missing as_root=() had_server=yes made_policy=
  missing=$(cutline_missing_packages "$list")
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null ||
      { echo "cutline: these packages are missing and sudo is not installed; as root: apt-get install" $missing >&2; return 1; }
    as_root=(sudo)
  fi
  echo "Installing Debian packages:" $missing
  dpkg-query -W -f '${db:Status-Abbrev}' cups-daemon 2>/dev/null | grep -q '^.i' || had_server=
  if [ ! -e /usr/sbin/policy-rc.d ]; then
    printf '#!/bin/sh\nexit 101\n' | "${as_root[@]}" tee /usr/sbin/policy-rc.d >/dev/null
    "${as_root[@]}" chmod 755 /usr/sbin/policy-rc.d
    made_policy=yes
  fi
  local status=0
  "${as_root[@]}" apt-get update -qq &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends $missing >/dev/null || status=1
  [ -z "$made_policy" ] || "${as_root[@]}" rm -f /usr/sbin/policy-rc.d
  [ -n "$had_server" ] || cutline_disable_print_server "${as_root[@]}"
  [ "$status" = 0 ] || echo "cutline: the packages could not be installed; see the messages above" >&2
  return "$status"
}
