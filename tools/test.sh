#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite. Anything with a window or a video player
# runs under a virtual X server when there is no display.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
tavoric_web_environment

cd "$TAVORIC_BUILD"
if [ -n "${DISPLAY:-}" ]; then
    ctest --output-on-failure -j 2
else
    xvfb-run -a -s "-screen 0 1600x900x24" ctest --output-on-failure -j 2
fi
