#!/usr/bin/env bash
# Configures and builds the project into build/ (or $QGUI_BUILD_DIR) with ccache.
# Extra arguments are passed to cmake at configure time; QGUI_BUILD_TARGET builds one target only.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
build=${QGUI_BUILD_DIR:-$here/build}
export CCACHE_BASEDIR=$here
export CCACHE_DIR=${CCACHE_DIR:-$HOME/.cache/ccache}
jobs=${QGUI_JOBS:-2}
cmake -S "$here" -B "$build" -DCMAKE_BUILD_TYPE=${QGUI_BUILD_TYPE:-RelWithDebInfo} "$@" >/dev/null
cmake --build "$build" -j"$jobs" ${QGUI_BUILD_TARGET:+--target $QGUI_BUILD_TARGET}
