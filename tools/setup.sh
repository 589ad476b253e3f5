#!/usr/bin/env bash
# Installs whatever is missing on a Debian 12 machine and builds tavoric into build/.
# Sourced by run.sh and test.sh; safe to run again (it installs and rebuilds only what is
# missing or changed).
set -euo pipefail

TAVORIC_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
TAVORIC_BUILD="${TAVORIC_BUILD:-$TAVORIC_ROOT/build}"

TAVORIC_PACKAGES=(
    build-essential cmake ninja-build pkg-config python3
    qtbase5-dev qttools5-dev-tools qttools5-dev libqt5svg5-dev qt5-image-formats-plugins
    libvlc-dev vlc-plugin-base vlc-plugin-video-output
    rapidjson-dev libavformat-dev libavcodec-dev libavutil-dev ffmpeg
    libssl-dev dosfstools mtools
    qtwebengine5-dev libjs-leaflet chromium
    xvfb xauth x11-apps imagemagick xdotool poppler-utils
    libbenchmark-dev g++-mingw-w64-x86-64 libimage-exiftool-perl
    python3-gpxpy gdal-bin
    fonts-noto-core fonts-noto-cjk
)

tavoric_install_packages() {
    local missing=()
    # The map page's browser test runs on Node.js; machines that have it from elsewhere keep
    # theirs (Debian's npm would conflict with it).
    command -v npm >/dev/null 2>&1 || TAVORIC_PACKAGES+=(nodejs npm)
    local installed
    # dpkg-query fails when it does not know a package (one never installed): not an error.
    installed=" $( (dpkg-query -W -f='${Package}=${Status}\n' "${TAVORIC_PACKAGES[@]}" 2>/dev/null ||
        true) | sed -n 's/=install ok installed$//p' | tr '\n' ' ') "
    local package
    for package in "${TAVORIC_PACKAGES[@]}"; do
        [[ "$installed" == *" $package "* ]] || missing+=("$package")
    done
    if ((${#missing[@]})); then
        echo "Installing: ${missing[*]}"
        local sudo=""
        [ "$(id -u)" -eq 0 ] || sudo="sudo"
        $sudo apt-get update -qq
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
    fi
}

# A unity build (the sources of a library compiled a batch at a time) takes about two thirds
# of the time of one compile per source on a machine with two cores; the benchmarks are
# built by tools/bench.sh.
tavoric_build() {
    # A configured build folder configures itself again when a CMakeLists.txt changes.
    if ! grep -qs "^CMAKE_UNITY_BUILD:BOOL=ON$" "$TAVORIC_BUILD/CMakeCache.txt"; then
        cmake -S "$TAVORIC_ROOT" -B "$TAVORIC_BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
            -DCMAKE_UNITY_BUILD=ON >/dev/null
    fi
    cmake --build "$TAVORIC_BUILD" -j "$(nproc)"
}

# Chromium (inside Qt WebEngine, and the browser of the map page's test) refuses to run as
# root with its sandbox; the run and test scripts switch it off then, and draw in software.
# The program itself never changes these for its users.
tavoric_web_environment() {
    if [ "$(id -u)" -eq 0 ]; then
        export QTWEBENGINE_DISABLE_SANDBOX=1
        export QTWEBENGINE_CHROMIUM_FLAGS="--disable-gpu ${QTWEBENGINE_CHROMIUM_FLAGS:-}"
    fi
}

# playwright-core for the map page's browser test, from npm, into the build folder (it drives
# Debian's chromium and downloads no browser of its own).
tavoric_web_tools() {
    local web="$TAVORIC_BUILD/web"
    mkdir -p "$web"
    if ! cmp -s "$TAVORIC_ROOT/tests/web/package-lock.json" "$web/package-lock.json" ||
        [ ! -d "$web/node_modules/playwright-core" ]; then
        cp "$TAVORIC_ROOT/tests/web/package.json" "$TAVORIC_ROOT/tests/web/package-lock.json" "$web/"
        (cd "$web" && npm ci --no-audit --no-fund --loglevel=error)
    fi
}

tavoric_install_packages
tavoric_build
tavoric_web_tools
