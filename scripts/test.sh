#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test under Xvfb (real OpenGL
# scene graph through Mesa). Servers used by the tests (PostgreSQL, MariaDB,
# mosquitto) are started by the tests themselves on loopback.
#   scripts/test.sh [ctest arguments]        e.g. scripts/test.sh -R tst_encoding
#   QGUI_ASAN=1 scripts/test.sh              the same under AddressSanitizer, LeakSanitizer and
#                                            UndefinedBehaviorSanitizer (build-asan/)
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
"$here/scripts/install-deps.sh"
if [ "${QGUI_ASAN:-0}" = "1" ]; then
  export QGUI_BUILD_DIR=${QGUI_BUILD_DIR:-$here/build-asan}
  "$here/scripts/build.sh" -DQGUI_ASAN=ON -DQGUI_BUILD_BENCH=OFF -DQGUI_BUILD_EXAMPLES=OFF
  # memory errors and undefined behaviour end the test at the first report; leaks are checked in
  # the tests that own all their allocations (Qt Quick and Mesa keep process-lifetime caches that
  # look like leaks). Every suppression line says why it is there.
  export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0}
  export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$here/tests/lsan.supp:print_suppressions=0}
  export UBSAN_OPTIONS=${UBSAN_OPTIONS:-halt_on_error=1:print_stacktrace=1:suppressions=$here/tests/ubsan.supp}
else
  "$here/scripts/build.sh"
fi
build=${QGUI_BUILD_DIR:-$here/build}
export XDG_RUNTIME_DIR=$(mktemp -d)
chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb
cd "$build"
# every GUI test starts its own Xvfb (see tests/CMakeLists.txt)
ctest --output-on-failure -j${QGUI_TEST_JOBS:-2} "$@"
