#!/bin/sh
# The installed "mosswick": runs the program in the user's own data folder,
# $XDG_DATA_HOME/mosswick (~/.local/share/mosswick), so that palette.dat,
# options.dlg, brushpad.dat and recovery/ belong to the user and the install
# is never written to. On each start, files missing there are copied from the
# install; pool.bmp, which the program only reads, is linked to the
# installed one so that an upgrade brings its art. Relative paths on the
# command line still mean the directory the user started in.
set -e
here=$(dirname "$(readlink -f "$0")")
prefix=$(dirname "$here")
program="$prefix/lib/mosswick/mosswick"
shipped="$prefix/share/mosswick/data"

# Batch runs, help and version need no data folder.
for arg in "$@"; do
    case "$arg" in
        --batch|--help|-h|--version) exec "$program" "$@" ;;
        --) break ;;
    esac
done

if [ -n "$XDG_DATA_HOME" ]; then
    user="$XDG_DATA_HOME/mosswick"
elif [ -n "$HOME" ]; then
    user="$HOME/.local/share/mosswick"
else
    echo "mosswick: neither XDG_DATA_HOME nor HOME is set: no folder for your palette and settings" >&2
    exit 1
fi
mkdir -p "$user/data"
for file in "$shipped"/*; do
    name=$(basename "$file")
    kept="$user/data/$name"
    if [ "$name" = pool.bmp ]; then
        # A pool.bmp of the user's own (a regular file) is left alone.
        if [ -L "$kept" ] || [ ! -e "$kept" ]; then ln -sfn "$file" "$kept"; fi
    elif [ ! -e "$kept" ] && [ ! -L "$kept" ]; then
        cp -R "$file" "$kept"
    fi
done

MOSSWICK_START_DIR=$(pwd)
export MOSSWICK_START_DIR
cd "$user"
exec "$program" "$@"
