# shellcheck shell=bash
# Puts an installation below a prefix, and takes it away again. Sourced by ./run.

# Of the installation: each file and link, and with a slash behind it each folder that was made for it.
cutline_manifest=lib/cutline/installed

# cutline_uninstall PREFIX: fails when there is nothing that this script installed.
cutline_uninstall() {
  local prefix=$1 manifest=$1/$cutline_manifest path folders=()
  [ -f "$manifest" ] || { echo "cutline: nothing was installed below $prefix with ./run --install" >&2; return 1; }
  while IFS= read -r path; do
    case /$path/ in
    */../* | //*) echo "cutline: $manifest names \"$path\", which is not below the prefix" >&2; return 1 ;;
    esac
    case $path in
    */) folders=("$path" "${folders[@]}") ;;
    *) rm -f -- "$prefix/$path" || return 1 ;;
    esac
  done <"$manifest"
  rm -f -- "$manifest"
  cutline_tell_desktop "$prefix"
  # A folder in which somebody else has put something stays.
  for path in "${folders[@]}"; do
    rmdir -- "$prefix/$path" 2>/dev/null || :
  done
}

# cutline_list STAGE PREFIX: what the manifest of STAGE's tree says.
cutline_list() {
  local stage=$1 prefix=$2 folder
  find "$stage" -mindepth 1 -type d -printf '%P/\n' | sort | while IFS= read -r folder; do
    [ -d "$prefix/$folder" ] || printf '%s\n' "$folder"
  done
  find "$stage" -mindepth 1 ! -type d -printf '%P\n' | sort
}

# cutline_install STAGE PREFIX: copies the tree STAGE below PREFIX, in place of what was installed there
# before.
cutline_install() {
  local stage=$1 prefix=$2 path list
  [ ! -f "$prefix/$cutline_manifest" ] || cutline_uninstall "$prefix" || return 1
  list=$(cutline_list "$stage" "$prefix")
  # First, so that there is a way back from half an installation, too.
  mkdir -p "$(dirname "$prefix/$cutline_manifest")" || return 1
  printf '%s\n' "$list" >"$prefix/$cutline_manifest" || return 1
  while IFS= read -r path; do
    case $path in
    */) mkdir -p -- "$prefix/$path" || return 1 ;;
    # What is in use must not be written into: new files take the places.
    *) cp -P --preserve=mode --remove-destination -- "$stage/$path" "$prefix/$path" || return 1 ;;
    esac
  done <<<"$list"
  cutline_tell_desktop "$prefix"
}

# cutline_name_program STAGE PREFIX: a menu finds the program by its whole name; the prefix need not be
# among the folders where a desktop looks for programs. Service menus in a home count only when they
# are marked as programs.
cutline_name_program() {
  local stage=$1 prefix=$2 file
  for file in "$stage"/share/applications/*.desktop "$stage"/share/kio/servicemenus/*.desktop; do
    sed -i "s|^Exec=cutline|Exec=\"$prefix/bin/cutline\"|" "$file" || return 1
  done
  chmod 755 "$stage"/share/kio/servicemenus/*.desktop
  for file in "$stage"/share/systemd/user/*.service "$stage"/etc/xdg/autostart/*.desktop; do
    [ ! -f "$file" ] || sed -i -E "s|^(Exec(Start)?=\").*/lib/|\1$prefix/lib/|" "$file" || return 1
  done
}

# cutline_keep_defaults STAGE PREFIX: a desktop takes a program of the user's own before those of the
# system, so that a click on a picture would print it. What opens documents today stays the default, in
# a list that comes and goes with the installation; what the user chooses wins over it.
cutline_keep_defaults() {
  local stage=$1 prefix=$2 list=share/applications/mimeapps.list kind opener kept=''
  command -v gio >/dev/null || return 0
  if [ -e "$prefix/$list" ] && ! grep -qsxF "$list" "$prefix/$cutline_manifest"; then return 0; fi
  while IFS= read -r -d ';' kind; do
    opener=$(LC_ALL=C gio mime "$kind" 2>/dev/null | sed -n '1s/.*: \(.*\.desktop\)$/\1/p')
    case $opener in '' | cutline.desktop) ;; *) kept+="$kind=$opener"$'\n' ;; esac
  done < <(sed -n 's/^MimeType=//p' "$stage/share/applications/cutline.desktop")
  [ -z "$kept" ] || printf '[Default Applications]\n%s' "$kept" >"$stage/$list"
}

# cutline_tell_desktop PREFIX: menus look at these again.
cutline_tell_desktop() {
  local applications=$1/share/applications
  [ -d "$applications" ] || return 0
  touch -c "$1/share/icons/hicolor" 2>/dev/null
  if [ -z "$(find "$applications" -name '*.desktop' -print -quit)" ]; then
    rm -f -- "$applications/mimeinfo.cache"
  elif command -v update-desktop-database >/dev/null; then
    update-desktop-database -q "$applications"
  fi
  return 0
}

# cutline_prefix [PREFIX]: the whole path, ~/.local where none is named. A path with signs that menus
# would read otherwise is refused.
cutline_prefix() {
  local prefix
  prefix=$(realpath -m -- "${1:-$HOME/.local}") || return 1
  case $prefix in
  / | *[\"\`\$\\%\|\&]* | *$'\n'*) echo "cutline: $prefix cannot be a prefix" >&2; return 1 ;;
  esac
  printf '%s\n' "$prefix"
}
