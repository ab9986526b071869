#!/usr/bin/env bash
# Starts Mosswick from its own directory, where its data/ folder lives.
# Usage: launcher.sh [path to the mosswick executable]
set -e
exe=${1:-"$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/mosswick"}
dir=$(dirname "$(readlink -f "$exe")")
cd "$dir"
exec ./mosswick
