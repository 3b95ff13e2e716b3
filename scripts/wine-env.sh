# Sourced: the environment in which Wine runs the project's programs, and its prefix.
# The null graphics driver needs no display; the crash dialog would hang a run for ever.
export WINEPREFIX=${WINEPREFIX:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine}
export WINEDEBUG=${WINEDEBUG:--all,err+seh,err+heap}
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
export DISPLAY=${CUADROS_DISPLAY:-}

prepare_wine_prefix() {
  [ -f "$WINEPREFIX/.cuadros-ready" ] && return
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineboot -i </dev/null >/dev/null 2>&1
  cp /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
  cat > "$WINEPREFIX/drive_c/cuadros.reg" <<'REG'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Drivers]
"Graphics"="null"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_LOCAL_MACHINE\System\CurrentControlSet\Control\Session Manager]
"GlobalFlag"=dword:00000030
REG
  wine regedit /S 'C:\cuadros.reg' </dev/null >/dev/null 2>&1
  wineserver -k || true
  wineserver -w || true
  touch "$WINEPREFIX/.cuadros-ready"
}

prepare_wine_prefix
