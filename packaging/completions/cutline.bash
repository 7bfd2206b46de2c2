# shellcheck shell=bash
# Completion of cutline(1) for bash.

_cutline_printers() {
  timeout 2 lpstat -e 2>/dev/null || timeout 2 cutline --list 2>/dev/null | sed 's/[ :].*//'
}

# What was said of printer and server, for questions of our own to the program.
_cutline_asked() {
  local index
  for ((index = 1; index < COMP_CWORD; index++)); do
    case ${COMP_WORDS[index]} in
    -d | -h | -U | --ppd)
      printf '%s\n' "${COMP_WORDS[index]}" "${COMP_WORDS[index + 1]}" ;;
    -E) echo -E ;;
    esac
  done
}

_cutline_choices() {
  local asked
  mapfile -t asked < <(_cutline_asked)
  timeout 2 cutline --choices "${asked[@]}" 2>/dev/null
}

# _cutline_values NAME: the values that -o NAME= takes.
_cutline_values() {
  case $1 in
  print-scaling) echo auto none fit fill ;;
  orientation-requested) echo 3 4 5 6 ;;
  position) echo center top bottom left right top-left top-right bottom-left bottom-right ;;
  label-length) echo paper content ;;
  text-labels) echo paragraph line ;;
  text-size) echo auto ;;
  page-set) echo all odd even ;;
  outputorder) echo normal reverse ;;
  mirror) echo true false ;;
  *) _cutline_choices | awk -v name="$1" '
      /^[^ *]/ { split($0, part, "/"); wanted = part[1] == name; next }
      wanted { sub(/^[ *] /, ""); sub(/\/.*/, ""); print }' ;;
  esac
}

_cutline_option_names() {
  printf '%s=\n' print-scaling natural-scaling orientation-requested position mirror page-set \
    outputorder label-length text-labels text-font text-size
  echo raw
  _cutline_choices | sed -n 's|^\([^ */][^/]*\)/.*|\1=|p'
}

_cutline() {
  local current=$2 before=$3 typed
  COMPREPLY=()
  # The shell parts words at "=": -o NAME = VALUE.
  typed=${COMP_LINE:0:COMP_POINT}
  typed=${typed##*[[:space:]]}
  if [[ $before == -o || ${COMP_WORDS[COMP_CWORD - 2]-} == -o || ${COMP_WORDS[COMP_CWORD - 3]-} == -o ]]; then
    if [[ $typed == *=* ]]; then
      mapfile -t COMPREPLY < <(compgen -W "$(_cutline_values "${typed%%=*}")" -- "${typed#*=}")
      return
    fi
    if [[ $before == -o ]]; then
      mapfile -t COMPREPLY < <(compgen -W "$(_cutline_option_names)" -- "$current")
      compopt -o nospace 2>/dev/null
      return
    fi
  fi
  case $before in
  -d)
    mapfile -t COMPREPLY < <(compgen -W "$(_cutline_printers)" -- "$current")
    return ;;
  --ask-queue)
    mapfile -t COMPREPLY < <(compgen -W 'add remove list' -- "$current")
    return ;;
  add | remove)
    if [[ ${COMP_WORDS[COMP_CWORD - 2]-} == --ask-queue ]]; then
      mapfile -t COMPREPLY < <(compgen -W "$(_cutline_printers)" -- "$current")
      return
    fi ;;
  --scale)
    mapfile -t COMPREPLY < <(compgen -W '1 2' -- "$current")
    return ;;
  --plugin-dir)
    compopt -o dirnames 2>/dev/null
    return ;;
  -n | -P | -t | -h | -U | --held-job) return ;;
  esac
  if [[ $current == -* && $before != --ppd && $before != --dry-run && $before != --snapshot ]]; then
    mapfile -t COMPREPLY < <(compgen -W '-d -n -P -t -o -h -E -U -q --ppd --print --dry-run --wait
      --each --summary --options --plan --json --choices --snapshot --scale --dark --list --ask-queue --held-job --plugin-dir
      --marks --help --version' -- "$current")
    return
  fi
  compopt -o default 2>/dev/null
}

complete -F _cutline cutline
