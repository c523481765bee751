# A Wine of the project's own: its prefix, its settings, its virtual display. Source it after common.sh.
export WINEPREFIX=${TARVIK_WINEPREFIX:-$root/build/wine}
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
# The text of this variable decides how Wine names files; it must be a UTF-8 locale that every machine has.
export LC_ALL=C.UTF-8

# make_prefix: a Windows folder with the fonts and settings that windows look right with; made once.
make_prefix() {
  [ ! -e "$WINEPREFIX/.ready" ] || return 0
  say "Making a Wine prefix in ${WINEPREFIX#"$root"/}"
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineboot -i >/dev/null 2>&1 </dev/null || fail "Wine could not make its prefix in $WINEPREFIX"
  # Debian's Wine does not find its own fonts; without them dialogs come out wider than on Windows.
  ln -sf /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$WINEPREFIX/drive_c/windows/Fonts/"
  cat > "$WINEPREFIX/settings.reg" <<'REG'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"SimSun"="Droid Sans Fallback"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink]
"Tahoma Bold"=hex(7):44,72,6f,69,64,53,61,6e,73,46,61,6c,6c,62,61,63,6b,46,75,\
  6c,6c,2e,74,74,66,2c,44,72,6f,69,64,20,53,61,6e,73,20,46,61,6c,6c,62,61,63,\
  6b,00,00

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="Default"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"Default"="1280x960"
REG
  wine regedit /S "$(winepath -w "$WINEPREFIX/settings.reg")" >/dev/null 2>&1 </dev/null || fail "Wine refused the settings"
  wineserver -w
  touch "$WINEPREFIX/.ready"
}

# start_display: a virtual screen of our own; sets DISPLAY and display_pid.
start_display() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "${1:-1280x960x24}" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 </dev/null &
  display_pid=$!
  for _ in $(seq 100); do
    [ ! -s "$number_file" ] || break
    sleep 0.1
  done
  [ -s "$number_file" ] || fail "Xvfb did not start"
  DISPLAY=:$(cat "$number_file")
  export DISPLAY
  rm -f "$number_file"
}

# start_wine: keeps one Wine server up, so that each program starts in milliseconds.
start_wine() {
  make_prefix
  # Its services would hold this script's output open, so they get none of it.
  wineserver -p >/dev/null 2>&1 </dev/null || true
  wine wineboot >/dev/null 2>&1 </dev/null || fail "Wine does not start"
}

# stop_all: ends Wine and the display that this script started.
stop_all() {
  wineserver -k >/dev/null 2>&1 || true
  wineserver -w >/dev/null 2>&1 || true
  if [ -n "${display_pid:-}" ]; then
    kill "$display_pid" 2>/dev/null || true
    wait "$display_pid" 2>/dev/null || true
  fi
}
