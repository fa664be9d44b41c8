#!/usr/bin/env bash
# Builds what changed and starts the desk with the demonstration practice; its arguments go to the desk (--help lists them).
# Without a display a script is played offscreen instead: the one given with --scenario, else the demonstration, which leaves
# its pictures and its database in out/.
set -euo pipefail
here="$(dirname "$(readlink -f "$0")")"
preset=run

"$here/packaging/install.sh"
[ -f "$here/build/$preset/build.ninja" ] || (cd "$here" && cmake --preset "$preset" >/dev/null)
quiet=()
[ -x "$here/build/$preset/app/tessara" ] && quiet=(-- --quiet)
(cd "$here" && cmake --build --preset "$preset" "${quiet[@]}")

has_option() {
    local option="$1" argument
    shift
    for argument in "$@"; do
        [[ "$argument" == "$option" || "$argument" == "$option="* ]] && return 0
    done
    return 1
}

arguments=("$@")
has_option --demo "$@" || arguments=(--demo "$@")

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    export QT_QPA_PLATFORM=offscreen
    if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
        XDG_RUNTIME_DIR="$(mktemp -d)"
        export XDG_RUNTIME_DIR
        trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
    fi
    if ! has_option --scenario "$@" && ! has_option --help "$@" && ! has_option -h "$@"; then
        out="$here/out"
        echo "No display: playing the demonstration offscreen, with pictures and database in $out"
        mkdir -p "$out"
        if ! has_option --db "$@"; then
            rm -f "$out"/demo.db "$out"/demo.db-*
            arguments+=(--db "sqlite:$out/demo.db")
        fi
        has_option --config-dir "$@" || arguments+=(--config-dir "$out/config")
        has_option --out "$@" || arguments+=(--out "$out")
        arguments+=(--scenario "$here/tests/scenarios/demo.txt")
    fi
fi

"$here/build/$preset/app/tessara" "${arguments[@]}"
