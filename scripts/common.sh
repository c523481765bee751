# What every script shares. Source it; it sets $root to the project's folder.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '==> %s\n' "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# as_root COMMAND...: runs it as root, through sudo where needed.
as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"
  elif command -v sudo >/dev/null; then sudo "$@"
  else fail "this needs root rights or sudo: $*"
  fi
}

# need_packages LIST...: installs the Debian packages that the lists name (scripts/packages/LIST.txt), where missing.
need_packages() {
  local list name missing=()
  for list in "$@"; do
    while read -r name _; do
      case "$name" in ''|'#'*) continue ;; esac
      dpkg-query -W -f '${db:Status-Status}\n' "$name" 2>/dev/null | grep -qx installed || missing+=("$name")
    done < "$root/scripts/packages/$list.txt"
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  command -v apt-get >/dev/null || fail "these packages are missing and there is no apt-get: ${missing[*]}"
  say "Installing ${#missing[@]} Debian packages: ${missing[*]}"
  as_root apt-get update -qq || fail "apt-get update failed; is the package server reachable?"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null ||
    fail "apt-get could not install: ${missing[*]}"
}
