#!/usr/bin/env bash
# A print server of one's own, apart from the system's: on a socket in a folder, with virtual label
# printers that store what they print in that folder.
set -u

usage() {
  cat <<'U'
Usage: private-server.sh start DIR [--pace MS] [--printer FOLDER] [--ppds FOLDER] [--backend NAME]...
                               [--policy FILE] [NAME=PPD]...
       private-server.sh env DIR
       private-server.sh wait-idle DIR [SECONDS]
       private-server.sh stop DIR
       private-server.sh restart DIR

  start      makes the queues tape24 (the default), tapeb and roll62, and one for each NAME=PPD, and
             starts the server. A label takes MS milliseconds at the printers (0). --backend
             takes one of the system's along, such as ipp, for queues that are added later. --policy
             takes who may do what from that server's configuration, such as
             /usr/share/cups/cupsd.conf.default; else everybody may do everything.
  env        prints the lines that turn a shell's printing commands to the server:
             eval "$(private-server.sh env DIR)"
  wait-idle  waits until no job is left, by default for 60 seconds at most; a job that
             stopped on an error ends the waiting, too.
  stop       ends the server and everything that it runs. The folder stays.
  restart    ends the server and starts it again, with its queues and jobs.

Each job leaves DIR/printed/job-NUMBER.png and job-NUMBER.txt.

The driver and the printer's program are taken from the folder after --printer, and the printers' PPD
files from that after --ppds; else from $CUTLINE_PREFIX, a build or an installation, or from the
installation that this script belongs to.
U
}

fail() { echo "private-server.sh: $*" >&2; exit 1; }

readonly SYSTEM_CUPSD=/usr/sbin/cupsd SYSTEM_CUPS=/usr/lib/cups
readonly MAX_SOCKET_PATH=107 # bytes that a socket's name may have

here=$(cd "$(dirname "$(readlink -f "$0")")" && pwd)
place='' socket=''
use_place() {
  place=$(realpath -m -- "$1")
  socket=$place/run/cups.sock
}

# A process is told by its number and its time of start, since a number alone may be another's by now.
# started_at PID: empty for one that is gone, or that only waits to be buried.
started_at() {
  local stat
  { read -r stat <"/proc/$1/stat"; } 2>/dev/null || return 0
  stat=${stat##*) } # the name in brackets may hold blanks
  # shellcheck disable=SC2086 # the fields are wanted one by one
  set -- $stat
  case $1 in Z | X) ;; *) echo "${20}" ;; esac
}

# Every process that the server started is of its session.
# session_members SESSION
session_members() {
  local file stat pid
  for file in /proc/[0-9]*/stat; do
    { read -r stat <"$file"; } 2>/dev/null || continue
    pid=${stat%% *}
    stat=${stat##*) }
    # shellcheck disable=SC2086
    set -- "$1" $stat
    [ "$5" != "$1" ] || [ "$2" = Z ] || echo "$pid"
  done
}

# The server's number while it runs.
running() {
  local pid start
  { read -r pid start <"$place/run/server"; } 2>/dev/null || return 1
  [ "$(started_at "$pid")" = "$start" ] || return 1
  echo "$pid"
}

client() {
  CUPS_SERVER=$socket CUPS_SERVERROOT=$place/etc HOME=$place/home "$@"
}

print_env() {
  printf 'export CUPS_SERVER=%q CUPS_SERVERROOT=%q HOME=%q\n' "$socket" "$place/etc" "$place/home"
  # Of the shell, these would choose another printer or another user.
  echo 'unset LPDEST PRINTER CUPS_USER IPP_PORT CUPS_ENCRYPTION'
}

# find_folder PROBE CANDIDATE...: the first folder that has the file PROBE.
find_folder() {
  local probe=$1 folder
  shift
  for folder in "$@"; do
    [ ! -e "$folder/$probe" ] || { (cd "$folder" && pwd); return; }
  done
  fail "cannot find $probe; looked in: $*. Build the project, or set CUTLINE_PREFIX."
}

# As root the drivers run as the user lp, who has to get to the folder.
check_place() {
  local length folder=$place
  length=$(printf %s "$socket" | LC_ALL=C wc -c)
  [ "$length" -le "$MAX_SOCKET_PATH" ] ||
    fail "$place is too long a name: a socket's is limited to $MAX_SOCKET_PATH bytes, and this one's would have $length"
  # The print server's own files have no way to quote these.
  [[ $place != *[[:space:]#\"]* ]] || fail "$place: the folder's name may hold no blank, # or \""
  mkdir -p "$place" || exit 1
  [ "$(id -u)" = 0 ] || return 0
  while [ "$folder" != / ]; do
    [ -n "$(find "$folder" -maxdepth 0 -perm -o=x)" ] ||
      fail "the user lp cannot enter $folder; chmod o+x $folder, or choose another folder"
    folder=$(dirname "$folder")
  done
}

make_folders() {
  local old_mask
  old_mask=$(umask)
  umask 022
  mkdir -p "$place"/{etc/ppd,etc/ssl,spool/tmp,cache,run/certs,log,home,printed,programs/filter,programs/backend} ||
    fail "cannot make the server's folders in $place"
  umask "$old_mask"
  [ "$(id -u)" != 0 ] || chown lp:lp "$place/printed"
}

# The system's filters, our driver, and no backend but ours and those that were asked for: nothing looks for
# devices.
# make_programs PRINTER BACKEND...
make_programs() {
  local printer=$1 programs=$place/programs name
  shift
  for name in daemon notifier monitor cgi-bin; do
    [ ! -d "$SYSTEM_CUPS/$name" ] || ln -sfn "$SYSTEM_CUPS/$name" "$programs/$name"
  done
  ln -sf "$SYSTEM_CUPS"/filter/* "$programs/filter/"
  # Copies, since the server refuses programs in folders that others may write to.
  install -m 755 "$printer/rastertocutline" "$programs/filter/" || fail "cannot copy the driver from $printer"
  install -m 755 "$printer/cutline-strip" "$programs/backend/" ||
    fail "cannot copy the printer from $printer"
  for name; do
    ln -sf "$SYSTEM_CUPS/backend/$name" "$programs/backend/"
  done
}

write_server_conf() {
  local user=
  [ "$(id -u)" != 0 ] || user=$'User lp\nGroup lp\nLogFileGroup root\n'
  cat >"$place/etc/cups-files.conf" <<C
${user}SystemGroup root
FatalErrors all
FileDevice Yes
SyncOnClose No
Printcap
ServerRoot $place/etc
ServerBin $place/programs
DataDir /usr/share/cups
DocumentRoot /usr/share/cups/doc-root
RequestRoot $place/spool
TempDir $place/spool/tmp
CacheDir $place/cache
StateDir $place/run
ServerKeychain $place/etc/ssl
AccessLog $place/log/access_log
ErrorLog $place/log/error_log
PageLog $place/log/page_log
C
  cat >"$place/etc/cupsd.conf" <<C
Listen $socket
LogLevel info
MaxLogSize 0
Browsing No
BrowseLocalProtocols none
DefaultShared No
WebInterface No
IdleExitTimeout 0
DirtyCleanInterval 0
JobKillDelay 5
MaxJobTime 300
PreserveJobHistory Yes
PreserveJobFiles No
<Location />
  Order allow,deny
  Allow localhost
</Location>
C
  write_policy "$1" >>"$place/etc/cupsd.conf"
}

# write_policy FILE: the policy "default" of another server's configuration; an open one without a file.
write_policy() {
  if [ -n "$1" ]; then
    echo 'DefaultAuthType Basic'
    sed -n '/^<Policy default>/,/^<\/Policy>/p' "$1"
    return
  fi
  cat <<C
DefaultAuthType None
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
C
}

# add_queue NAME PPD PACE [Default]
add_queue() {
  local name=$1 ppd=$2 pace=$3 kind=${4:-}Printer uuid info
  [[ $name =~ ^[A-Za-z0-9_-]+$ ]] || fail "$name: a printer's name has letters, digits, - and _"
  [ -r "$ppd" ] || fail "$ppd: cannot be read"
  install -m 644 "$ppd" "$place/etc/ppd/$name.ppd" || fail "cannot copy $ppd"
  read -r uuid </proc/sys/kernel/random/uuid
  info=$(sed -n 's/^\*NickName: *"\(.*\)".*/\1/p;/^\*NickName/q' "$ppd")
  cat >>"$place/etc/printers.conf" <<C
<$kind $name>
UUID urn:uuid:$uuid
Info ${info:-$name}
MakeModel ${info:-$name}
DeviceURI cutline-strip:$place/printed$([ "$pace" = 0 ] || echo "?pace=$pace")
State Idle
Type 4
Accepting Yes
Shared No
JobSheets none none
OpPolicy default
ErrorPolicy abort-job
</$kind>
C
}

# Without the system bus there is no colour daemon and no announcement to the network to talk to.
launch() {
  local pid tries=500
  rm -f "$socket"
  DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent setsid \
    "$SYSTEM_CUPSD" -f -c "$place/etc/cupsd.conf" -s "$place/etc/cups-files.conf" \
    >"$place/log/output" 2>&1 </dev/null &
  pid=$!
  echo "$pid $(started_at "$pid")" >"$place/run/server"
  while [ "$tries" -gt 0 ]; do
    if [ -S "$socket" ] && client lpstat -r 2>/dev/null | grep -q 'is running'; then return; fi
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.02
    tries=$((tries - 1))
  done
  cat "$place/log/output" >&2
  grep '^[EX]' "$place/log/error_log" >&2
  stop
  fail "the print server did not start; its log is $place/log/error_log"
}

start() {
  local pace=0 printer='' ppds='' policy='' queues=() backends=() prefix=${CUTLINE_PREFIX:-}
  while [ $# -gt 0 ]; do
    case $1 in
    --pace | --printer | --ppds | --backend | --policy) [ $# -ge 2 ] || { usage >&2; exit 2; } ;;&
    --pace) pace=$2; shift ;;
    --printer) printer=$2; shift ;;
    --ppds) ppds=$2; shift ;;
    --backend) backends+=("$2"); shift ;;
    --policy) policy=$2; shift ;;
    ?*=?*) queues+=("$1") ;;
    *) usage >&2; exit 2 ;;
    esac
    shift
  done
  [[ $pace =~ ^[0-9]{1,5}$ ]] || fail "$pace is no number of milliseconds"
  [ -x "$SYSTEM_CUPSD" ] || fail "there is no $SYSTEM_CUPSD; install the package cups"
  ! running >/dev/null || fail "a server runs already in $place"
  printer=$(find_folder rastertocutline ${printer:+"$printer"} \
    ${prefix:+"$prefix/lib/cutline/printer"} "$here/../../../../lib/cutline/printer") || exit 1
  ppds=$(find_folder tape-a.ppd ${ppds:+"$ppds"} \
    ${prefix:+"$prefix/share/cutline/samples/ppd"} "$here/../ppd") || exit 1
  check_place
  make_folders
  make_programs "$printer" ${backends[0]+"${backends[@]}"}
  [ -z "$policy" ] || grep -q '^<Policy default>' "$policy" || fail "$policy has no policy \"default\""
  write_server_conf "$policy"
  : >"$place/etc/printers.conf" || exit 1
  add_queue tape24 "$ppds/tape-a.ppd" "$pace" Default
  add_queue tapeb "$ppds/tape-b.ppd" "$pace"
  add_queue roll62 "$ppds/roll.ppd" "$pace"
  local queue
  for queue in ${queues[0]+"${queues[@]}"}; do add_queue "${queue%%=*}" "${queue#*=}" "$pace"; done
  chmod 600 "$place/etc/printers.conf"
  launch
  print_env
}

# A job whose filter failed stands still until somebody restarts or cancels it; only the log tells.
# stopped_job JOBS: the number of the first such of those that lpstat -o lists.
stopped_job() {
  local name number
  while read -r name _; do
    number=${name##*-}
    ! grep -q "^E.*\[Job $number\] Job stopped" "$place/log/error_log" || { echo "$number"; return; }
  done <<<"$1"
}

# signal_all SIGNAL PID: the server and whatever is left of what it started.
signal_all() {
  local pid
  for pid in $(session_members "$2"); do kill "-$1" "$pid" 2>/dev/null; done
}

stop() {
  local pid tries=250
  if ! pid=$(running); then
    rm -f "$place/run/server"
    return 0
  fi
  kill -TERM "$pid" 2>/dev/null # the server ends its jobs itself
  while [ "$tries" -gt 0 ] && [ -n "$(started_at "$pid")" ]; do
    sleep 0.02
    tries=$((tries - 1))
  done
  signal_all TERM "$pid"
  [ -z "$(session_members "$pid")" ] || sleep 0.2
  # One of them can have started another meanwhile, and none is gone at once.
  tries=250
  while [ "$tries" -gt 0 ] && [ -n "$(session_members "$pid")" ]; do
    signal_all KILL "$pid"
    sleep 0.02
    tries=$((tries - 1))
  done
  rm -f "$place/run/server" "$socket"
}

wait_idle() {
  local seconds=${1:-60} deadline left stopped
  [[ $seconds =~ ^[0-9]{1,6}$ ]] || fail "$seconds is no number of seconds"
  running >/dev/null || fail "no server runs in $place"
  deadline=$((SECONDS + seconds))
  while left=$(client lpstat -o 2>&1); [ -n "$left" ]; do
    stopped=$(stopped_job "$left")
    [ -z "$stopped" ] || fail "job $stopped stopped on an error; see $place/log/error_log"
    [ "$SECONDS" -le "$deadline" ] || fail "not idle after $seconds seconds: $left"
    sleep 0.05
  done
}

case ${1:-} in
-h | --help) usage; exit 0 ;;
esac
[ $# -ge 2 ] || { usage >&2; exit 2; }
command=$1
use_place "$2"
shift 2
case $command in
start) start "$@" ;;
env) print_env ;;
stop) stop ;;
restart) stop; launch ;;
wait-idle) wait_idle "$@" ;;
*) usage >&2; exit 2 ;;
esac
