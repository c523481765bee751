# The project's own Wine: its prefix, its settings, its virtual display. Source it after common.sh.
export WINEPREFIX=${TARVIK_WINEPREFIX:-$root/build/wine}
# Silent, unless the caller asks for something.
export WINEDEBUG=${WINEDEBUG:--all}
# The menu builder is off, so programs installed in it are not added to the menus and file types of the user's desktop.
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
# This locale sets the encoding of Wine's file names; it must be a UTF-8 locale that every machine has.
export LC_ALL=C.UTF-8

# make_prefix: makes the Wine prefix once. Each one in addition to the project's own is a copy of a template, which takes a
# fifth of the time.
make_prefix() {
  [ ! -e "$WINEPREFIX/.ready" ] || return 0
  say "Making a Wine prefix in ${WINEPREFIX#"$root"/}"
  if [ -n "${TARVIK_WINEPREFIX:-}" ]; then copy_template; else fill_prefix; fi
}

# copy_template: several scripts may need the template at the same time; the first one makes it.
copy_template() {
  local template=$root/build/wine-template
  (
    flock 8
    export WINEPREFIX=$template
    [ -e "$WINEPREFIX/.ready" ] || fill_prefix
  ) 8>"$template.lock"
  rm -rf "$WINEPREFIX" "$WINEPREFIX.part"
  cp -a "$template" "$WINEPREFIX.part"
  mv "$WINEPREFIX.part" "$WINEPREFIX"
}

# fill_prefix: makes it from nothing, with the fonts and settings that windows need to look right.
fill_prefix() {
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineboot -i >/dev/null 2>&1 </dev/null 8>&- 9>&- || fail "Wine could not make its prefix in $WINEPREFIX"
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
REG
  wine regedit /S "$(winepath -w "$WINEPREFIX/settings.reg")" >/dev/null 2>&1 </dev/null 8>&- 9>&- || fail "Wine refused the settings"
  wineserver -w
  touch "$WINEPREFIX/.ready"
}

# lock_wine: locks the prefix for this script, and first ends the processes that a killed script left in it.
lock_wine() {
  mkdir -p "$(dirname "$WINEPREFIX")"
  exec 9>"$WINEPREFIX.lock"
  flock -n 9 || fail "this project's Wine is in use by another script (./run, ./test or scripts/session); end that first"
  wineserver -k >/dev/null 2>&1 9>&- || true
}

# start_display [WIDTHxHEIGHTxDEPTH]: starts a virtual display; sets DISPLAY. Its number is used neither here nor on a bare
# machine: servers also listen on an abstract socket, and these belong to the network, which bare machines share.
start_display() {
  local screen=${1:-1280x960x24} number_file
  display_size=${screen%x*}
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "$screen" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 </dev/null 9>&- &
  for _ in $(seq 300); do
    [ ! -s "$number_file" ] || break
    sleep 0.1
  done
  [ -s "$number_file" ] || fail "Xvfb did not start"
  DISPLAY=:$(cat "$number_file")
  export DISPLAY
  rm -f "$number_file"
}

# stay_on_processor NUMBER: from here on this script and the programs that it starts run on one of the processors that it
# may use: 1 is the first, 0 the last, and a number beyond the last begins again at the first. The programs of one Wine and
# its server mostly wait for each other. On one processor such a switch takes microseconds; on two, each wakes up the
# other's processor, and on a virtual machine that takes several times as long as all the rest of a test.
stay_on_processor() {
  local range processors=()
  for range in $(sed -n 's/^Cpus_allowed_list:\s*//p' /proc/self/status | tr , ' '); do
    mapfile -t -O ${#processors[@]} processors < <(seq "${range%-*}" "${range#*-}")
  done
  taskset -cp "${processors[$((($1 + ${#processors[@]} - 1) % ${#processors[@]}))]}" $$ >/dev/null
}

# start_wine DESKTOP [DOTS]: keeps one Wine server running, so that each program starts in milliseconds. DESKTOP is
# "virtual" on a display of start_display, which has no window manager (Wine then draws a desktop as large as that display,
# and the title bars), and "own" on a display with one. DOTS is the display's dpi, by default 96.
start_wine() {
  lock_wine
  make_prefix
  wine_is_up=1
  choose_desktop "$1"
  choose_browser
  choose_dots "${2:-96}"
  start_server
  [ "$1" = own ] || keep_desktop_open
}

# start_server: its services would keep this script's output open, so their output is redirected.
start_server() {
  wineserver -p >/dev/null 2>&1 </dev/null 9>&- || true
  wine wineboot >/dev/null 2>&1 </dev/null 9>&- || fail "Wine does not start"
}

# keep_desktop_open: on a busy machine the program that opens the desktop sometimes ends while it starts. The server then
# knows a desktop that belongs to no program, and no other program can open it as long as any program runs. So the server
# and all programs are started again.
keep_desktop_open() {
  for _ in $(seq 5); do
    stay_on_desktop
    if open_desktop; then return 0; fi
    wineserver -k >/dev/null 2>&1 9>&- || true
    wineserver -w
    start_server
  done
  fail "the desktop does not open; the display shows: $(xwininfo -root -tree 2>&1 9>&-)"
}

# stay_on_desktop: Wine closes its desktop when no program has used it for a second, and the parent of the program that
# opened it waits for that. So one program that waits for input keeps the desktop open to the end. Its prompt shows that it
# has started: on a busy machine that may take longer than a whole test.
stay_on_desktop() {
  local said
  said=$(mktemp)
  sleep infinity 9>&- | wine cmd >"$said" 2>/dev/null 9>&- &
  for _ in $(seq 1200); do
    [ ! -s "$said" ] || break
    sleep 0.1
  done
  [ -s "$said" ] || fail "the desktop cannot be kept open"
  rm -f "$said"
}

# open_desktop: opens it before the first program does; otherwise the desktop would keep that program's output open, and a
# reader of the output would wait until the desktop ends. Fails if the program that opens it ends, or takes two minutes.
open_desktop() {
  local opener windows
  wine explorer "/desktop=Default,$display_size" >/dev/null 2>&1 </dev/null 9>&- &
  opener=$!
  for _ in $(seq 1200); do
    windows=$(xwininfo -root -tree 2>/dev/null 9>&- || true)
    if grep -qi 'wine desktop' <<<"$windows"; then return 0; fi
    kill -0 "$opener" 2>/dev/null || return 1
    sleep 0.1
  done
  return 1
}

# choose_desktop DESKTOP: Wine reads this setting only when it starts, so it is written before, and only if it differs. In
# Wine's registry, the value "Default" under "Desktops" is the size of the desktop that "Desktop" names.
choose_desktop() {
  local key='HKCU\Software\Wine\Explorer' chosen size
  chosen=$(grep -q '^"Desktop"="Default"' "$WINEPREFIX/user.reg" && echo virtual || echo own)
  size=$(sed -n 's/^"Default"="\([0-9]*x[0-9]*\)"$/\1/p' "$WINEPREFIX/user.reg")
  if [ "$1" = own ]; then
    [ "$chosen" != own ] || return 0
    set_registry delete "$key" /v Desktop /f
  else
    [ "$chosen" != virtual ] || [ "$size" != "$display_size" ] || return 0
    set_registry add "$key" /v Desktop /d Default /f
    set_registry add "$key\\Desktops" /v Default /d "$display_size" /f
  fi
  wineserver -k >/dev/null 2>&1 || true
  wineserver -w
}

# choose_browser: Wine opens HTML pages with a browser of this machine, but only its HTML engine, which is not installed
# here, registers their file type. So it is registered here, if there is a browser that Wine would start. Without a browser
# the program sees that no program opens a page, and reports it.
choose_browser() {
  local key='HKLM\Software\Classes\.html' known=no browser wanted=no
  for browser in xdg-open firefox konqueror mozilla opera dillo; do
    if command -v "$browser" >/dev/null; then wanted=yes; fi
  done
  if grep -qiF '[Software\\Classes\\.html]' "$WINEPREFIX/system.reg"; then known=yes; fi
  case "$known$wanted" in
    noyes) set_registry add "$key" /ve /d htmlfile /f ;;
    yesno) set_registry delete "$key" /f ;;
  esac
}

# choose_dots DOTS: the same for the dpi that programs see. Without a setting, Wine reports 96.
choose_dots() {
  local chosen
  chosen=$(sed -n '/^\[Control Panel\\\\Desktop\]/,/^$/s/^"LogPixels"=dword:0*\([0-9a-f]*\)$/\1/p' "$WINEPREFIX/user.reg")
  [ "$((16#${chosen:-60}))" != "$1" ] || return 0
  set_registry add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f
  wineserver -k >/dev/null 2>&1 || true
  wineserver -w
}

# set_registry ARGUMENT...: what "reg" does with these arguments. Call it before the desktop is open. On a busy machine this
# program too sometimes ends while it starts, because the desktop of the program before it is just closing; then the server
# and all programs are ended, and it is tried again.
set_registry() {
  for _ in $(seq 5); do
    if wine reg "$@" >/dev/null 2>&1 </dev/null 9>&-; then return 0; fi
    wineserver -k >/dev/null 2>&1 9>&- || true
    wineserver -w >/dev/null 2>&1 9>&- || true
  done
  fail "Wine refused a setting: $*"
}

# end_wine: called when the script ends, however it ends.
end_wine() {
  [ -n "${wine_is_up:-}" ] || return 0
  wineserver -k >/dev/null 2>&1 || true
  wineserver -w >/dev/null 2>&1 || true
}
