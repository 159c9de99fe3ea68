#!/bin/sh
# Starts Zarvello in the folder of its user. The program keeps its files below the folder in which
# it is started: settings, systems, permanences, protocols. Here that is ~/Zarvello, or what
# ZARVELLO_HOME names. What is missing there is made; no file is ever written over.
set -u

here=$(dirname "$(readlink -f "$0")")
program=$here/../lib/zarvello/zarvello
examples=$here/../share/zarvello/examples

# Started from a menu nobody sees what is written here, so the program shows it in a box.
give_up() {
    echo "zarvello: can't make or enter the folder $1" >&2
    [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || ZARVELLO_MISSING_FOLDER=$1 "$program"
    exit 1
}

# A folder that is new gets the examples of its name.
make_folder() {
    [ ! -d "$1" ] || return 0
    mkdir "$1" 2>/dev/null || give_up "$PWD/$1"
    for example in "$examples/$1"/*; do
        copy=$1/${example##*/}
        if [ -f "$example" ] && [ ! -e "$copy" ]; then
            cp "$example" "$copy" || echo "zarvello: can't copy $example" >&2
        fi
    done
}

# Names of files are meant from where the user stands.
for argument do
    shift
    case $argument in
        /*) ;;
        *) [ ! -f "$argument" ] || argument=$PWD/$argument ;;
    esac
    set -- "$@" "$argument"
done

folder=${ZARVELLO_HOME:-${HOME:?}/Zarvello}
mkdir -p -- "$folder" 2>/dev/null || give_up "$folder"
CDPATH='' cd -- "$folder" 2>/dev/null || give_up "$folder"
for name in system sysin sysout update; do
    make_folder "$name"
done
exec "$program" "$@"
