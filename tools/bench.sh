#!/usr/bin/env bash
# Sets up, builds and runs the benchmarks (all of them, or those named: duration, telemetry,
# foreign, filelist, chart, playback, export, drives), one after the other, under a virtual X server
# when there is no display. Each makes the recordings it needs on first use into
# build/bench-media and prints its figures beside the baseline it measured in the same run.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
tavoric_web_environment

names=("$@")
((${#names[@]})) || names=(duration telemetry foreign filelist chart playback export drives)
run() {
    if [ -n "${DISPLAY:-}" ]; then
        "$@"
    else
        xvfb-run -a -s "-screen 0 1600x900x24" "$@"
    fi
}
targets=()
for name in "${names[@]}"; do targets+=("bench_$name"); done
cmake --build "$TAVORIC_BUILD" -j "$(nproc)" --target "${targets[@]}"
for name in "${names[@]}"; do
    echo "=== bench_$name"
    run "$TAVORIC_BUILD/bench_$name"
done
