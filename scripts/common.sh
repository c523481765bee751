# Functions shared by all scripts. Source it; it sets $root to the project's folder.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '==> %s\n' "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# program_version: the version in CMakeLists.txt, as in 1.0.0.
program_version() {
  local version
  version=$(sed -nE 's/^project\(Tarvik VERSION ([0-9]+\.[0-9]+\.[0-9]+) .*/\1/p' "$root/CMakeLists.txt")
  [ -n "$version" ] || fail "CMakeLists.txt states no version"
  printf '%s\n' "$version"
}

# as_root COMMAND...: runs it as root, with sudo if needed.
as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"
  elif command -v sudo >/dev/null; then sudo "$@"
  else fail "this needs root rights or sudo: $*"
  fi
}

# need_packages LIST...: installs the missing Debian packages of the lists (scripts/packages/LIST.txt). A row "A | B" is
# satisfied by any of these packages; if none is installed, it installs the first one that this release has.
need_packages() {
  local list row rows=() names=()
  for list in "$@"; do
    while read -r row; do
      case "$row" in ''|'#'*) continue ;; esac
      is_installed "$row" || rows+=("$row")
    done < "$root/scripts/packages/$list.txt"
  done
  [ ${#rows[@]} -gt 0 ] || return 0
  command -v apt-get >/dev/null || fail "these packages are missing and there is no apt-get: $(printf '%s; ' "${rows[@]}")"
  as_root apt-get update -qq -o Acquire::Retries=3 ||
    fail "apt-get update failed; is the package server reachable, and may you use sudo?"
  for row in "${rows[@]}"; do names+=("$(offered "$row")"); done
  say "Installing ${#names[@]} Debian packages: ${names[*]}"
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq -o Acquire::Retries=3 --no-install-recommends "${names[@]}" >/dev/null ||
    fail "apt-get could not install: ${names[*]}"
}

# is_installed ROW: whether one of the packages of the row is installed.
is_installed() {
  local name
  for name in ${1//|/ }; do
    if dpkg-query -W -f '${db:Status-Status}\n' "$name" 2>/dev/null | grep -qx installed; then return 0; fi
  done
  return 1
}

# offered ROW: the first package of the row that the package server has, else the first one, for the error message.
offered() {
  local name
  for name in ${1//|/ }; do
    if apt-cache show "$name" 2>/dev/null | grep -q '^Package:'; then echo "$name"; return 0; fi
  done
  echo "${1%% *}"
}

# watch_processes: from here on every process that this script starts has a mark in its environment, and all of them are
# killed when the script ends: normally, by an error, by Ctrl-C or by SIGTERM.
watch_processes() {
  export TARVIK_SCRIPT="$$-$(date +%s%N)"
  trap end_processes EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM HUP
}

# marked_processes: the ids of the marked processes that still run.
marked_processes() {
  grep -lszxF "TARVIK_SCRIPT=$TARVIK_SCRIPT" /proc/[0-9]*/environ | cut -d / -f 3 || true
}

end_processes() {
  local status=$? process round
  trap - EXIT
  trap '' INT TERM HUP
  # Processes started from here on are not marked.
  export -n TARVIK_SCRIPT
  if [ "$(type -t end_wine)" = function ]; then end_wine; fi
  for round in $(seq 100); do
    [ -n "$(marked_processes)" ] || exit "$status"
    for process in $(marked_processes); do
      if [ "$round" -lt 50 ]; then kill "$process" 2>/dev/null || true; else kill -KILL "$process" 2>/dev/null || true; fi
    done
    sleep 0.1
  done
  fail "these processes do not end: $(marked_processes | paste -sd ' ')"
}

# watched COMMAND...: runs it so that a signal to the script is handled at once, not only when the command is done.
watched() {
  "$@" &
  wait $!
}

# quietly NAME COMMAND...: runs it with its output in build/logs/NAME.log; if it fails, shows the end of that file.
quietly() {
  local log="$root/build/logs/$1.log"
  mkdir -p "$root/build/logs"
  shift
  watched "$@" >"$log" 2>&1 </dev/null && return 0
  tail -n 80 "$log" >&2
  printf 'error: this failed; all of its output is in %s\n' "${log#"$root"/}" >&2
  return 1
}
