# Tests of what happens when something is in the way, or not what it seems. Sourced by install_test.
# In a machine's tests, each begins and ends with nothing installed.

# The folder of a build that a test can spoil.
copy_build() {
    rm -rf "$work/other build"
    mkdir "$work/other build"
    cp "$build/CMakeCache.txt" "$build/zentar.exe" "$build/nviewlib.dll" "$work/other build"
}

# Packages a project like this one whose list for CMake says something else.
package_other_project() {  # change-for-sed
    rm -rf "$work/other project"
    mkdir -p "$work/other project/tools" "$work/other project/ui"
    cp -r "$root/packaging" "$work/other project"
    cp -r "$root/ui/icons" "$work/other project/ui"
    cp "$root/tools/common.sh" "$work/other project/tools"
    sed "$1" "$root/CMakeLists.txt" >"$work/other project/CMakeLists.txt"
    "$work/other project/packaging/make_packages" "$work/other build" "$work/other packages"
}

# Ends the test unless the command ends with the exit code.
expect_status() {  # exit-code command...
    local status=0 expected=$1
    shift
    "$@" || status=$?
    expect "exit code of $*" "$expected" "$status"
}

forget_rights() {
    rm -f "$rights_log"
}

# What rights were given on since then, without the folder of the copy.
rights_given() {
    [ -e "$rights_log" ] || return 0
    sed -nE 's/\r//; s/.*icacls.exe" ".*\\([^\\]*)" \/grant .*:(.*)$/\1 \2/p' "$rights_log"
}

# A library that no copy counts any more.
forget_library() {
    rm "$library"
    win reg delete "$shared_key" /v 'C:\windows\nviewlib.dll' /f
}

# A shot that is selected is shown, which takes the library.
open_portable_with_library() {
    open_zentar 'C:\USB\Zentar' Zentar
    expect_that 'the library is loaded' eventually \
        select_a_shot_until grep -q nviewlib.dll "/proc/$zentar_pid/maps"
}

# The one that deletes the file itself, and then the folders.
the_copy_of_the_uninstaller_ended() {
    ! pgrep -f 'Temp.~nsu.*Un\.exe' >/dev/null
}

remove_copy() {  # folder its-name-on-the-host
    uninstall "$1" /DESIGNS
    expect_that 'the folder goes' eventually is_gone "$2"
    expect_that 'the copy of the uninstaller ends' eventually the_copy_of_the_uninstaller_ended
}

expect_machine_as_before() {
    restart_windows
    whole_machine >"$work/after.txt"
    expect 'the machine' "$(cat "$work/before.txt")" "$(cat "$work/after.txt")"
}

# A version in which a program's begins, and one whose dots could stand for any letter.
OnlyAProgramOfItsVersionIsPackaged() {
    local wrong
    copy_build
    for wrong in "${version%?}" "${version%?}." "${version}0"; do
        expect_status 1 package_other_project "s/VERSION $version/VERSION $wrong/" 2>"$work/why.txt"
        expect 'message' "$work/other build/zentar.exe is not of version $wrong" \
            "$(cat "$work/why.txt")"
    done
}

ALargeProgramIsPackaged() {
    copy_build
    head -c 20000000 /dev/zero | tr '\0' x >>"$work/other build/zentar.exe"
    package_other_project ''
}

PackagesNeedAVersionAndAWebSite() {
    copy_build
    expect_status 1 package_other_project "s/VERSION $version//" 2>"$work/why.txt"
    expect 'message' 'CMakeLists.txt names no version' "$(cat "$work/why.txt")"
    sed -i 's/^ZENTAR_WEB_SITE.*//' "$work/other build/CMakeCache.txt"
    expect_status 1 package_other_project '' 2>"$work/why.txt"
    expect 'message' "$work/other build/CMakeCache.txt names no web site" "$(cat "$work/why.txt")"
}

AnyWebSiteStandsInTheManifests() {
    local site
    for site in 'https://zentar.example/' 'https://zentar.example' 'https://a.example/b&c|d\1/e'; do
        copy_build
        sed -i '/^ZENTAR_WEB_SITE/d' "$work/other build/CMakeCache.txt"
        printf '%s\n' "ZENTAR_WEB_SITE:STRING=$site" >>"$work/other build/CMakeCache.txt"
        package_other_project ''
        expect 'address' "    InstallerUrl: ${site%/}/zentar-$version-setup.exe" \
            "$(grep InstallerUrl "$work/other packages/winget/Zentar.Zentar.installer.yaml")"
    done
}

# A folder stands where the program is to be written.
WhatAFailedSetupLeftIsUninstalled() {
    mkdir -p "$first_on_host/zentar.exe.new"
    expect_status 2 set_up "$setup"
    expect 'files' './uninstall.exe
./zentar.exe.new' "$(names_in "$first_on_host")"
    expect_that 'there is an entry' [ -n "$(entry Zentar)" ]
    expect 'count' '' "$(library_count)"
    rmdir "$first_on_host/zentar.exe.new"
    remove_copy "$first" "$first_on_host"
    expect_machine_as_before
}

# The same with the uninstaller, in an upgrade.
TheOldUninstallerStaysUntilTheNewOneIsThere() {
    set_up "$setup"
    echo 'the version before' >"$first_on_host/uninstall.exe"
    mkdir "$first_on_host/uninstall.exe.new"
    expect_status 2 set_up "$setup"
    expect 'uninstaller' 'the version before' "$(cat "$first_on_host/uninstall.exe")"
    rmdir "$first_on_host/uninstall.exe.new"
    set_up "$setup"
    expect 'files' "$InstalledFiles" "$(names_in "$first_on_host")"
    echo 'half a file' >"$first_on_host/uninstall.exe.new"
    remove_copy "$first" "$first_on_host"
}

RightsAreGivenOnNewFilesAlone() {
    set_up "$setup"
    forget_rights
    set_up "$setup"
    expect 'rights of an upgrade' '' "$(rights_given)"
    rm "$first_on_host/zentar.ini"
    set_up "$setup"
    expect 'rights on lost settings' 'zentar.ini (M)' "$(rights_given)"
    forget_rights
    rm -r "$first_on_host/data"
    set_up "$setup"
    expect 'rights on a lost folder' 'data (OI)(CI)(M)' "$(rights_given)"
    remove_copy "$first" "$first_on_host"
    mkdir -p "$first_on_host/data/q3text"
    touch "$first_on_host/zentar.ini"
    forget_rights
    set_up "$setup"
    expect 'rights in a folder taken over' 'zentar.ini (M)
data (OI)(CI)(M)' "$(rights_given)"
    remove_copy "$first" "$first_on_host"
}

# A file stands where the folder of the designs is to be made.
RightsThatAFailedSetupDidNotGiveAreGivenByTheNext() {
    mkdir -p "$first_on_host/data"
    touch "$first_on_host/data/q3text"
    forget_rights
    expect_status 2 set_up "$setup"
    expect 'rights' 'zentar.ini (M)' "$(rights_given)"
    rm "$first_on_host/data/q3text"
    forget_rights
    set_up "$setup"
    expect 'rights' 'zentar.ini (M)
data (OI)(CI)(M)' "$(rights_given)"
    remove_copy "$first" "$first_on_host"
}

AShortcutThatCannotBeWrittenIsAFailure() {
    mkdir "$shortcut"
    expect_status 2 set_up "$setup"
    rmdir "$shortcut"
    remove_copy "$first" "$first_on_host"
}

# Uninstalls the first copy with its designs; what a way in its folder leads to stays, and the way.
uninstall_all_but() {  # elsewhere contents left
    uninstall "$first" /DESIGNS
    expect_that 'the uninstaller goes' eventually is_gone "$first_on_host/uninstall.exe"
    expect_that 'the copy of it ends' eventually the_copy_of_the_uninstaller_ended
    expect 'what the way leads to' "$2" "$(contents_of "$1")"
    expect 'what is left' "$3" "$(names_in "$first_on_host")"
}

# Users may write in `data`, so they can make it a way to a folder of somebody else.
AFolderThatLeadsElsewhereLosesNothing() {
    local elsewhere=$drive/Elsewhere before
    mkdir -p "$elsewhere/q3text"
    set_up "$setup"
    rm -r "$first_on_host/data"
    echo mine >"$elsewhere/zentar.ini.new"
    ln -s "$elsewhere" "$first_on_host/data"
    before=$(contents_of "$elsewhere")
    uninstall_all_but "$elsewhere" "$before" './data'
    forget_rights
    set_up "$setup"
    expect 'rights' 'zentar.ini (M)' "$(rights_given)"
    uninstall_all_but "$elsewhere" "$before" './data'
    rm "$first_on_host/data"
    set_up "$setup"
    rm -r "$first_on_host/data/q3text"
    echo mine >"$elsewhere/one.ini"
    ln -s "$elsewhere" "$first_on_host/data/q3text"
    before=$(contents_of "$elsewhere")
    uninstall_all_but "$elsewhere" "$before" './data
./data/q3text'
    rm -r "$elsewhere" "$first_on_host"
}

FoldersThatCannotBeAreRefused() {
    local before
    touch "$drive/a file"
    before=$(names_in "$drive")
    expect_status 2 set_up "$setup" "C:\\$(printf 'x%.0s' {1..201})"
    expect_status 2 set_up "$setup" 'C:\a file\Zentar'
    expect 'files' "$before" "$(names_in "$drive")"
    rm "$drive/a file"
    set_up "$setup" "$first"
    expect 'files' "$InstalledFiles" "$(names_in "$first_on_host")"
    set_up "$setup" "$first\\"
    remove_copy "$first" "$first_on_host"
}

SetupThatTheUserLeavesSaysSo() {
    local status=0 before process
    before=$(names_in "$drive")
    wine "$setup" >>"$work/wine.log" 2>&1 </dev/null &
    process=$!
    wait_for_window "Zentar Setup *"
    xdotool key Escape
    wait_for_window 'Zentar Setup'
    xdotool key y
    wait "$process" || status=$?
    expect 'exit code' 1 "$status"
    expect 'files' "$before" "$(names_in "$drive")"
}

OnlyACapitalDNamesAFolder() {
    set_up "$setup" "$second"
    win "$setup" /S '/d=C:\Elsewhere'
    expect 'shortcut' "$second\\zentar.exe" "$(shortcut_leads_to)"
    expect_that 'there is no copy elsewhere' is_gone "$first_on_host"
    remove_copy "$second" "$second_on_host"
    rmdir "$drive/Мои игры"
}

# The portable copy has it in use.
AnOlderLibraryInUseStopsSetupBeforeItChangesAnything() {
    library_of_version 0 98 "$library"
    open_portable_with_library
    expect_status 3 set_up "$setup"
    expect_that 'no folder was made' is_gone "$first_on_host"
    expect 'entry' '' "$(entry Zentar)"
    expect 'count' '' "$(library_count)"
    close_zentar
    rm "$library"
}

# Nobody counts the portable copy, which needs the library all the same.
ALibraryInUseOutlivesTheLastCopy() {
    set_up "$setup"
    open_portable_with_library
    remove_copy "$first" "$first_on_host"
    expect 'count' '' "$(library_count)"
    set_up "$setup"
    close_zentar
    restart_windows
    cmp "$build/nviewlib.dll" "$library"
    remove_copy "$first" "$first_on_host"
    forget_library
}
