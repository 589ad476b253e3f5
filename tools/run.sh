#!/usr/bin/env bash
# Sets up, builds and starts the viewer. Extra arguments are passed on to tavoric.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

exec "$TAVORIC_BUILD/tavoric" "$@"
