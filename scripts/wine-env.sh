# shellcheck shell=bash
# Sourced: the environment in which the project's programs run under Wine, and its prefix.
#
# WINEPREFIX       the prefix to use; else one of the project's own, under build/.
# CUADROS_DISPLAY  an X display on which windows shall be seen; else there is none, and
#                  Wine's null driver draws into memory.
export DISPLAY=${CUADROS_DISPLAY:-}
WINEPREFIX=${WINEPREFIX:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine${DISPLAY:+-display}}
export WINEPREFIX
export WINEDEBUG=${WINEDEBUG:--all,err+seh,err+heap}
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
# The user's language would change the decimal point and the texts of the system's dialogs.
export LC_ALL=${CUADROS_LOCALE:-C.UTF-8}

# Makes the prefix, once. It is made aside and then renamed, so that one which is there is
# complete, and under a lock, since a build starts several programs at a time.
prepare_wine_prefix() {
  [ -f "$WINEPREFIX/.cuadros-ready" ] && return
  mkdir -p "$(dirname "$WINEPREFIX")"
  (
    flock 9
    [ -f "$WINEPREFIX/.cuadros-ready" ] && exit
    if [ -e "$WINEPREFIX" ]; then
      echo "$WINEPREFIX is not a Wine prefix of this project: unset WINEPREFIX." >&2
      exit 1
    fi
    final=$WINEPREFIX
    export WINEPREFIX=$final.new
    rm -rf "$WINEPREFIX"
    mkdir "$WINEPREFIX"
    # Wine's servers outlive the command that starts them: they must hold neither its
    # output nor the lock.
    fill_wine_prefix </dev/null >"$final.log" 2>&1 9>&- || {
      echo "Wine could not make a prefix; what it said is in $final.log." >&2
      exit 1
    }
    touch "$WINEPREFIX/.cuadros-ready"
    mv "$WINEPREFIX" "$final"
  ) 9>"$WINEPREFIX.lock"
}

fill_wine_prefix() {
  wineboot -i &&
    # Without these fonts every dialog template comes out in a wrong size.
    cp /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/" &&
    wine_settings >"$WINEPREFIX/drive_c/cuadros.reg" &&
    wine regedit /S 'C:\cuadros.reg' || return
  # No server may run any more: that is no failure.
  wineserver -k || true
  wineserver -w || true
}

wine_settings() {
  printf 'REGEDIT4\n\n'
  if [ -z "$DISPLAY" ]; then
    printf '[HKEY_CURRENT_USER\\Software\\Wine\\Drivers]\n"Graphics"="null"\n\n'
  fi
  # A crash ends the program; Wine's dialog about it would wait for ever.
  printf '[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]\n"ShowCrashDialog"=dword:00000000\n\n'
  # Heap checking on, so for every test program. Not for the benchmark, the sample host and its
  # tour, whose long lists and contours of large terrains it would make many times as slow.
  printf '[HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\Session Manager]\n'
  printf '"GlobalFlag"=dword:00000030\n\n'
  local program
  for program in bench bench-raw Ejemplo Recorrido; do
    printf '[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion'
    printf '\\Image File Execution Options\\%s.exe]\n"GlobalFlag"=dword:00000000\n\n' "$program"
  done
}

# Keeps this prefix's server running between programs: a start costs 0.3 s, then 0.01 s.
start_wine() {
  wineserver -p </dev/null >/dev/null 2>&1 || true # one may run already
  wine cmd /c exit </dev/null >/dev/null 2>&1 || {
    echo "Wine does not run in $WINEPREFIX." >&2
    return 1
  }
}

# Ends this prefix's server and what still runs in it; other prefixes are not touched.
stop_wine() {
  wineserver -k >/dev/null 2>&1 || true
}

prepare_wine_prefix
