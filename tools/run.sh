#!/usr/bin/env bash
# Sets up, builds and starts the viewer. Extra arguments are passed on to tavoric; without
# any it opens the demo recordings, made into build/demo the first time.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
tavoric_web_environment

if (($# == 0)); then
    python3 "$TAVORIC_ROOT/tools/make_recordings.py" demo "$TAVORIC_BUILD/demo"
    set -- "$TAVORIC_BUILD/demo"
fi

exec "$TAVORIC_BUILD/tavoric" "$@"
