# Sourced: the private Wine prefix. The environment is set at once; start_wine and start_display start what a
# script needs, and both are stopped when the script ends.
#
# QZ_WINEPREFIX names another prefix than build/wine.
qz_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

export WINEPREFIX=${QZ_WINEPREFIX:-$qz_root/build/wine}
export WINEDEBUG=${WINEDEBUG:--all}
# No debugger that swallows a crash, no desktop entries, no offers to download add-ons.
export WINEDLLOVERRIDES='winedbg.exe=d;winemenubuilder.exe=d;mscoree,mshtml='
export PATH=/usr/lib/wine:$PATH
# Caches and "My Documents" stay in the prefix as well; the display's key stays where it is.
export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
export HOME=$WINEPREFIX/home
case ${LC_ALL:-${LC_CTYPE:-${LANG:-}}} in
    *.UTF-8 | *.utf8) ;;
    *) export LC_ALL=C.UTF-8 ;;  # else Wine takes file names for ASCII
esac

wine_users=$WINEPREFIX.users
xvfb_pid=

# One server outlives its programs: each further program then starts at once. The services are started here, for
# whoever starts them hands them its output, and a reader of that output would wait for their end.
start_wine() {
    mkdir -p "$wine_users" "$HOME"
    : >"$wine_users/$$"
    trap stop_all EXIT
    wineserver -p 2>/dev/null || true  # fails when one is running already
    timeout 120 wine64 net.exe start RpcSs >/dev/null 2>&1 || true  # fails when it is running already
}

# Ends the server unless another script of this clone is using it.
stop_wine() {
    rm -f "$wine_users/$$"
    local user
    for user in "$wine_users"/*; do
        if kill -0 "${user##*/}" 2>/dev/null; then return 0; fi
        rm -f "$user"
    done
    wineserver -k 2>/dev/null || true
    wineserver -w
}

# Makes the prefix anew. The resolution is given in dots an inch, else it is the system's own.
make_prefix() {  # [RESOLUTION]
    local fonts=$WINEPREFIX/drive_c/windows/Fonts
    rm -rf "$WINEPREFIX"
    start_wine  # makes the prefix
    mkdir -p "$fonts"
    cp /usr/share/wine/fonts/{tahoma,tahomabd,marlett,symbol}.ttf "$fonts"
    timeout 60 wine64 regedit /S "$qz_root/scripts/wine_prefix.reg"
    if [ -n "${1:-}" ]; then
        timeout 60 wine64 reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    fi
    stop_wine
}

# A private virtual display.
start_display() {
    local number display
    trap stop_all EXIT
    exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null)
    xvfb_pid=$!
    if ! read -r -t 30 number <&"$display"; then
        echo "the virtual display did not start" >&2
        return 1
    fi
    exec {display}<&-
    export DISPLAY=:$number
}

stop_all() {
    if [ -e "$wine_users/$$" ]; then stop_wine; fi
    if [ -n "$xvfb_pid" ]; then kill "$xvfb_pid" 2>/dev/null || true; fi
}
