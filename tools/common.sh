# What ./run, ./test and other tools share. Sourced by bash; `root` is the project's folder.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

# Debian packages that building and running need.
build_packages=(cmake ninja-build g++ g++-mingw-w64-x86-64-posix googletest libbenchmark-dev)
wine_packages=(wine wine64 xvfb openbox xdotool imagemagick fonts-wine fonts-dejavu-core)
packaging_packages=(nsis zip unzip python3-yaml python3-jsonschema)

# The version that the project has; nothing when it names none.
project_version() {
    sed -nE 's/^project\(zentar VERSION ([0-9.]+) .*/\1/p' "$root/CMakeLists.txt"
}

is_installed() {  # package
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Installs the packages that are missing; asks for root only then.
need_packages() {  # package...
    local package missing=() as_root=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_preset() {  # preset [target...]
    local preset=$1
    shift
    (
        cd "$root"
        cmake --preset "$preset"
        cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"}
    )
}

# Starts an X server on a free display with a window manager, without which no window would get
# the keyboard, and sets DISPLAY.
start_display() {
    local number
    exec {number_pipe}<> <(:)
    Xvfb -displayfd "$number_pipe" -screen 0 1600x1200x24 -nolisten tcp >/dev/null 2>&1 &
    xvfb_pid=$!
    read -r -t 30 -u "$number_pipe" number || return 1
    exec {number_pipe}>&-
    export DISPLAY=:$number
    openbox >/dev/null 2>&1 &
    openbox_pid=$!
}

# Makes a Wine prefix ready and keeps its server up, since each cold start takes seconds.
start_wine() {  # prefix
    export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all LANG=C.UTF-8
    unset LC_ALL
    # No offers to download what Zentar does not use, no entries in the user's desktop menus.
    export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
    mkdir -p "$WINEPREFIX"
    # One that runs already is somebody else's, who would lose it at the end.
    wineserver -p || { echo "Something runs in $1 already."; return 1; }
    wineserver_started=1
    wine wineboot --init
}

start_display_and_wine() {  # prefix
    start_display && start_wine "$1"
}

# The screen's resolution, as programs that start from now on see it.
set_screen_dpi() {  # dots per inch
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f
}

# Ends what was started, by its own id only.
stop_display_and_wine() {
    [ -n "${wineserver_started:-}" ] && wineserver -k
    local process
    for process in ${openbox_pid:-} ${xvfb_pid:-}; do
        kill "$process" 2>/dev/null
        wait "$process" 2>/dev/null
    done
    return 0
}
