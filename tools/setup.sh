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
    xvfb xauth x11-apps imagemagick xdotool
    libbenchmark-dev g++-mingw-w64-x86-64 libimage-exiftool-perl
    fonts-noto-core fonts-noto-cjk
)

tavoric_install_packages() {
    local missing=()
    local package
    for package in "${TAVORIC_PACKAGES[@]}"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
            missing+=("$package")
        fi
    done
    if ((${#missing[@]})); then
        echo "Installing: ${missing[*]}"
        local sudo=""
        [ "$(id -u)" -eq 0 ] || sudo="sudo"
        $sudo apt-get update -qq
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
    fi
}

tavoric_build() {
    cmake -S "$TAVORIC_ROOT" -B "$TAVORIC_BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    cmake --build "$TAVORIC_BUILD" -j "$(nproc)"
}

tavoric_install_packages
tavoric_build
