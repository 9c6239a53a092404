# What install_test does and looks at, in a Wine prefix of its own. Sourced by bash, after common.sh;
# `here` is this folder, `build` that of the build, `version` the one that it ought to have.
work=$root/build/packaging
packages=$work/packages
drive=$work/wine/drive_c
library=$drive/windows/nviewlib.dll
shortcut="$drive/ProgramData/Microsoft/Windows/Start Menu/Programs/Zentar.lnk"
web_site=$(sed -n 's/^ZENTAR_WEB_SITE:STRING=//p' "$build/CMakeCache.txt")
web_site=${web_site%/}/
rights_log=$drive/windows/system32/standin.log
uninstall_keys='HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall'
shared_key='HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\SharedDLLs'

# The two copies: the folder as Windows calls it, and as the host does.
first='C:\Program Files\Zentar'
first_on_host="$drive/Program Files/Zentar"
second='C:\Мои игры\Zentar 2'
second_on_host="$drive/Мои игры/Zentar 2"

# Runs one test, and says so as a GoogleTest program does, for those who count.
run_test() {  # name function
    local began=$EPOCHREALTIME status=0 took
    echo "[ RUN      ] $1"
    # Not inside a condition: there no failed command would end the test.
    (set -eEu; trap 'echo "status $? from $BASH_COMMAND"' ERR; "$2")
    status=$?
    took=$(((${EPOCHREALTIME/[.,]/} - ${began/[.,]/}) / 1000))
    if [ "$status" -eq 0 ]; then
        echo "[       OK ] $1 ($took ms)"
    else
        echo "[  FAILED  ] $1 ($took ms)"
        failures=$((failures + 1))
    fi
}

# Ends the test unless the two texts are the same.
expect() {  # what expected actual
    [ "$2" = "$3" ] && return
    echo "$1: expected (-), found (+)"
    diff -u <(echo "$2") <(echo "$3") | tail -n +3 || true
    exit 1
}

# Ends the test unless the command does what is said of it.
expect_that() {  # what command...
    local what=$1
    shift
    "$@" && return
    echo "not so: $what"
    exit 1
}

# Whether the command becomes true within half a minute.
eventually() {  # command...
    local tries
    for ((tries = 0; tries < 150; ++tries)); do
        "$@" && return
        sleep 0.2
    done
    return 1
}

is_gone() {  # file
    [ ! -e "$1" ]
}

# Runs a Windows program to its end; gives its exit code. Its output goes into a file, since what it
# leaves running would keep a pipe open.
win() {  # program argument...
    timeout -k 5 120 wine "$@" >>"$work/wine.log" 2>&1 </dev/null
}

# Setup wants the folder without quotation marks, so the name is handed over word by word.
set_up() {  # setup [folder]
    # shellcheck disable=SC2086
    win "$1" /S ${2:+/D=$2}
}

# As "Apps" does it: waits, and gives the outcome.
uninstall() {  # folder [argument]
    # shellcheck disable=SC2086
    win "$1\\uninstall.exe" /S ${2:-} _?=$1
}

# The files and folders in a folder, by name.
names_in() {  # folder
    (cd "$1" && find . -mindepth 1 | sort)
}

# The same with what is in them.
contents_of() {  # folder
    (cd "$1" && find . -mindepth 1 \( -type f -exec sha256sum {} + \) -o -type d -print | sort)
}

# A key of the registry with all below it, as text.
registry() {  # key
    local file=$work/export.reg
    rm -f "$file"
    win reg export "$1" "Z:${file//\//\\}" /y || return 0
    iconv -f UTF-16 -t UTF-8 "$file" | tr -d '\r'
}

# How many copies share the library, as 8 hexadecimal digits; nothing for uncounted.
library_count() {
    registry "$shared_key" | sed -n 's/^"C:\\\\windows\\\\nviewlib.dll"=dword://p'
}

# Which copy the Start menu opens.
shortcut_leads_to() {
    "$here/link_target" "$shortcut"
}

# The uninstall entry that a copy ought to have.
expected_entry() {  # display-name folder
    local path=${2//\\/\\\\} size
    size=$(cat "$build/zentar.exe" "$build/nviewlib.dll" | wc -c)
    cat <<END
"CountsLibrary"=dword:00000001
"DisplayIcon"="$path\\\\zentar.exe,0"
"DisplayName"="$1"
"DisplayVersion"="$version"
"EstimatedSize"=dword:$(printf %08x $((size / 1024)))
"InstallLocation"="$path"
"NoModify"=dword:00000001
"NoRepair"=dword:00000001
"Publisher"="The Zentar developers"
"QuietUninstallString"="\\"$path\\\\uninstall.exe\\" /S _?=$path"
"UninstallString"="\\"$path\\\\uninstall.exe\\""
"URLInfoAbout"="$web_site"
END
}

entry() {  # name
    registry "$uninstall_keys\\$1" | sed -n '/^"/p' | sort
}

# Everything on the drive and in the registry that an installation could leave behind.
whole_machine() {
    (cd "$drive" && find . | grep -vE '^\./windows/system32/standin\.log$' | sort)
    registry 'HKEY_LOCAL_MACHINE\Software'
    registry 'HKEY_LOCAL_MACHINE\System\CurrentControlSet\Control\Session Manager'
    registry 'HKEY_CURRENT_USER\Software'
}

start_machine() {
    start_wine "$work/wine" >>"$work/wine.log" 2>&1 </dev/null
    export WINEDLLOVERRIDES="$WINEDLLOVERRIDES;icacls.exe=n"
}

# The next start of Windows deletes what was in use when it was to be deleted.
restart_windows() {
    wineserver -k
    wineserver -w
    start_machine
}

# Opens Zentar from a folder, and waits for one of its windows.
open_zentar() {  # folder window-title
    wine "$1\\zentar.exe" >>"$work/wine.log" 2>&1 </dev/null &
    zentar_pid=$!
    wait_for_window "$2"
}

# Whether the window has the keyboard. A look fails, too, when another window goes meanwhile.
has_keyboard() {  # title
    local title
    title=$(xdotool getactivewindow getwindowname 2>/dev/null) && [[ $title =~ ^$1$ ]]
}

wait_for_window() {  # title
    expect_that "there is a window $1" eventually has_keyboard "$1"
}

# Presses Enter unless the window is there.
press_until_window() {  # title
    has_keyboard "$1" || { xdotool key Return; false; }
}

# Selects a shot, and waits a little for what comes of it. The keys of a window's first moment can
# get lost.
select_a_shot_until() {  # command...
    local tries
    xdotool key --delay 300 Tab Down
    for ((tries = 0; tries < 15; ++tries)); do
        "$@" && return
        sleep 0.2
    done
    return 1
}

# What the window that has the keyboard looks like.
look() {
    /usr/bin/import -window "$(xdotool getactivewindow)" rgb:- 2>/dev/null | sha256sum
}

looks_otherwise() {  # than
    local now
    now=$(look) && [ "$now" != "$1" ]
}

# Asks Zentar to leave, as the system does.
close_zentar() {
    win taskkill /im zentar.exe
    timeout 60 tail --pid="$zentar_pid" -f /dev/null
}

# Settings that lead to the sample games.
game_settings() {
    printf '%s\r\n' 'Virgin=0' 'Game=Quake2' 'Q1Folder=C:\Games\Quake\' \
        'Q2Folder=C:\Games\Quake2\' 'Q3Folder=C:\Games\Quake3\' 'Remote=C:\Games\'
}

# Gives the library another version, in the first number of its version block.
library_of_version() {  # major minor file
    /usr/bin/python3 - "$build/nviewlib.dll" "$1" "$2" "$3" <<'END'
import struct, sys
data = bytearray(open(sys.argv[1], "rb").read())
start = data.index(struct.pack("<I", 0xFEEF04BD))
struct.pack_into("<HH", data, start + 8, int(sys.argv[3]), int(sys.argv[2]))
open(sys.argv[4], "wb").write(data)
END
}

# A prefix with the sample games. In the place of the tool that gives rights, which does nothing
# under Wine, stands one that notes how it was started.
make_machine() {
    rm -rf "$work/wine"
    start_machine
    mkdir "$drive/Games"
    win "$build/make_samples.exe" 'C:\Games'
    cp "$build/standin_game.exe" "$drive/windows/system32/icacls.exe"
    printf 0 >"$drive/windows/system32/standin.seconds"
    # On a real machine there are always some.
    win reg add "$shared_key" /v 'C:\windows\other.dll' /t REG_DWORD /d 1 /f
    restart_windows
}
