# SPDX-License-Identifier: MIT
# Functions for the scripts (bash): packages, the display, Wine, builds, and the end of started processes.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build

say() { printf '%s\n' "$*" >&2; }
die() { say "$(basename "$0"): $*"; exit 1; }

# need_packages NAME...: installs those of the Debian packages that are missing.
need_packages() {
    local missing=() name
    for name in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "these packages are missing, and there is no sudo to install them: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${missing[*]} ..."
    mkdir -p "$build"
    "${as_root[@]}" apt-get update >"$build/packages.log" 2>&1 &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends "${missing[@]}" >>"$build/packages.log" 2>&1 || {
        tail -n 20 "$build/packages.log" >&2
        die "could not install the packages above (whole log: $build/packages.log)"
    }
}

# Ends the processes that this script has started, and no others, at every end of the script.
xvfb_pid= wine_prefix= program_pid=
clean_up() {
    trap - EXIT INT TERM HUP
    if [ -n "$program_pid" ] && kill -0 "$program_pid" 2>/dev/null; then
        kill "$program_pid" 2>/dev/null
    fi
    if [ -n "$wine_prefix" ]; then
        WINEPREFIX=$wine_prefix wineserver -k >/dev/null 2>&1
        WINEPREFIX=$wine_prefix wineserver -w
    fi
    if [ -n "$xvfb_pid" ]; then
        kill "$xvfb_pid" 2>/dev/null
        wait "$xvfb_pid" 2>/dev/null
    fi
}
end_with() {
    clean_up
    exit "$1"
}
trap clean_up EXIT
trap 'end_with 130' INT
trap 'end_with 143' TERM
trap 'end_with 129' HUP

# start_xvfb WIDTHxHEIGHT: starts an X display of the script's own, on the first free number.
start_xvfb() {
    local numbers
    numbers=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$numbers" >/dev/null 2>&1 &
    xvfb_pid=$!
    local tries=0
    until [ -s "$numbers" ]; do
        kill -0 "$xvfb_pid" 2>/dev/null || die "Xvfb did not start"
        tries=$((tries + 1))
        [ $tries -lt 300 ] || die "Xvfb named no display within 30 seconds"
        sleep 0.1
    done
    export DISPLAY=:$(cat "$numbers")
    rm -f "$numbers"
}

# use_wine NAME [unmanaged]: uses the Wine prefix NAME in the build folder, and makes it when it does not exist.
# unmanaged is for displays of start_xvfb, which have no window manager.
use_wine() {
    # Wine encodes file names in the locale's character set, and only UTF-8 can encode all names.
    [ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8
    export WINEPREFIX=$build/$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
    local mark=$WINEPREFIX/.made-2 # raise the number with a change below: older prefixes are then made again
    [ ! -e "$mark" ] || return 0
    say "Making the Wine prefix ..."
    rm -rf "$WINEPREFIX"
    mkdir -p "$build"
    wine wineboot --init >"$build/wineboot.log" 2>&1 || die "Wine could not make its prefix (log: $build/wineboot.log)"
    # Arial is not installed. Liberation Sans has letters of the same widths.
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /d 'Liberation Sans' /f >>"$build/wineboot.log" 2>&1
    # Without this setting Wine waits for a window manager when it shows a window.
    [ "${2-}" != unmanaged ] ||
        wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >>"$build/wineboot.log" 2>&1
    wineserver -w
    touch "$mark"
}

# keep_wine: starts a wineserver for the whole run, so that no program waits 2.5 seconds for a new one. Call take_turn
# for the prefix and start_xvfb before: a server keeps the display that it started with.
keep_wine() {
    wineserver -k >/dev/null 2>&1
    wineserver -w
    wineserver -p >/dev/null 2>&1
    wine_prefix=$WINEPREFIX
    # The first program starts Wine's services. They keep the program's output open, so a pipe would never end.
    wine wineboot >/dev/null 2>&1 </dev/null
}

# take_turn NAME: waits until no other run of this checkout uses the prefix NAME.
take_turn() {
    mkdir -p "$build"
    exec 9>"$build/$1.lock"
    flock -n 9 || {
        say "Waiting for another run that uses $build/$1 ..."
        flock 9
    }
}

# build_preset PRESET [TARGET]: configures the preset when needed and builds it. Prints errors only.
build_preset() {
    local preset=$1 log=$build/$1.log
    shift
    mkdir -p "$build"
    say "Building $preset ..."
    (
        cd "$root" &&
            { [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
            cmake --build --preset "$preset" ${1:+--target "$@"}
    ) >"$log" 2>&1 || {
        grep -nE 'error|FAILED|CMake Error' "$log" | head -n 40 >&2
        tail -n 15 "$log" >&2
        die "$preset did not build (whole log: $log)"
    }
}

# Debian packages: for building and showing the program, for pictures of it, and for the tests.
run_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix wine wine64 fonts-liberation fonts-wine)
picture_packages=(xvfb xdotool imagemagick)
test_packages=("${run_packages[@]}" xvfb g++ clang clang-format-14 g++-mingw-w64-i686-posix googletest tzdata imagemagick
    doxygen)
